#include "safety/damage.h"

#include "platform/code_page.h"
#include "platform/whole_file.h"
#include "safety/latest.h"
#include "safety/states.h"
#include "tests/support/test_installation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeugnis::safety::test {
namespace {
namespace fs = std::filesystem;
using namespace zeugnis::test;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr TextView Store = u"Daten/AVSVspeicher.txt";

class DamageTest : public testing::Test {
  protected:
    DamageTest() {
        directory.watchWrites(&guard);
        write(Store, Saved);
        EXPECT_THAT(examine(folder.path()), IsEmpty());
    }

    void write(TextView name, const Text& content) {
        writeWholeFile(directory, name, encodeWindows1252(content));
    }

    [[nodiscard]] Finding only() const {
        const std::vector<Finding> found = examine(folder.path());
        EXPECT_THAT(found, SizeIs(1));
        return found.empty() ? Finding{} : found.front();
    }

    const Text Saved = u"1,\"3a\",\"Ahlers\",\"Tom\",\"Tom übt, liest.\",\"\"\r\n"
                       u"2,\"3a\",\"Bäcker\",\"Lena\",\"Zwei\r\nZeilen\",\"Lena hilft.\"\r\n"
                       u"3,\"3a\",\"Çelik\",\"Kim\",\"\",\"\"\r\n";
    TestInstallation folder;
    Guard guard{folder.path(), [] { return *momentFrom("2026-11-22 22:30:05"); }};
    Arbeitsverzeichnis directory{folder.path()};
};

struct Case {
    const char* name;
    Text content;
    Damage kind;
    size_t record;
    Text field;
    const char* sentence;
};

TEST_F(DamageTest, IsNamedWithFileRecordAndField) {
    const std::string utf8 = utf8FromText(Saved);
    const std::vector<Case> cases = {
        {"empty", {}, Damage::Empty, 0, {}, "„Daten\\AVSVspeicher.txt“ ist leer."},
        {"too large",
         Text(6'000'000, u'x'),
         Damage::TooLarge,
         0,
         {},
         "größer als alles, was das Programm je hineinschreibt"},
        {"cut in a text", Saved.substr(0, Saved.find(u"hilft")), Damage::Cut, 2, u"Sozialverhalten",
         "bricht mittendrin ab: in Datensatz 2 (Bäcker, Lena), Feld „Sozialverhalten“."},
        {"cut behind a field", Saved.substr(0, Saved.find(u",\"Lena hilft")), Damage::Cut, 2,
         u"Sozialverhalten", "bricht mittendrin ab"},
        {"a child less",
         Saved.substr(0, Saved.find(u"3,\"3a\",\"Ç")),
         Damage::FewerRecords,
         0,
         {},
         "hat nur 2 Datensätze, die Klasse aber 3 Kinder. Es fehlt alles ab Çelik, Kim."},
        {"a quote in a text", Text(Saved).replace(Saved.find(u"übt,"), 4, u"übt \"gern\","),
         Damage::ShiftedFields, 1, u"Arbeitsverhalten",
         "ist in Datensatz 1 (Ahlers, Tom), Feld „Arbeitsverhalten“, gestört."},
        {"a field too many", Text(Saved).replace(Saved.find(u",\"Tom übt"), 1, u",\"\","),
         Damage::ShiftedFields, 1, u"Sozialverhalten", "gestört"},
        {"a letter for the number", Text(Saved).replace(0, 1, u"x"), Damage::ShiftedFields, 1,
         u"Nummer", "Feld „Nummer“"},
        {"UTF-8", decodeWindows1252(utf8), Damage::Encoding, 0, {}, "anderen Zeichenkodierung"},
        {"UTF-8 with a mark",
         decodeWindows1252("\xEF\xBB\xBF" + utf8),
         Damage::Encoding,
         0,
         {},
         "anderen Zeichenkodierung"},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        folder.write(Store, one.content);
        const Finding found = only();
        EXPECT_EQ(found.file, "Daten/AVSVspeicher.txt");
        EXPECT_EQ(found.kind, one.kind);
        EXPECT_EQ(found.record, one.record);
        EXPECT_EQ(found.field, one.field);
        EXPECT_THAT(utf8FromText(found.sentence), HasSubstr(one.sentence));
        EXPECT_FALSE(found.consequence.empty());
        ASSERT_TRUE(found.good);
        EXPECT_EQ(found.good->content, encodeWindows1252(Saved));
        bringBackGood(directory, guard, found);
        EXPECT_EQ(folder.read(Store), Saved);
        EXPECT_THAT(examine(folder.path()), IsEmpty());
    }
    folder.remove(Store);
    EXPECT_EQ(only().kind, Damage::Missing);
}

TEST(DamageOfTheList, IsNoMeasureForTheStores) {
    const TestInstallation fresh;
    Text list;
    for (int i = 0; i < 100'000; ++i)
        list += u"1,\"3a\",\"Ahlers\",\"Tom\",\"m\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"\r\n";
    fresh.write(u"Daten/Namen.Txt", list);
    const std::vector<Finding> found = examine(fresh.path());
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found.front().file, "Daten/Namen.Txt");
}

TEST_F(DamageTest, IsSeenWhateverTheCaseOfTheNames) {
    fs::rename(folder.path() / "Daten/Namen.Txt", folder.path() / "Daten/NAMEN.TXT");
    fs::rename(folder.path() / fs::path(Store), folder.path() / "Daten/avsvspeicher.TXT");
    fs::remove_all(folder.path() / "Notsicherung");
    folder.write(u"Daten/avsvspeicher.TXT", Saved.substr(0, Saved.find(u"3,\"3a\",\"Ç")));
    EXPECT_EQ(only().kind, Damage::FewerRecords);
}

TEST_F(DamageTest, OfTheClassListIsNotMeasuredByItself) {
    const Text names = folder.read(u"Daten/Namen.Txt");
    folder.write(u"Daten/Namen.Txt", {});
    Finding found = only();
    EXPECT_EQ(found.file, "Daten/Namen.Txt");
    EXPECT_EQ(found.kind, Damage::Empty);
    folder.write(u"Daten/Namen.Txt", names.substr(0, 30));
    found = only();
    EXPECT_EQ(found.kind, Damage::Cut);
    EXPECT_EQ(found.good->content, encodeWindows1252(names));
}

TEST_F(DamageTest, TheGoodStateComesFromCopiesOrFormerStatesWhereTheLastIsLost) {
    fs::remove_all(folder.path() / "Notsicherung/Zuletzt");
    folder.write(Store, {});
    // The former state of the store is that of an installation without texts.
    ASSERT_TRUE(only().good);
    EXPECT_THAT(utf8FromText(only().good->source), HasSubstr("vor dem 22.11.2026, 22:30 Uhr"));
    folder.write(u"Daten/Sicherheit/AVSVspeicher21.11.2026.txt", Saved);
    EXPECT_EQ(only().good->content, encodeWindows1252(Saved));
    EXPECT_EQ(only().good->source, u"die Kopie „AVSVspeicher21.11.2026.txt“");
}

TEST_F(DamageTest, AChangeByHandIsTakenAfterALookAndHasAWayBack) {
    const Text changed = Text(Saved).replace(Saved.find(u"liest"), 5, u"rechnet");
    folder.write(Store, changed);
    const Finding found = only();
    EXPECT_EQ(found.kind, Damage::ChangedByHand);
    EXPECT_THAT(utf8FromText(found.sentence), HasSubstr("außerhalb des Programms geändert"));
    accept(folder.path(), found.file, *momentFrom("2026-11-23 07:00:00"));
    EXPECT_THAT(examine(folder.path()), IsEmpty());
    EXPECT_EQ(folder.read(Store), changed);
    const State newest = States(folder.path()).list().front();
    EXPECT_EQ(newest.action, u"Von Hand geändert: Daten\\AVSVspeicher.txt");
    EXPECT_EQ(States(folder.path()).read(newest.id)->files.front().content,
              encodeWindows1252(Saved));
}

TEST_F(DamageTest, ASaveWhoseCopyIsOneBehindIsNoChangeByHand) {
    Latest latest(folder.path());
    const std::string before = encodeWindows1252(Saved);
    write(Store, Text(Saved).replace(Saved.find(u"liest"), 5, u"rechnet"));
    latest.keep("Daten/AVSVspeicher.txt", before);
    EXPECT_THAT(examine(folder.path()), IsEmpty());
    // And a damaged copy is as good as none.
    folder.write(u"Notsicherung/Zuletzt/Daten%2FAVSVspeicher.txt.zuletzt", u"Unfug");
    EXPECT_THAT(examine(folder.path()), IsEmpty());
}

TEST(Damage, IsNotSeenInWhatIsDelivered) {
    for (const char* installation :
         {"install", "tests/fixtures/klasse3a", "tests/fixtures/klasse2b"}) {
        const TemporaryFolder folder;
        fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / installation, folder.path(),
                 fs::copy_options::recursive);
        for (const Finding& finding : examine(folder.path()))
            ADD_FAILURE() << installation << ": " << utf8FromText(finding.sentence);
    }
}

TEST(Damage, QuotesBecomeThoseThatTheFilesCanHold) {
    EXPECT_EQ(withGermanQuotes(u"\"ja\" und \"nein"), u"„ja“ und „nein");
}

} // namespace
} // namespace zeugnis::safety::test
