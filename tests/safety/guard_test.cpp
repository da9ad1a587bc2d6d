#include "safety/guard.h"

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "masterdata/master_data_screen.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"
#include "safety/recovery.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeugnis::safety::test {
namespace {
namespace fs = std::filesystem;
using namespace zeugnis::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class GuardTest : public testing::Test {
  protected:
    GuardTest() {
        folder.write(u"Daten/A.txt", u"alt A");
        folder.write(u"Daten/B.txt", u"alt B");
        folder.write(u"Daten/Sicherheit/x.txt", u"Kopie");
        guard.onUnitEnd = [this](Guard::Outcome outcome) { outcomes.push_back(outcome); };
        guard.onUnavailable = [this](const Text& sentence) { said.push_back(sentence); };
        directory.watchWrites(&guard);
    }

    void write(TextView name, std::string_view bytes) { writeWholeFile(directory, name, bytes); }

    [[nodiscard]] std::vector<std::string> net() const {
        std::vector<std::string> names;
        if (folder.has(u"Notsicherung/Staende"))
            for (const auto& entry : fs::directory_iterator(folder.path() / "Notsicherung/Staende"))
                names.push_back(utf8FromPath(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryFolder folder;
    Arbeitsverzeichnis directory{folder.path()};
    Guard guard{folder.path(), [] { return *momentFrom("2026-11-22 22:30:05"); }};
    std::vector<Guard::Outcome> outcomes;
    std::vector<Text> said;
};

TEST_F(GuardTest, AUnitBecomesAFormerState) {
    {
        const WriteUnit unit(directory.watcher());
        write(u"Daten\\A.txt", "neu A");
        write(u"Daten\\neu.txt", "neu");
        EXPECT_THAT(net(), ElementsAre("20261122-223005-000.vorgang"));
    }
    write(u"Daten\\B.txt", "neu B");
    EXPECT_THAT(net(), ElementsAre("20261122-223005-000.stand", "20261122-223005-001.stand"));
    EXPECT_EQ(folder.read(u"Daten/A.txt"), u"neu A");
    EXPECT_THAT(outcomes, ElementsAre(Guard::Outcome::Kept, Guard::Outcome::Kept));

    const Journal state =
        readJournal(readWholeFile(directory, u"Notsicherung\\Staende\\20261122-223005-000.stand"));
    ASSERT_THAT(state.files, SizeIs(2));
    EXPECT_EQ(state.files[0].content, "alt A");
    EXPECT_EQ(state.files[1].content, std::nullopt);
    EXPECT_EQ(utf8FromText(state.action), "Geändert: Daten\\A.txt und Daten\\neu.txt");
}

TEST_F(GuardTest, WhatChangesNothingOrOnlyAWorkFileLeavesNoState) {
    write(u"Daten\\A.txt", "alt A");
    write(u"Daten\\AktivForm.txt", "4");
    EXPECT_THAT(net(), SizeIs(0));
    EXPECT_THAT(outcomes, SizeIs(1));
}

TEST_F(GuardTest, AnInterruptedUnitIsTakenBackAtTheNextStart) {
    guard.unitBegins();
    write(u"Daten\\A.txt", "neu A, und länger");
    write(u"Daten\\A.txt", "noch neuer");
    write(u"Daten\\neu.txt", "neu");
    {
        const Ordnerwechsel in(directory, u"Daten\\Sicherheit");
        deleteFilesEndingIn(directory, u".TXT");
    }
    EXPECT_FALSE(folder.has(u"Daten/Sicherheit/x.txt"));

    // As long as the program runs another one leaves its unit alone.
    EXPECT_THAT(takeBackInterrupted(folder.path()).takenBack, SizeIs(0));
    EXPECT_EQ(folder.read(u"Daten/A.txt"), u"noch neuer");

    // What a kill would leave, in a folder of its own.
    const TemporaryFolder killed;
    for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
        const fs::path copy = killed.path() / entry.path().lexically_relative(folder.path());
        if (entry.is_directory())
            fs::create_directory(copy);
        else
            fs::copy_file(entry.path(), copy);
    }
    const Recovery recovery = takeBackInterrupted(killed.path());
    EXPECT_TRUE(recovery.complete());
    ASSERT_THAT(recovery.takenBack, SizeIs(1));
    EXPECT_THAT(utf8FromText(recovery.takenBack[0]), HasSubstr("vom 22.11.2026, 22:30 Uhr"));
    EXPECT_EQ(killed.read(u"Daten/A.txt"), u"alt A");
    EXPECT_FALSE(killed.has(u"Daten/neu.txt"));
    EXPECT_EQ(killed.read(u"Daten/Sicherheit/x.txt"), u"Kopie");
    EXPECT_TRUE(fs::is_empty(killed.path() / "Notsicherung/Staende"));
    guard.unitEnds(false);
}

TEST_F(GuardTest, AUnitThatTheMachineBreaksIsTakenBackAtOnce) {
    fs::create_directory(folder.path() / "Daten/C.txt");
    EXPECT_EQ(failureOf([&] {
                  const WriteUnit unit(directory.watcher());
                  write(u"Daten\\A.txt", "neu A");
                  write(u"Daten\\C.txt", "neu C");
              }),
              "access-denied");
    EXPECT_EQ(folder.read(u"Daten/A.txt"), u"alt A");
    EXPECT_THAT(outcomes, ElementsAre(Guard::Outcome::TakenBack));
    EXPECT_THAT(net(), SizeIs(0));
}

TEST_F(GuardTest, AFailureOfARoutineKeepsWhatItHasWritten) {
    EXPECT_EQ(failureOf([&] {
                  const WriteUnit unit(directory.watcher());
                  write(u"Daten\\A.txt", "neu A");
                  readWholeFile(directory, u"Daten\\fehlt.txt");
              }),
              "file-not-found");
    EXPECT_EQ(folder.read(u"Daten/A.txt"), u"neu A");
    EXPECT_THAT(outcomes, ElementsAre(Guard::Outcome::Kept));
}

TEST_F(GuardTest, WithoutItsFolderItSaysSoOnceAndWorksOn) {
    folder.write(u"Notsicherung", u"kein Ordner");
    write(u"Daten\\A.txt", "neu A");
    write(u"Daten\\B.txt", "neu B");
    EXPECT_EQ(folder.read(u"Daten/B.txt"), u"neu B");
    ASSERT_THAT(said, SizeIs(1));
    EXPECT_THAT(utf8FromText(said[0]), HasSubstr("„Notsicherung“ kann nicht beschrieben werden"));
    // Taking back works all the same, as long as the program lives.
    fs::create_directory(folder.path() / "Daten/C.txt");
    EXPECT_EQ(failureOf([&] {
                  const WriteUnit unit(directory.watcher());
                  write(u"Daten\\A.txt", "noch neuer");
                  write(u"Daten\\C.txt", "neu C");
              }),
              "access-denied");
    EXPECT_EQ(folder.read(u"Daten/A.txt"), u"neu A");
}

TEST_F(GuardTest, ADamagedJournalIsSetAsideAndWhatItStillHoldsComesBack) {
    folder.write(u"Notsicherung/Staende/1.vorgang", u"Unfug\r\nohne Sinn");
    const std::string record = journalRecord({"Daten/B.txt", "ganz alt B"}, {});
    folder.write(u"Notsicherung/Staende/2.vorgang",
                 u"Unfug\n" + textFromUtf8(record) + u"und noch etwas");
    folder.write(u"Notsicherung/Staende/3.vorgang", {});
    folder.write(u"Notsicherung/Staende/4.vorgang",
                 textFromUtf8(journalRecord({"../außen.txt", "x"}, {})));
    const Recovery recovery = takeBackInterrupted(folder.path());
    EXPECT_EQ(folder.read(u"Daten/B.txt"), u"ganz alt B");
    EXPECT_THAT(net(), ElementsAre("2.vorgang.beschaedigt"));
    EXPECT_TRUE(recovery.complete());
}

TEST_F(GuardTest, AnActionOfTheUserIsOneUnit) {
    const TestInstallation installation;
    installation.write(u"Daten/Sibankpfad.txt", u"\"C:\\Sibank\"\r\n");
    installation.write(u"Daten/sib1undsib2.txt", u"\"C:\\Eins\",\"C:\\Zwei\"\r\n");
    installation.write(u"Daten/AGListe.txt", u"\"Chor\"\r\n");
    TestProgramm running(installation);
    Guard watching(installation.path());
    std::vector<Guard::Outcome> ends;
    watching.onUnitEnd = [&](Guard::Outcome outcome) { ends.push_back(outcome); };
    running.programm.directory().watchWrites(&watching);
    auto& basis = running.open<GsBasis>(bildschirme::GsBasis);
    user::click(basis.Text1(SibankFeld));
    EXPECT_THAT(ends, SizeIs(0));
    user::click(basis.Command1(0));
    EXPECT_THAT(ends, ElementsAre(Guard::Outcome::Kept));
    ASSERT_THAT(filesEndingIn(installation.path() / "Notsicherung/Staende", FormerState),
                SizeIs(1));
}

} // namespace
} // namespace zeugnis::safety::test
