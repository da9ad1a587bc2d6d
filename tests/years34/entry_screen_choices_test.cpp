#include "tests/years34/entry_screen_test.h"

namespace zeugnis::test {
namespace {

TEST_F(EntryScreen34, ShowsTheModulesOfYearAndHalfYear) {
    const struct {
        TextView klasse;
        TextView halfYear;
        TextView marks;
        TextView promotion;
    } cases[] = {
        {u"3a", u"1", u"weichen ab", u"<Er/Sie> wird versetzt"},
        {u"3a", u"2", u"weichen weiter ab", u"Versetzt am <Konferenz>"},
        {u"4c", u"1", u"weichen ab", u"4 1 1"},
        {u"4c", u"2", u"weichen weiter ab", u"4 2 1"},
        {u"4c", u"0", u"", u""},
    };
    for (const auto& one : cases) {
        pupils(one.klasse);
        installation.basisdaten(one.halfYear, u"Erika Lehrer");
        const GSAGFI& screen = open();
        EXPECT_EQ(screen.Label5.Caption, one.klasse);
        EXPECT_EQ(screen.Label9(1).Caption, one.marks);
        EXPECT_EQ(screen.Option4(0).Caption, one.promotion);
        EXPECT_EQ(screen.Label7(0).Caption, u"<Vorname> nahm am");
        EXPECT_EQ(screen.Check1(5).Caption, u"Motorik");
        EXPECT_EQ(screen.Label7(1).Caption, u"teil");
        EXPECT_EQ(screen.Option1(2).Caption, u"liest gern");
        EXPECT_EQ(screen.Check2(2).Caption, u"Sport");
        EXPECT_EQ(screen.Label9(0).Caption, u"Die Noten in");
        EXPECT_EQ(screen.Option2(1).Caption, u"<Er/Sie> übte");
        EXPECT_EQ(screen.Check5(4).Caption, u"sicher");
        EXPECT_EQ(screen.Option3(0).Caption, u"gut");
        EXPECT_EQ(screen.Label6.Caption, u"weiter so");
        EXPECT_EQ(screen.Option6(3).Caption, u"Es gab keine AG");
    }
}

TEST_F(EntryScreen34, SupportAndGroupsBecomeTwoLines) {
    GSAGFI& screen = openPage(Lena, 0);
    const Text three = u"Lena nahm am Lesen, Rechtschreiben und Mathematik teil.";
    user::click(screen.Check1(0));
    EXPECT_EQ(screen.Text1.text(), u"Lena nahm am Lesen teil.\r\n");
    user::click(screen.Check1(2));
    EXPECT_EQ(screen.Text1.text(), u"Lena nahm am Lesen und Mathematik teil.\r\n");
    user::click(screen.Check1(1));
    EXPECT_EQ(screen.Text1.text(), three + u"\r\n");
    user::click(screen.Option6(0));
    EXPECT_EQ(screen.Text1.text(),
              three +
                  u"\r\nLena hat an den Arbeitsgemeinschaften 'Chor' und 'Schach' teilgenommen.");
    user::click(screen.Option6(1));
    EXPECT_EQ(screen.Text1.text(), three + u"\r\nArbeitsgemeinschaften: 'Chor' und 'Schach'.");
    for (const auto* one : {&screen.Check1(1), &screen.Check1(2)})
        EXPECT_EQ(one->BackColor, Gruen);
    EXPECT_EQ(screen.Check1(3).BackColor, Weiss);
    EXPECT_EQ(screen.Label7(1).BackColor, Gruen);
    EXPECT_EQ(screen.Option6(0).BackColor, Weiss);
    EXPECT_EQ(screen.Option6(1).BackColor, Gruen);
    EXPECT_FALSE(screen.Command1(2).Enabled) << "choices of this page do not offer the reset";
    for (const int box : {0, 1, 2})
        user::click(screen.Check1(box));
    EXPECT_EQ(screen.Text1.text(), u"Arbeitsgemeinschaften: 'Chor' und 'Schach'.");
    EXPECT_EQ(screen.Staende[Lena].AGSatz, u"Arbeitsgemeinschaften: 'Chor' und 'Schach'....");
    EXPECT_EQ(screen.Label7(0).BackColor, Weiss);
    user::click(screen.Option6(2));
    EXPECT_EQ(screen.Text1.text(), u"Lena war in keiner AG.");
    user::pick(screen.Combo1, Tom);
    EXPECT_EQ(screen.Option6(0).Caption, u"Tom hat an der Arbeitsgemeinschaft '?????"
                                         u"' teilgenommen");
}

TEST_F(EntryScreen34, InterestAndBadgesBecomeTwoLines) {
    GSAGFI& screen = openPage(Lena, 1);
    user::click(screen.Check3(6));
    EXPECT_EQ(screen.Text2.text(), u"Sie kann Rad fahren. ");
    EXPECT_EQ(screen.Check3(6).BackColor, Fensterfarbe) << "pictures are not painted";
    EXPECT_TRUE(screen.Command1(2).Enabled);
    user::click(screen.Option1(1));
    user::click(screen.Check3(0));
    EXPECT_EQ(screen.Text2.text(),
              u"Lena malt gern.\r\nLena hat das Seepferdchen erworben. Sie kann Rad fahren. ");
    EXPECT_EQ(screen.Option1(1).BackColor, Gruen);
    user::click(screen.Option1(0)); // Kein Eintrag
    EXPECT_EQ(screen.Text2.text(), u"Lena hat das Seepferdchen erworben. Sie kann Rad fahren. ");
    EXPECT_EQ(std::pair(screen.Option1(0).BackColor, screen.Option1(1).BackColor),
              std::pair(Gruen, Weiss));
    user::click(screen.Option1(2));
    user::click(screen.Check3(0));
    user::click(screen.Check3(6));
    EXPECT_EQ(screen.Text2.text(), u"Lena liest gern.");

    installation.write(u"Daten/Interessen34.Txt", u"1,\"kein Eintrag\"\r\n");
    GSAGFI& other = openPage(Tom, 1);
    user::click(other.Option1(0));
    EXPECT_EQ(other.Text2.text(), u"Tom kein Eintrag.") << "the words are compared exactly";
}

TEST_F(EntryScreen34, RemarksAreReadFromLeftToRight) {
    installation.basisdaten(u"1", u"Erika Lehrer");
    GSAGFI& screen = openPage(Lena, 2);
    EXPECT_FALSE(screen.Check5(0).reachable() || screen.Option3(0).reachable());
    user::click(screen.Check2(0));
    user::click(screen.Check2(2));
    const Text marks = u"Die Noten in Deutsch und Sport weichen ab.\r\n";
    EXPECT_EQ(screen.Text3.text(), marks);
    EXPECT_EQ(screen.Label9(0).BackColor, Gruen);
    user::click(screen.Option2(0));
    EXPECT_EQ(screen.Text3.text(), marks + u"Lena lernte ");
    EXPECT_FALSE(screen.Option3(0).reachable());
    for (const int item : {2, 0, 1})
        ASSERT_TRUE(user::click(screen.Check5(item)));
    EXPECT_EQ(screen.Text3.text(), marks + u"Lena lernte gern, genau und fleißig ");
    ASSERT_TRUE(user::click(screen.Option3(0)));
    user::click(screen.Option4(0));
    EXPECT_EQ(screen.Text3.text(),
              marks + u"Lena lernte gern, genau und fleißig gut, weiter so.\r\nSie wird versetzt.");
    EXPECT_EQ(screen.Label6.BackColor, Gruen);

    // The options of the frame put one another out, but what was chosen keeps its colour.
    EXPECT_EQ(std::pair(screen.Option2(0).value(), screen.Option4(0).value()),
              std::pair(false, true));
    for (const auto* one : {&screen.Option2(0), &screen.Option3(0), &screen.Option4(0)})
        EXPECT_EQ(one->BackColor, Gruen);

    user::click(screen.Option3(1)); // without a caption
    user::click(screen.Option2(2));
    for (const int item : {0, 1, 2})
        user::click(screen.Check5(item));
    EXPECT_EQ(screen.Text3.text(), marks + u"\r\nSie wird versetzt.") << "an empty line is left";
    user::click(screen.Check2(0));
    user::click(screen.Check2(2));
    EXPECT_EQ(screen.Text3.text(), u"\r\nSie wird versetzt.");
    EXPECT_EQ(screen.Label9(0).BackColor, Gruen) << "nothing sets the opening back here";
}

TEST_F(EntryScreen34, CleanUpEatsTheLineEndBehindADoubledFullStop) {
    installation.records(u"Daten/Bemerkungen34.Txt",
                         {{u"<Vorname> lernte", u"gern", u"gut", u"weiter so."}});
    GSAGFI& screen = openPage(Lena, 2);
    user::click(screen.Option2(0));
    user::click(screen.Check5(0));
    user::click(screen.Option3(0));
    user::click(screen.Option4(0));
    EXPECT_EQ(screen.Text3.text(), u"Lena lernte gern gut, weiter so.Versetzt am 22.06.2027.");
}

TEST_F(EntryScreen34, BoxWithoutACaptionFailsInALargeClassBeforeTheFirstList) {
    const std::vector<Kind> eleven(11, Kind{u"Meier", u"Ute", u"w"});
    for (const bool large : {false, true}) {
        if (large)
            installation.klassenliste(u"3a", eleven);
        installation.write(u"Daten/Förder34.Txt", u"");
        GSAGFI& screen = openPage(0, 0);
        EXPECT_EQ(failureOf([&] { user::click(screen.Check1(0)); }),
                  large ? "index-out-of-range" : "none");
    }
}

} // namespace
} // namespace zeugnis::test
