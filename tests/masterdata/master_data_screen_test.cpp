#include "masterdata/master_data_screen.h"

#include "shell/start_page.h"
#include "tests/masterdata/master_data_test.h"

namespace zeugnis::test {
namespace {

using MasterDataScreen = MasterDataTest;

TEST_F(MasterDataScreen, KeepsWhatWasSavedForTheNextStart) {
    GsBasis& screen = unlocked(2);
    machine->dialogs.answers = {Antwort::Ja};
    user::click(screen.Command3);
    screen.Text1(5).select(0, 9);
    user::paste(screen.Text1(5), u"1c");
    screen.Text1(4).select(0, 9);
    user::paste(screen.Text1(4), u"1");
    user::paste(screen.Text1(10), u"-Groß");
    installation.write(u"Daten/Sicherheit/AVSVspeicher01.01.2027.TXT", u"old");
    installation.write(u"Daten/Sicherheit/Notiz.doc", u"mine");
    user::click(screen.Command1(0));
    EXPECT_EQ(machine->launcher.started,
              std::vector<Text>{u"Winword.exe ZeugnislisteNeu.doc /mZeugnislisteNeu"});
    EXPECT_FALSE(installation.has(u"Daten/Sicherheit/AVSVspeicher01.01.2027.TXT"));
    EXPECT_TRUE(installation.has(u"Daten/Sicherheit/Notiz.doc"));
    EXPECT_EQ(machine->programm.directory().current(),
              machine->programm.directory().programFolder());
    user::click(screen.Command1(1));
    EXPECT_TRUE(machine->programm.ended());

    machine = std::make_unique<TestProgramm>(installation);
    const auto& start = machine->open<GsStart>(bildschirme::GsStart);
    EXPECT_EQ(start.Label1(0).Caption, u"Klasse 1c");
    EXPECT_EQ(start.Label1(2).Caption, u"2. Halbjahr");
    EXPECT_EQ(start.Label5.Caption, u"Erika Lehrer-Groß");
}

TEST_F(MasterDataScreen, TakesA34thPupilIntoTheFilesInSpiteOfItsMessage) {
    GsBasis& screen = unlocked(32);
    user::click(screen.Command4(2));
    EXPECT_EQ(screen.Combo1.entries().back(), u"33");
    EXPECT_EQ(screen.Text2(1).text(), u"");
    EXPECT_EQ(machine->programm.focus(), &screen.Text2(1));
    user::type(screen.Text2(1), u"Last");
    machine->dialogs.shown.clear();

    user::click(screen.Command4(2));
    ASSERT_EQ(machine->dialogs.shown.size(), 1U);
    EXPECT_EQ(utf8FromText(machine->dialogs.shown[0].text),
              "Die Zahl der Schüler darf maximal 33 betragen!");
    EXPECT_EQ(screen.Combo1.entries().size(), 33U);
    // The last option that was on goes with the child that was typed in.
    EXPECT_TRUE(names().ends_with(
        u"32,\"3a\",\"N32\",\"V32\",\"w\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"\r\n"
        u"33,\"3a\",\"Last\",\"\",\"m\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        u"0,\"3a\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"));
    EXPECT_TRUE(installation.read(u"Daten/12Sperre.txt")
                    .ends_with(u"\r\n34,\"3a\",\"\",\"\",0,0,0,0,0,0,0,0\r\n"));
    EXPECT_TRUE(installation.read(u"Daten/Bildliststeuer.Txt")
                    .ends_with(u"\r\n0,\"3a\",\"\",\"\",\"\"\r\n"));

    GsBasis& again = opened();
    EXPECT_EQ(again.Liste.Schuelerzahl, 0);
    EXPECT_EQ(again.Combo1.entries().size(), 0U);
    EXPECT_EQ(again.Text2(1).text(), u"");
}

TEST_F(MasterDataScreen, FailsAtThe36thPupilAndLeavesTheListCutOff) {
    GsBasis& screen = unlocked(33);
    user::click(screen.Command4(2));
    user::click(screen.Command4(2));
    EXPECT_EQ(records(u"Namen.Txt"), 35);
    const Text pictures = installation.read(u"Daten/Bildliststeuer.Txt");
    EXPECT_EQ(failureOf([&] { user::click(screen.Command4(2)); }), "index-out-of-range");
    EXPECT_EQ(records(u"Namen.Txt"), 35);
    EXPECT_EQ(records(u"AVSVspeicher.txt"), 35);
    EXPECT_EQ(installation.read(u"Daten/Bildliststeuer.Txt"), pictures);
}

TEST_F(MasterDataScreen, OpensAClassOf35ButNotOf36) {
    prepare(35);
    EXPECT_EQ(opened().Combo1.entries().back(), u"35");
    GsBasis& screen = unlocked(35);
    const Text before = names();
    EXPECT_EQ(failureOf([&] { user::click(screen.Command4(1)); }), "index-out-of-range");
    EXPECT_EQ(names(), before);
    prepare(36);
    EXPECT_EQ(failureOf([&] { opened(); }), "index-out-of-range");
}

TEST_F(MasterDataScreen, TakesTheLastNumberOfAWronglyNumberedListForItsLength) {
    prepare(1);
    installation.write(u"Daten/Namen.Txt",
                       u"1,\"3a\",\"A\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
                       u"4,\"3b\",\"B\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
                       u"3,\"3c\",\"C\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    GsBasis& screen = opened();
    EXPECT_EQ(screen.Combo1.entries(), (std::vector<Text>{u"01", u"02", u"03"}));
    user::click(screen.Text1(6));
    user::click(screen.Command1(0));
    // C followed a 4, so it stood behind the end.
    EXPECT_EQ(names(), u"1,\"3c\",\"A\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
                       u"2,\"3c\",\"B\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
                       u"3,\"3c\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST_F(MasterDataScreen, ClosesTheGapOfADeletedPupilAndShowsTheFirst) {
    GsBasis& screen = unlocked(11);
    user::click(screen.Command1(0));
    user::pick(screen.Combo1, 9);
    user::click(screen.Command4(1));
    EXPECT_EQ(screen.Combo1.entries().back(), u"10");
    EXPECT_EQ(screen.Combo1.listIndex(), 0);
    EXPECT_EQ(screen.Text2(1).text(), u"N1");
    EXPECT_NE(names().find(u"\r\n10,\"3a\",\"N11\",\"V11\",\"m\""), Text::npos);
    EXPECT_EQ(records(u"34Speicher.txt"), 10);
    // The picture names stay at their places until the next full save.
    EXPECT_TRUE(installation.read(u"Daten/Bildliststeuer.Txt")
                    .ends_with(u"10,\"3a\",\"N11\",\"V11\",\"N10_V10_01022018\"\r\n"));

    user::pick(screen.Combo1, 9);
    user::click(screen.Command4(1));
    EXPECT_EQ(screen.Combo1.entries().back(), u"09");
    EXPECT_EQ(screen.Text2(1).text(), u"N1");
    EXPECT_EQ(names().find(u"N11"), Text::npos);
}

TEST_F(MasterDataScreen, BeginsANewListWhenTheOnlyPupilIsDeleted) {
    GsBasis& screen = unlocked(1);
    user::click(screen.Command4(1));
    EXPECT_EQ(names(), u"1,\"3a\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(screen.Combo1.entries(), std::vector<Text>{u"01"});
    EXPECT_EQ(screen.Text2(1).text(), u"");
    EXPECT_EQ(installation.read(u"Daten/34Sperre.txt"), u"");
}

TEST_F(MasterDataScreen, NewPupilsStartEmptyWhateverTheListHeldBefore) {
    GsBasis& screen = unlocked(3);
    user::click(screen.Command4(0));
    EXPECT_EQ(installation.read(u"Daten/AVSVspeicher.txt"), u"1,\"3a\",\"\",\"\",\"\",\"\"\r\n");
    // The first one is left with the option on that was on before.
    user::click(screen.Command4(2));
    EXPECT_EQ(names(), u"1,\"3a\",\"\",\"\",\"m\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
                       u"2,\"3a\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST_F(MasterDataScreen, SortsWholeRecordsAndKeepsEqualOnesInTheirOrder) {
    prepare(1);
    installation.klassenliste(u"3a", {{u"Müller", u"Anna", u"m"},
                                      {u"müller", u"Bernd", u"m"},
                                      {u"Albers", u"Carl", u"w"},
                                      {u"MÜLLER", u"ANNA", u"m"},
                                      {u"", u"Ohne", u"x"}});
    GsBasis& screen = unlockedAsItIs();
    user::click(screen.Command6);
    EXPECT_EQ(installation.read(u"Daten/Namen1.txt"),
              TestInstallation::lines({
                  u"\"\",\"Ohne\",\"x\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"",
                  u"\"Albers\",\"Carl\",\"w\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"",
                  u"\"Müller\",\"Anna\",\"m\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"",
                  u"\"MÜLLER\",\"ANNA\",\"m\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"",
                  u"\"müller\",\"Bernd\",\"m\",\"01.02.2018\",\"\",\"\",\"\",\"\",\"Ort\"",
              }));
    EXPECT_TRUE(names().starts_with(u"1,\"3a\",\"\",\"Ohne\",\"x\""));
    EXPECT_EQ(installation.read(u"Daten/AVSVspeicher.txt"), u"old");
    EXPECT_EQ(screen.Text2(2).text(), u"Ohne");
    EXPECT_EQ(screen.List2.entries().size(), 0U);
    EXPECT_TRUE(screen.Gespeichert);
}

TEST_F(MasterDataScreen, KeepsAnUnknownGenderUntilAnOptionIsOn) {
    prepare(1);
    installation.klassenliste(u"3a", {{u"A", u"B", u"d"}, {u"C", u"D", u"w"}, {u"E", u"F", u"M"}});
    GsBasis& screen = opened();
    EXPECT_FALSE(screen.Option1(0).value() || screen.Option1(1).value());
    user::pick(screen.Combo1, 1);
    user::pick(screen.Combo1, 2);
    EXPECT_TRUE(screen.Option1(1).value());
    EXPECT_EQ(screen.Liste.Kinder[2].Geschlecht, u"M");
}

TEST_F(MasterDataScreen, SavesTwentyFiveWorkingGroupsAndReadsAnyNumber) {
    prepare(1);
    Text many;
    for (int i = 1; i <= 27; ++i)
        many += u"\"AG " + textFromNumber(i) + u"\"\r\n" + (i == 2 ? u"\"\"\r\n" : u"");
    installation.write(u"Daten/AGListe.txt", many);
    GsBasis& screen = opened();
    EXPECT_EQ(screen.List1.entries().size(), 27U);
    user::click(screen.Text1(6));
    user::click(screen.Command1(0));
    EXPECT_EQ(opened().List1.entries().size(), 25U);
    EXPECT_EQ(opened().List1.entries().back(), u"AG 25");
}

TEST_F(MasterDataScreen, ReplacesElevenQuotesOfAWorkingGroupSilently) {
    GsBasis& screen = unlocked(1);
    machine->dialogs.shown.clear();
    machine->dialogs.inputs = {u"ł" + Text(12, u'"')};
    user::click(screen.Command2(0));
    EXPECT_EQ(screen.List1.entries().back(), u"l'''''''''''\"");
    EXPECT_TRUE(machine->dialogs.shown.empty());
}

TEST_F(MasterDataScreen, EndsTooHighWithoutTheFolderOfTheCopies) {
    GsBasis& screen = unlocked(1);
    installation.remove(u"Daten/Sicherheit");
    user::click(screen.Command1(0));
    EXPECT_EQ(machine->programm.directory().current(), installation.path().parent_path());
    EXPECT_FALSE(installation.has(u"Daten/Namen.Txt"));
}

TEST_F(MasterDataScreen, DeletesNothingWhereItCannotTellWhetherTheFolderIsThere) {
    GsBasis& screen = unlocked(1);
    installation.remove(u"Daten/Sicherheit");
    std::error_code failed;
    std::filesystem::create_directory_symlink("Sicherheit",
                                              installation.path() / "Daten/Sicherheit", failed);
    if (failed)
        GTEST_SKIP() << "no links here";
    user::click(screen.Command1(0));
    EXPECT_TRUE(installation.has(u"Daten/Namen.Txt"));
}

TEST_F(MasterDataScreen, BlanksTheStoresAgainAtTheSaveOnceDataWereUnlocked) {
    for (const bool school : {true, false}) {
        prepare(2);
        GsBasis& screen = opened();
        machine->dialogs.answers = {Antwort::Ja};
        user::click(school ? static_cast<Control&>(screen.Command3) : screen.Command5);
        installation.write(u"Daten/34Speicher.txt", u"meanwhile");
        user::click(screen.Command1(0));
        EXPECT_EQ(records(u"34Speicher.txt"), 2) << school;
    }
    prepare(2);
    GsBasis& locked = opened();
    installation.write(u"Daten/34Speicher.txt", u"kept");
    user::click(locked.Text1(6));
    user::click(locked.Command1(0));
    EXPECT_EQ(installation.read(u"Daten/34Speicher.txt"), u"kept");
}

TEST_F(MasterDataScreen, FailsOnDamagedFilesWhenItOpens) {
    const std::pair<TextView, TextView> damages[] = {{u"sib1undsib2.txt", u"\"A\"\r\n"},
                                                     {u"Sibankpfad.txt", u""},
                                                     {u"Basisdaten.txt", u"\"A\",\"B\"\r\n"},
                                                     {u"Namen.Txt", u"1,\"3a\",\"N\"\r\n"}};
    for (const auto& [file, content] : damages) {
        prepare(1);
        installation.basisdaten(u"2", u"X");
        installation.write(u"Daten/" + Text(file), content);
        EXPECT_EQ(failureOf([&] { opened(); }), "end-of-file") << utf8FromText(file);
    }
}

} // namespace
} // namespace zeugnis::test
