#include "safety/states.h"

#include "platform/code_page.h"
#include "platform/whole_file.h"
#include "safety/bring_back.h"
#include "tests/support/test_installation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeugnis::safety::test {
namespace {
namespace fs = std::filesystem;
using namespace zeugnis::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class StatesTest : public testing::Test {
  protected:
    StatesTest() { directory.watchWrites(&guard); }

    void at(const char* stamp) { clock = *momentFrom(stamp); }

    void write(TextView name, const Text& content) {
        writeWholeFile(directory, name, encodeWindows1252(content));
    }

    // All texts of three children.
    void writeTexts(TextView tom, TextView lena, TextView kim) {
        const WriteUnit unit(directory.watcher());
        write(u"Daten\\AVSVspeicher.txt", u"1,\"3a\",\"Ahlers\",\"Tom\",\"" + Text(tom) +
                                              u"\",\"\"\r\n2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"" +
                                              Text(lena) + u"\"\r\n3,\"3a\",\"Çelik\",\"Kim\",\"" +
                                              Text(kim) + u"\",\"\"\r\n");
    }

    [[nodiscard]] std::vector<std::string> stamps() const {
        std::vector<std::string> all;
        for (const State& state : states.list())
            all.push_back(stampOf(state.when));
        return all;
    }

    TestInstallation folder;
    Moment clock = *momentFrom("2026-11-22 22:30:00");
    Guard guard{folder.path(), [this] { return clock; }};
    Arbeitsverzeichnis directory{folder.path()};
    States states{folder.path()};
    Paths paths{folder.path()};
};

TEST_F(StatesTest, TellWhatWasDoneTheNewestFirst) {
    writeTexts(u"Tom eins", u"Lena eins", u"Kim eins");
    at("2026-11-22 22:31:00");
    write(u"Daten\\Förder34.Txt", u"1,\"neu\"\r\n");
    at("2026-11-23 07:00:00");
    write(u"Daten\\Basisdaten.txt", u"\"neu\"\r\n");
    const std::vector<State> all = states.list();
    ASSERT_THAT(all, SizeIs(3));
    EXPECT_EQ(all[0].action, u"Basisdaten gespeichert");
    EXPECT_EQ(all[1].action, u"Bausteine der Jahrgänge 3/4 geändert");
    EXPECT_EQ(all[2].action, u"Arbeits- und Sozialverhalten gespeichert");
    EXPECT_THAT(all[2].files, ElementsAre("Daten/AVSVspeicher.txt"));
}

TEST_F(StatesTest, DamagedOnesArePassedOver) {
    writeTexts(u"Tom eins", u"Lena eins", u"Kim eins");
    folder.write(u"Notsicherung/Staende/20260101-000000-000.stand", u"Unfug");
    folder.write(u"Notsicherung/Staende/20260101-000000-001.stand", {});
    EXPECT_THAT(states.list(), SizeIs(1));
    EXPECT_FALSE(states.read("../../Daten/Namen"));
}

TEST_F(StatesTest, ShowWhatDiffersChildByChildAndTextByText) {
    writeTexts(u"Tom eins", u"Lena eins", u"Kim eins");
    writeTexts(u"Tom zwei", u"Lena eins", u"");
    // Sorting and a child less: children are found by name.
    write(u"Daten\\AVSVspeicher.txt", u"1,\"3a\",\"Çelik\",\"Kim\",\"\",\"\"\r\n"
                                      u"2,\"3a\",\"Ahlers\",\"Tom\",\"Tom zwei\",\"\"\r\n");
    const std::vector<Difference> found =
        differencesTo(paths, states.read(states.list().at(1).id)->files);
    ASSERT_THAT(found, SizeIs(5));
    EXPECT_EQ(found[0].pupil, u"Ahlers, Tom");
    EXPECT_EQ(found[0].what, u"Nummer");
    EXPECT_EQ(found[1].what, u"Arbeitsverhalten");
    EXPECT_EQ(found[1].former, u"Tom eins");
    EXPECT_EQ(found[1].current, u"Tom zwei");
    EXPECT_EQ(found[2].kind, Difference::Kind::OnlyFormer);
    EXPECT_EQ(found[2].pupil, u"Bäcker, Lena");
    EXPECT_EQ(found[4].pupil, u"Çelik, Kim");
    EXPECT_EQ(found[4].former, u"Kim eins");
}

TEST_F(StatesTest, ATextComesBackWithItsLockAndNothingElse) {
    writeTexts(u"Tom eins", u"Lena eins", u"Kim eins");
    write(u"Daten\\AVSVWahl.txt", u"1,\"3a\",\"Ahlers\",\"Tom\",1,1,3,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    {
        const WriteUnit unit(directory.watcher());
        writeTexts(u"", u"", u"");
        write(u"Daten\\AVSVWahl.txt",
              u"1,\"3a\",\"Ahlers\",\"Tom\",0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    }
    const std::vector<Former> formers = states.read(states.list().front().id)->files;
    const std::vector<Difference> found = differencesTo(paths, formers.front());
    ASSERT_THAT(found, SizeIs(3));
    EXPECT_TRUE(bringBackText(directory, guard, formers, found[0]));
    EXPECT_EQ(
        folder.read(u"Daten/AVSVspeicher.txt"),
        u"1,\"3a\",\"Ahlers\",\"Tom\",\"Tom eins\",\"\"\r\n"
        u"2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"\"\r\n3,\"3a\",\"Çelik\",\"Kim\",\"\",\"\"\r\n");
    EXPECT_EQ(folder.read(u"Daten/AVSVWahl.txt"),
              u"1,\"3a\",\"Ahlers\",\"Tom\",1,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    EXPECT_EQ(states.list().front().action, u"Zurückgeholt: Arbeitsverhalten von Ahlers, Tom");
    // It is no longer as the difference says.
    EXPECT_FALSE(bringBackText(directory, guard, formers, found[0]));
}

TEST_F(StatesTest, AChildComesBackInAllItsStores) {
    writeTexts(u"Tom eins", u"Lena eins", u"Kim eins");
    {
        const WriteUnit unit(directory.watcher());
        writeTexts(u"x", u"y", u"z");
        write(u"Daten\\AVSVWahl.txt",
              u"1,\"3a\",\"Ahlers\",\"Tom\",9,9,9,9,9,9,9,9,9,9,9,9,9,9,9\r\n"
              u"3,\"3a\",\"Çelik\",\"Kim\",9,9,9,9,9,9,9,9,9,9,9,9,9,9,9\r\n");
    }
    const auto formers = states.allBefore(states.list().front().id);
    EXPECT_FALSE(bringBackPupil(directory, guard, formers, u"Nie, Mand"));
    EXPECT_TRUE(bringBackPupil(directory, guard, formers, u"Çelik, Kim"));
    EXPECT_EQ(
        folder.read(u"Daten/AVSVspeicher.txt"),
        u"1,\"3a\",\"Ahlers\",\"Tom\",\"x\",\"\"\r\n2,\"3a\",\"Bäcker\",\"Lena\",\"\",\"y\"\r\n"
        u"3,\"3a\",\"Çelik\",\"Kim\",\"Kim eins\",\"\"\r\n");
    EXPECT_EQ(folder.read(u"Daten/AVSVWahl.txt"),
              u"1,\"3a\",\"Ahlers\",\"Tom\",9,9,9,9,9,9,9,9,9,9,9,9,9,9,9\r\n"
              u"3,\"3a\",\"Çelik\",\"Kim\",0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
}

TEST_F(StatesTest, AllComesBackAsItWasBeforeTheActionAndCanBeTakenBackAgain) {
    const Text before = folder.read(u"Daten/AVSVspeicher.txt");
    const Text names = folder.read(u"Daten/Namen.Txt");
    writeTexts(u"Tom eins", u"Lena eins", u"Kim eins");
    writeTexts(u"Tom zwei", u"Lena zwei", u"Kim zwei");
    write(u"Daten\\Namen.Txt", {}); // a list of 34, sorted
    const std::string first = states.list().back().id;
    bringBackAll(directory, guard, states.allBefore(first));
    EXPECT_EQ(folder.read(u"Daten/AVSVspeicher.txt"), before);
    EXPECT_EQ(folder.read(u"Daten/Namen.Txt"), names);
    bringBackAll(directory, guard, states.read(states.list().front().id)->files);
    EXPECT_EQ(folder.read(u"Daten/Namen.Txt"), u"");
}

TEST_F(StatesTest, ThinOutWithAge) {
    int turn = 0;
    for (const char* stamp : {"2026-03-01 10:00:00", "2026-08-03 10:00:00", "2026-08-05 10:00:00",
                              "2026-08-10 10:00:00", "2026-11-20 08:00:00", "2026-11-20 09:00:00",
                              "2026-11-21 10:00:00", "2026-11-22 21:00:00", "2026-11-22 22:00:00",
                              "2027-01-01 00:00:00"}) {
        at(stamp);
        writeTexts(textFromNumber(++turn), u"", u"");
    }
    // Of another file, so the first of the day for it.
    at("2026-11-20 09:30:00");
    write(u"Daten\\AG.Txt", u"1,\"x\"\r\n");
    states.thinOut(*momentFrom("2026-11-22 22:30:00"));
    EXPECT_THAT(stamps(),
                ElementsAre("2027-01-01 00:00:00", "2026-11-22 22:00:00", "2026-11-22 21:00:00",
                            "2026-11-21 10:00:00", "2026-11-20 09:30:00", "2026-11-20 08:00:00",
                            "2026-08-10 10:00:00", "2026-08-03 10:00:00"));
}

TEST_F(StatesTest, KeepTheLimitAndMakeRoom) {
    at("2026-11-20 08:00:00");
    writeTexts(u"früher", u"", u"");
    for (int minute = 0; minute < 30; ++minute) {
        at(("2026-11-22 1" + std::to_string(minute / 10) + ":0" + std::to_string(minute % 10) +
            ":00")
               .c_str());
        writeTexts(Text(1000, u'a') + textFromNumber(minute), u"", u"");
    }
    // Today's are thinned first, down to the first of each hour.
    states.thinOut(*momentFrom("2026-11-22 22:30:00"), 8000);
    EXPECT_THAT(stamps(),
                ElementsAre("2026-11-22 12:09:00", "2026-11-22 12:08:00", "2026-11-22 12:07:00",
                            "2026-11-22 12:00:00", "2026-11-22 11:00:00", "2026-11-22 10:00:00",
                            "2026-11-20 08:00:00"));
    // Then the oldest go.
    states.thinOut(*momentFrom("2026-11-22 22:30:00"), 3000);
    EXPECT_THAT(stamps(),
                ElementsAre("2026-11-22 12:00:00", "2026-11-22 11:00:00", "2026-11-22 10:00:00"));
    EXPECT_TRUE(states.makeRoom(1));
    EXPECT_THAT(stamps(), ElementsAre("2026-11-22 12:00:00", "2026-11-22 11:00:00"));
    EXPECT_TRUE(states.makeRoom(1000000));
    EXPECT_THAT(stamps(), IsEmpty());
    EXPECT_FALSE(states.makeRoom(1));
}

} // namespace
} // namespace zeugnis::safety::test
