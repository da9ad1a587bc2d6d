// The order of things: selecting, locking, clearing, saving and leaving.

#include "tests/years12/entry_screen_12.h"

namespace zeugnis::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(EntryScreen12, TakingTicksOffRunsForTheNewChild) {
    open(Lena, 0);
    choose({u"Option1(3)", u"Check1(1)"});
    select(Tim);
    EXPECT_EQ(text(0), u"") << "Tim's stored text gives way to what his choices yield";
    EXPECT_EQ(text(7), u"Tim hat viel gelernt.");
    EXPECT_TRUE(screen->Picture2.Visible);
    turnTo(7);
    click(u"Command4");
    choose({u"Check3(0)", u"Check3(1)"});
    select(Lena);
    EXPECT_EQ(text(0), u"Lena In3.\r\nLena Sport1. ");
    EXPECT_EQ(marked(), Names());
    turnTo(0);
    EXPECT_FALSE(control<CheckBox>(u"Check1(1)").value());
    EXPECT_EQ(marked(), Names{"Option1(3)"});
    turnTo(7);
    EXPECT_EQ(text(7), u"");
    choose({u"Check3(5)"});
    select(Tim);
    EXPECT_EQ(text(7), u"Im Fach Deutsch und Mathematik übt er weiter.") << "rebuilt as it was";
    turnTo(7);
    EXPECT_EQ(marked(), (Names{"Check3(0)", "Check3(1)", "Option23(0)", "Label5"}));
    EXPECT_FALSE(control<CheckBox>(u"Check3(0)").value());
}

TEST_F(EntryScreen12, SelectingClearsTheDotsButOne) {
    open(Lena, 5);
    choose({u"Option26(1)"});
    select(Emir);
    EXPECT_FALSE(isOn(u"Option26(1)"));
    choose({u"Option27(3)"});
    select(Mia);
    EXPECT_TRUE(isOn(u"Option27(3)"));
    EXPECT_EQ(marked(), Names());
    EXPECT_TRUE(click(u"Option27(3)"));
    EXPECT_EQ(text(5), u"") << "a click on what is on does nothing";
    turnTo(4);
    choose({u"Option28(1)"});
    EXPECT_EQ(text(4), u" Ma5-0.");
    select(Lena);
    EXPECT_FALSE(isOn(u"Option28(1)"));
    select(Mia);
    EXPECT_EQ(marked(), Names{"Option28(1)"}) << "choices stay with the child";
}

TEST_F(EntryScreen12, SelectingLocksWhatTheChildBeforeHasText) {
    open(Lena, 1);
    choose({u"Option2(1)"});
    user::click(screen->Text1(1));
    user::type(screen->Text1(1), u" Ja");
    turnTo(4);
    user::type(screen->Text1(4), u"getippt");
    select(Lena);
    EXPECT_EQ(text(1), u"Lena Sp1-1.  Ja");
    for (int area = 0; area < 8; ++area)
        EXPECT_EQ(screen->Speicher.Sperre[area][Lena], area == 1 || area == 4 ? 1 : 0);
    EXPECT_FALSE(click(u"Option14(0)"));
    EXPECT_EQ(screen->Command4.BackColor, Rot);
    turnTo(0);
    EXPECT_FALSE(screen->Picture2.Visible || screen->Command4.Enabled);
    EXPECT_EQ(screen->Command4.BackColor, Weiss);
    select(Mia);
    turnTo(3);
    EXPECT_TRUE(screen->Picture2.Visible) << "locked in the file without a text";
    EXPECT_FALSE(click(u"Option9(0)"));
}

TEST_F(EntryScreen12, NextChoiceOverwritesWhatWasTypedWithoutAClick) {
    open(Lena, 2);
    user::type(screen->Text1(2), u"von Hand");
    choose({u"Option45(1)"});
    EXPECT_EQ(text(2), u"Le6-1 ihr.");
    user::click(screen->Text1(2));
    EXPECT_FALSE(click(u"Option45(2)"));
    EXPECT_EQ(screen->Command3.Caption, u"Alle Eingaben beenden");
    user::click(screen->Command1(3));
    user::click(screen->Text1(3));
    EXPECT_FALSE(screen->Picture2.Visible) << "an empty text is not locked by a click";
    EXPECT_EQ(screen->Command4.BackColor, Rot);
    user::type(screen->Text1(3), u"<Er/Sie>");
    user::click(screen->Command4);
    EXPECT_EQ(text(3), u"");
    EXPECT_FALSE(screen->Command4.Enabled);
}

TEST_F(EntryScreen12, ResetOfAPageClearsItsChoicesButNoDots) {
    open(Lena, 1);
    choose({u"Option2(1)", u"Option44(2)"});
    user::click(screen->Text1(1));
    click(u"Command4");
    EXPECT_EQ(text(1), u"");
    EXPECT_EQ(marked(), Names());
    EXPECT_TRUE(isOn(u"Option44(2)"));
    choose({u"Option3(3)"});
    EXPECT_EQ(text(1), u"Sp2-3. ");
    turnTo(0);
    choose({u"Option1(5)", u"Check1(3)"});
    select(Tim);
    select(Lena);
    turnTo(0);
    click(u"Command4");
    EXPECT_TRUE(isOn(u"Option1(0)"));
    EXPECT_EQ(text(0), u"");
    choose({u"Option1(6)"});
    EXPECT_EQ(text(0), u"Lena In6.") << "the badges of the former visit are gone";
}

TEST_F(EntryScreen12, ResetOfPage7ReachesBadgesAndTwoChoices) {
    open(Lena, 1);
    choose({u"Option44(3)"});
    turnTo(0);
    choose({u"Option1(3)", u"Check1(0)"});
    turnTo(7);
    choose({u"Check3(4)", u"Check2(1)", u"Option21(2)"});
    EXPECT_EQ(text(7), u"Bemerkung.\r\nIm Fach Kunst übt sie weiter.\r\nLena Ve2.");
    user::click(screen->Text1(7));
    click(u"Command4");
    EXPECT_EQ(text(7), u"");
    EXPECT_EQ(text(0), u"Lena In3.");
    EXPECT_FALSE(control<CheckBox>(u"Check1(0)").value() || isOn(u"Option21(2)"));
    EXPECT_TRUE(control(u"Check3(4)").reachable());
    turnTo(1);
    EXPECT_EQ(text(1), u"Sp3-3.");
    EXPECT_EQ(marked(), Names{"Option44(0)"}) << "its choice went back to the first";
}

TEST_F(EntryScreen12, LineEndOfAVersetzungStaysUntilTheReset) {
    open(Lena, 7);
    choose({u"Check3(0)", u"Option21(0)"});
    select(Emir);
    choose({u"Check3(0)"});
    EXPECT_EQ(text(7), u"Im Fach Deutsch übt er weiter.\r\n");
    user::click(screen->Text1(7));
    click(u"Command4");
    choose({u"Check3(0)"});
    EXPECT_EQ(text(7), u"Im Fach Deutsch übt er weiter.");
}

TEST_F(EntryScreen12, TakesAListOf36) {
    Text names;
    for (int i = 1; i <= 36; ++i)
        names += textFromNumber(i) +
                 u",\"2b\",\"Meier\",\"Ute\",\"w\",\"01.02.2019\",\"\",\"\",\"\","
                 u"\"\",\"Ort\"\r\n";
    installation.write(u"Daten/Namen.Txt", names);
    open(35, 1);
    choose({u"Option2(1)"});
    user::click(screen->Command2);
    EXPECT_TRUE(
        installation.read(u"Daten/12Speicher.txt")
            .ends_with(u"\r\n36,\"2b\",\"Meier\",\"Ute\",\"\",\"Ute Sp1-1. \",\"\",\"\",\"\",\"\","
                       u"\"\",\"\"\r\n"));
}

} // namespace
} // namespace zeugnis::test
