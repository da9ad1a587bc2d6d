#include "tests/years34/entry_screen_test.h"

namespace zeugnis::test {
namespace {

TEST_F(EntryScreen34, LockFollowsTheBoxWhenItIsLeft) {
    GSAGFI& screen = openPage(Lena, 0);
    user::type(screen.Text1, u"Getippt.");
    user::focus(screen.Combo1);
    EXPECT_EQ(screen.Speicher.Texte[0][Lena], u"Getippt.");
    EXPECT_EQ(screen.Speicher.Sperren[0][Lena], 1);
    EXPECT_TRUE(user::click(screen.Check1(0))) << "the frame changes only with the next click";
    EXPECT_EQ(screen.Text1.text(), u"Lena nahm am Lesen teil.\r\n");
    user::click(screen.Command2(0));
    EXPECT_FALSE(user::click(screen.Check1(0)));
    screen.Text1.select(0, 99);
    user::paste(screen.Text1, u"");
    user::click(screen.Command2(0));
    EXPECT_TRUE(user::click(screen.Check1(1)));
}

TEST_F(EntryScreen34, ResetOfTheInterestsKeepsTheStoredTextForNow) {
    stored(u"\"\",\"alt\",\"\"", u"0,1,0");
    GSAGFI& screen = openPage(Lena, 1);
    user::click(screen.Command1(2));
    EXPECT_EQ(screen.Text2.text(), u"");
    EXPECT_TRUE(screen.Frame2.Enabled);
    user::click(screen.Command1(0));
    EXPECT_EQ(saved(u"34Speicher.txt", u"Lena"), u"\"\",\"alt\",\"\"\r\n");
    EXPECT_EQ(saved(u"34Sperre.txt", u"Lena"), u"0,1,0\r\n");

    // A badge that goes out composes the text anew.
    stored(u"\"\",\"\",\"\"", u"0,0,0");
    GSAGFI& other = openPage(Lena, 1);
    user::click(other.Option1(1));
    user::click(other.Check3(0));
    user::click(other.Command1(2));
    EXPECT_EQ(other.Speicher.Texte[1][Lena], u"");
    EXPECT_FALSE(other.Option1(1).value() || other.Check3(0).value());
    user::click(other.Check3(0));
    EXPECT_EQ(other.Text2.text(), u"Lena hat das Seepferdchen erworben. ");
}

TEST_F(EntryScreen34, ResetOfTheRemarksForgetsAllButAPromotionBesideTicks) {
    for (const bool ticked : {false, true}) {
        GSAGFI& screen = openPage(Lena, 2);
        user::click(screen.Option2(0));
        user::click(screen.Option4(1));
        if (ticked)
            user::click(screen.Check2(0));
        user::click(screen.Command1(2));
        EXPECT_EQ(screen.Text3.text(), u"");
        EXPECT_EQ(screen.Speicher.Texte[2][Lena], u"");
        EXPECT_FALSE(screen.Option4(1).value() || screen.Check2(0).value());
        EXPECT_EQ(screen.Option4(1).BackColor, Weiss);
        EXPECT_TRUE(screen.Check5(0).Enabled) << "once open, the list stays open";
        user::click(screen.Option2(1));
        EXPECT_EQ(screen.Text3.text(), u"Sie übte ");
        EXPECT_EQ(screen.Option2(0).BackColor, Weiss);
        // The tick that goes out notes the option that is still on.
        EXPECT_EQ(screen.Option4(1).BackColor, ticked ? Gruen : Weiss);
    }
}

TEST_F(EntryScreen34, TicksLeftBehindComposeForTheNextPupil) {
    const Text old = u"\"F alt\",\"I alt\",\"B alt\"";
    const struct {
        int page;
        CheckBox& (*box)(GSAGFI&);
        Text after;
    } cases[] = {
        {0, [](GSAGFI& s) -> CheckBox& { return s.Check1(3); }, u"\"\",\"I alt\",\"B alt\""},
        {1, [](GSAGFI& s) -> CheckBox& { return s.Check3(4); }, u"\"F alt\",\"\",\"B alt\""},
        {2, [](GSAGFI& s) -> CheckBox& { return s.Check2(1); }, u"\"F alt\",\"I alt\",\"\""},
    };
    for (const auto& one : cases) {
        stored(old, u"1,1,1");
        GSAGFI& screen = openPage(Tom, one.page);
        user::click(one.box(screen));
        user::pick(screen.Combo1, Lena);
        EXPECT_FALSE(one.box(screen).value() || screen.Picture2.Visible);
        user::click(screen.Command1(0));
        EXPECT_EQ(saved(u"34Speicher.txt", u"Lena"), one.after + u"\r\n");
    }
    // Options go out silently.
    stored(old, u"1,1,1");
    GSAGFI& screen = openPage(Tom, 0);
    user::click(screen.Option6(0));
    user::click(screen.Command2(2));
    user::click(screen.Option2(0));
    user::pick(screen.Combo1, Lena);
    EXPECT_TRUE(screen.Picture2.Visible);
    user::click(screen.Command1(0));
    EXPECT_EQ(saved(u"34Speicher.txt", u"Lena"), old + u"\r\n");
}

TEST_F(EntryScreen34, SentencesOfAnEarlierVisitComeBackInPart) {
    GSAGFI& screen = openPage(Lena, 0);
    user::click(screen.Option6(2));
    user::click(screen.Command2(1));
    user::click(screen.Option1(1));
    user::pick(screen.Combo1, Tom);
    user::pick(screen.Combo1, Lena);
    user::click(screen.Command2(0));
    EXPECT_TRUE(screen.Picture2.Visible);
    user::pick(screen.Combo1, Tom);
    user::click(screen.Check1(0));
    user::click(screen.Command2(1));
    user::click(screen.Check3(0));
    user::pick(screen.Combo1, Lena);
    EXPECT_EQ(screen.Text1.text(), u"Lena war in keiner AG.") << "the sentence was kept";
    EXPECT_EQ(screen.Text2.text(), u"") << "this one was not";
}

TEST_F(EntryScreen34, AsksOnLeavingUnlessSavedLastOrNoPageWasOpened) {
    const struct {
        void (*action)(GSAGFI&);
        bool asks;
    } cases[] = {
        {[](GSAGFI& s) { user::pick(s.Combo1, Lena); }, false},
        {[](GSAGFI& s) { user::click(s.Command2(0)); }, true},
        {[](GSAGFI& s) { user::click(s.Command1(0)); }, false},
        {[](GSAGFI& s) { user::click(s.Check1(0)); }, true},
        {[](GSAGFI& s) { user::click(s.Option6(0)); }, true},
        {[](GSAGFI& s) { user::click(s.Text1); }, true},
        {[](GSAGFI& s) { user::type(s.Text1, u"x"); }, false},
        {[](GSAGFI& s) { user::pick(s.Combo1, Tom); }, true},
        {[](GSAGFI& s) { s.Command1_Click(2); }, true},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        GSAGFI& screen = open();
        user::pick(screen.Combo1, Lena);
        if (i > 0) {
            user::click(screen.Command2(0));
            user::click(screen.Command1(0));
        }
        cases[i].action(screen);
        program->dialogs.answers = {Antwort::Nein};
        program->dialogs.shown.clear();
        user::click(screen.Command1(1));
        EXPECT_FALSE(isOpen());
        ASSERT_EQ(program->dialogs.shown.size(), cases[i].asks ? 1U : 0U) << i;
        if (cases[i].asks) {
            const Meldung& question = program->dialogs.shown[0];
            EXPECT_EQ(question.text, u"Wollen Sie die Eintragungen noch speichern?");
            EXPECT_EQ(question.titel, u"Zeugnisprogramm");
            EXPECT_EQ(question.symbol, Symbol::Frage);
            EXPECT_EQ(question.tasten, Tasten::JaNein);
        }
    }
}

TEST_F(EntryScreen34, SavesOnLeavingWithYesBeforeTheChoicesAreEmptied) {
    for (const Antwort answer : {Antwort::Nein, Antwort::Ja}) {
        GSAGFI& screen = openPage(Lena, 0);
        user::click(screen.Check1(0));
        program->programm.load(bildschirme::Einfuegungen);
        program->dialogs.answers = {answer};
        user::click(screen.Command1(1));
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(program->programm.find(bildschirme::Einfuegungen), nullptr);
        EXPECT_NE(program->programm.find(bildschirme::GsStart), nullptr);
        EXPECT_EQ(saved(u"34Speicher.txt", u"Lena"),
                  answer == Antwort::Ja ? u"\"Lena nahm am Lesen teil.\r\n\",\"\",\"\"\r\n"
                                        : u"\"\",\"\",\"\"\r\n");
    }
    EXPECT_EQ(saved(u"34Sperre.txt", u"Lena"), u"1,0,0\r\n");
    EXPECT_TRUE(installation.has(u"Daten/Sicherheit/34Sperre15.03.2027.txt"));
}

TEST_F(EntryScreen34, ShowsThePictureOrTheStandardOne) {
    installation.write(u"Bild/Bäcker_Lena_01022018.jpg", u"\u00FF\u00D8");
    GSAGFI& screen = open();
    user::pick(screen.Combo1, Lena);
    EXPECT_EQ(screen.Picture1.picture(), u"Bäcker_Lena_01022018.jpg");
    user::pick(screen.Combo1, Tom);
    EXPECT_EQ(screen.Picture1.picture(), u"SMILI.jpg");
}

TEST_F(EntryScreen34, TakesAClassOf36) {
    const std::vector<Kind> children(36, Kind{u"Meier", u"Ute", u"w"});
    installation.klassenliste(u"3a", children);
    installation.leereSpeicher(u"3a", children);
    GSAGFI& screen = openPage(35, 0);
    user::click(screen.Check1(5));
    user::click(screen.Command1(0));
    EXPECT_TRUE(
        installation.read(u"Daten/34Speicher.txt")
            .ends_with(u"\r\n36,\"3a\",\"Meier\",\"Ute\",\"Ute nahm am Motorik teil.\r\n\",\"\","
                       u"\"\"\r\n"));
}

} // namespace
} // namespace zeugnis::test
