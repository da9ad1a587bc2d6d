#include "safety/journal.h"

#include <gtest/gtest.h>

namespace zeugnis::safety::test {
namespace {

const Moment Begin = *momentFrom("2026-11-22 22:30:05");

// Contents with line ends, without any, with bytes of any kind, and one twice.
const std::vector<Former> Files = {{"Daten/Namen.Txt", "1,\"3a\"\r\n2,\"3a\"\r\n"},
                                   {"Daten/Neu\n%0A.txt"},
                                   {"Daten/leer.txt", ""},
                                   {"Daten/wild.txt", std::string("datei \n\0\xFF\n*", 11)},
                                   {"Daten/Sicherheit/Kopie.txt", "1,\"3a\"\r\n2,\"3a\"\r\n"}};

std::string written() {
    std::string bytes = journalHead(Begin);
    std::vector<Former> before;
    for (const Former& file : Files) {
        bytes += journalRecord(file, before);
        before.push_back(file);
    }
    return bytes + journalEnd(u"Basisdaten gespeichert");
}

bool isOneOfOurs(const Former& read) {
    for (const Former& file : Files)
        if (file.name == read.name && file.content == read.content)
            return true;
    return false;
}

TEST(Journal, ComesBackAsItWasWritten) {
    const Journal read = readJournal(written());
    EXPECT_EQ(read.begin, Begin);
    EXPECT_EQ(read.action, u"Basisdaten gespeichert");
    EXPECT_FALSE(read.damaged);
    ASSERT_EQ(read.files.size(), Files.size());
    for (size_t i = 0; i < Files.size(); ++i) {
        EXPECT_EQ(read.files[i].name, Files[i].name);
        EXPECT_EQ(read.files[i].content, Files[i].content);
    }
}

TEST(Journal, CutAnywhereItHoldsTheRecordsInFrontAndIsNoDamage) {
    const std::string whole = written();
    size_t most = 0;
    for (size_t length = 0; length <= whole.size(); ++length) {
        const Journal read = readJournal(std::string_view(whole).substr(0, length));
        EXPECT_FALSE(read.damaged) << length;
        EXPECT_GE(read.files.size(), most) << length;
        most = read.files.size();
        for (const Former& file : read.files)
            EXPECT_TRUE(isOneOfOurs(file)) << length;
    }
    EXPECT_EQ(most, Files.size());
}

TEST(Journal, ADamagedByteCostsOneContentAtMostAndIsNeverTakenForTruth) {
    const std::string whole = written();
    for (size_t at = 0; at < whole.size(); ++at)
        for (const int flip : {1, 0x80}) {
            std::string damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ flip);
            const Journal read = readJournal(damaged);
            for (const Former& file : read.files)
                EXPECT_TRUE(isOneOfOurs(file)) << at;
            // Two where a line end is gone, and the copy that only names its content.
            EXPECT_GE(read.files.size(), Files.size() - 3) << at;
            // The last record may as well have been cut off.
            EXPECT_TRUE(read.damaged || read.files.size() >= Files.size() - 1) << at;
        }
}

TEST(Moment, TakesRealDatesOnly) {
    EXPECT_EQ(stampOf(Begin), "2026-11-22 22:30:05");
    EXPECT_EQ(shownDay(Begin), u"22.11.2026");
    EXPECT_EQ(shownTime(Begin), u"22:30");
    for (const char* wrong : {"", "2026-11-22", "2026-02-30 10:00:00", "2026-11-22 24:00:00",
                              "2026-11-22T22:30:05", "x026-11-22 22:30:05", "2026-11-22 22:30:5 "})
        EXPECT_FALSE(momentFrom(wrong)) << wrong;
}

} // namespace
} // namespace zeugnis::safety::test
