#include "comfort/choice_memory.h"

#include "behaviour/avsv_entry_screen.h"
#include "tests/support/test_programm.h"
#include "tests/years12/entry_screen_12.h"
#include "years34/entry_screen.h"

namespace zeugnis::test {
namespace {

TEST_F(EntryScreen12, RepeatsTheChoicesOfAChildButForTheOneThatIsChangedFirst) {
    open(Tim, 4);
    Auswahlgedaechtnis memory(*EingabeschirmAus(*screen));
    const auto press = [&](TextView name) {
        EXPECT_TRUE(click(name)) << utf8FromText(name);
        memory.ansehen();
    };
    // Twice where the order of the presses makes the text: the sentence of Option35 is new.
    for (const TextView name : {u"Option14(2)", u"Option15(3)", u"Option35(1)", u"Option15(3)",
                                u"Option16(4)", u"Option28(1)", u"Option25(0)"})
        press(name);
    const Text whole = text(4);
    EXPECT_FALSE(memory.KannWiederholen()) << "all of it counts";
    select(Emir);
    memory.ansehen();
    select(Tim);
    memory.ansehen();
    EXPECT_EQ(text(4), whole);

    press(u"Command4");
    EXPECT_EQ(text(4), u"");
    EXPECT_EQ(memory.Fruehere().size(), 6U);
    ASSERT_TRUE(memory.Wiederholen());
    EXPECT_EQ(text(4), whole) << "although the dots stood where they had been";
    EXPECT_FALSE(memory.Wiederholen());

    press(u"Option16(1)");
    const Text changed = text(4);
    EXPECT_NE(changed, whole);
    press(u"Option16(4)");
    press(u"Text1(4)");
    press(u"Command4");
    press(u"Option16(1)");
    ASSERT_TRUE(memory.Wiederholen());
    EXPECT_EQ(text(4), changed);

    select(Emir);
    turnTo(7);
    for (const TextView name : {u"Check2(1)", u"Check3(0)", u"Check3(3)", u"Option21(1)"})
        press(name);
    const Text remarks = text(7);
    press(u"Text1(7)");
    press(u"Command4");
    ASSERT_TRUE(memory.Wiederholen());
    EXPECT_EQ(text(7), remarks);
}

TEST(ChoiceMemory, KeepsWhatTheStoreDropsForTheNextRunAsLongAsTheTextIsTheSame) {
    const TestInstallation installation;
    Text whole;
    {
        TestProgramm program(installation);
        auto& screen = program.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
        user::pick(screen.Combo1, 0);
        user::click(screen.Command2);
        for (const int k : {1, 3}) {
            user::click(screen.Command3(k));
            user::click(screen.Option1(k + 4));
        }
        whole = screen.Text1(1).text();
        user::click(screen.Command4);
    }
    for (const bool isOther : {false, true}) {
        TestProgramm program(installation);
        auto& screen = program.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
        Auswahlgedaechtnis memory(*EingabeschirmAus(screen));
        memory.Uebernehmen(AuswahlLesen(installation.path(), screen.name()));
        user::pick(screen.Combo1, 0);
        user::click(screen.Command2);
        memory.ansehen();
        // The pick has written the store, without choices.
        ASSERT_EQ(AuswahlSchreiben(installation.path(), screen.name(), memory.Aufzuheben()), 0);
        EXPECT_EQ(memory.Fruehere(), isOther ? std::vector<Text>()
                                             : std::vector<Text>({u"Command3(1) Option1(5)",
                                                                  u"Command3(3) Option1(7)"}));
        EXPECT_FALSE(memory.Wiederholen()) << "the text is locked";
        user::click(screen.Command3(3));
        user::click(screen.Command6);
        memory.ansehen();
        EXPECT_EQ(memory.Wiederholen(), !isOther);
        EXPECT_EQ(screen.Text1(1).text(), isOther ? Text() : whole);
        if (isOther)
            break;
        // A store from elsewhere, with another text.
        Text store = installation.read(u"Daten/AVSVspeicher.txt");
        store.replace(store.find(whole), whole.size(), u"Von Hand.");
        installation.write(u"Daten/AVSVspeicher.txt", store);
    }
}

TEST(ChoiceMemory, RepeatsAPageWhoseOptionsPutEachOtherOut) {
    const TemporaryFolder folder;
    std::filesystem::copy(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install", folder.path(),
                          std::filesystem::copy_options::recursive);
    TestProgramm running(folder);
    auto& screen = running.open<GSAGFI>(bildschirme::GSAGFI);
    Auswahlgedaechtnis memory(*EingabeschirmAus(screen));
    const auto press = [&](Control& control) {
        EXPECT_TRUE(user::click(control)) << utf8FromText(control.fullName());
        memory.ansehen();
    };
    user::pick(screen.Combo1, 1);
    user::click(screen.Command2(2));
    for (Control* control :
         std::initializer_list<Control*>{&screen.Check2(1), &screen.Option2(0), &screen.Check5(0),
                                         &screen.Check5(2), &screen.Option3(0), &screen.Option4(0)})
        press(*control);
    const Text whole = screen.Text3.text();
    press(screen.Command1(2));
    EXPECT_EQ(screen.Text3.text(), u"");
    EXPECT_EQ(memory.Fruehere().size(), 6U);
    ASSERT_TRUE(memory.Wiederholen());
    EXPECT_EQ(screen.Text3.text(), whole);
}

TEST(ChoiceMemory, FollowsAnUndoneReset) {
    const TestInstallation installation;
    TestProgramm program(installation);
    auto& screen = program.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    Auswahlgedaechtnis memory(*EingabeschirmAus(screen));
    user::pick(screen.Combo1, 0);
    user::click(screen.Command1);
    user::click(screen.Option1(5));
    memory.ansehen();
    const Text whole = screen.Text1(0).text();
    user::click(screen.Text1(0));
    user::click(screen.Command6);
    memory.ansehen();
    EXPECT_TRUE(memory.KannWiederholen());
    user::paste(screen.Text1(0), whole);
    memory.ansehen();
    EXPECT_FALSE(memory.KannWiederholen());
    EXPECT_EQ(memory.Fruehere().size(), 1U);
    EXPECT_EQ(memory.Aufzuheben().size(), 1U);
}

} // namespace
} // namespace zeugnis::test
