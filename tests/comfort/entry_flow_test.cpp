#include "comfort/entry_flow.h"

#include "behaviour/avsv_entry_screen.h"
#include "comfort/class_overview.h"
#include "folders/new_class.h"
#include "tests/support/test_programm.h"
#include "tests/years12/entry_screen_12.h"
#include "years34/entry_screen.h"

namespace zeugnis::test {
namespace {

TEST(EntryFlow, WritesWorkAndSocialBehaviourInTwentyEightKeys) {
    const TestInstallation installation;
    TestProgramm program(installation);
    auto& screen = program.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    Eingabefluss flow(*EingabeschirmAus(screen));
    EXPECT_FALSE(flow.Weiter(Richtung::Vor)) << "no child is chosen";
    EXPECT_FALSE(flow.Ziffer(3));
    int keys = 0;
    const auto press = [&](bool done) {
        EXPECT_TRUE(done) << "key " << keys;
        ++keys;
    };
    press(flow.KindWechseln(Richtung::Vor));
    press(flow.SeiteWechseln(Richtung::Vor));
    press(flow.Ziffer(1));
    for (int category = 1; category < KategorienAV + KategorienSV; ++category) {
        press(flow.Weiter(Richtung::Vor));
        press(flow.Ziffer(category % 10));
    }
    press(user::click(screen.Command4));
    EXPECT_EQ(keys, 28);
    for (int category = 1; category < KategorienAV; ++category)
        EXPECT_EQ(screen.Speicher.AV.Wahl[0][category], category);
    EXPECT_EQ(screen.Speicher.SV.Wahl[0][2], 9);
    EXPECT_EQ(screen.Speicher.SV.Wahl[0][3], 0);
    EXPECT_FALSE(flow.Weiter(Richtung::Vor)) << "behind the last one there is nothing";

    for (int category = KategorienSV - 1; category > 0; --category)
        EXPECT_TRUE(flow.Weiter(Richtung::Zurueck));
    EXPECT_TRUE(flow.Weiter(Richtung::Zurueck));
    EXPECT_EQ(screen.Bereich, Abschnitt::AV);
    EXPECT_EQ(screen.Kategorie, KategorienAV - 1) << "back to the last one of the section before";

    Klassenuebersicht overview(*EingabeschirmAus(screen));
    EXPECT_EQ(Klassenuebersicht::Satz(overview.Staende()), u"1 von 3 hat beide Texte");
    user::click(screen.Command2);
    EXPECT_TRUE(flow.KindOhneText());
    EXPECT_EQ(screen.Combo1.listIndex(), 1);
    EXPECT_EQ(screen.Bereich, Abschnitt::AV) << "not where the child before was left";
    EXPECT_TRUE(flow.KindOhneText());
    EXPECT_TRUE(flow.KindOhneText()) << "round to the second one, past who is finished";
    EXPECT_EQ(screen.Combo1.listIndex(), 1);
    EXPECT_FALSE(EingabeschirmAus(program.open<Screen>(bildschirme::GsStart)));
}

TEST(EntryFlow, LeavesALockedPageAlone) {
    const TestInstallation installation;
    TestProgramm program(installation);
    auto& screen = program.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    Eingabefluss flow(*EingabeschirmAus(screen));
    flow.KindWechseln(Richtung::Vor);
    flow.SeiteWechseln(Richtung::Vor);
    flow.Ziffer(1);
    user::click(screen.Text1(0));
    const Text text = screen.Text1(0).text();
    EXPECT_FALSE(flow.Ziffer(2));
    EXPECT_TRUE(flow.Weiter(Richtung::Vor));
    EXPECT_FALSE(flow.Ziffer(2));
    EXPECT_EQ(screen.Text1(0).text(), text);
}

TEST_F(EntryScreen12, GoesFromGroupToGroupByKeys) {
    open();
    Eingabefluss flow(*EingabeschirmAus(*screen));
    int keys = 0;
    const auto press = [&](bool done) {
        EXPECT_TRUE(done) << "key " << keys;
        ++keys;
    };
    press(flow.KindWechseln(Richtung::Vor));
    std::set<Text> groups;
    while (screen->aktSeite < jahrgang12::SeiteBemerkungen) {
        const Control* group = flow.Stelle();
        ASSERT_NE(group, nullptr);
        if (!groups.insert(group->fullName()).second || group->name() == u"Check1")
            press(flow.SeiteWechseln(Richtung::Vor));
        else
            press(flow.Ziffer(2) || flow.Ziffer(1));
    }
    // Remarks: one subject, moving up; then the save.
    keys += 4;
    EXPECT_LE(keys, 60);
    EXPECT_GE(groups.size(), 30U);
    for (int area = 0; area < jahrgang12::SeiteBemerkungen; ++area)
        EXPECT_NE(text(area), u"") << area;

    EXPECT_TRUE(flow.Weiter(Richtung::Zurueck));
    EXPECT_EQ(screen->aktSeite, jahrgang12::SeiteBemerkungen - 1);
    EXPECT_EQ(flow.Stelle()->name(), u"Option34") << "its last group";
    flow.StelleMerken(control(u"Option30(2)"));
    EXPECT_TRUE(flow.Weiter(Richtung::Vor));
    EXPECT_EQ(flow.Stelle()->name(), u"Option31");
}

TEST(EntryFlow, DigitsTickBoxesAndStayThere) {
    const TemporaryFolder folder;
    ASSERT_EQ(BeispielklasseAnlegen(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) / "install",
                                    folder.path()),
              u"");
    TestProgramm program(folder);
    auto& screen = program.open<GSAGFI>(bildschirme::GSAGFI);
    user::pick(screen.Combo1, 3);
    user::click(screen.Command2(0));
    user::click(screen.Text1);
    user::click(screen.Command1(2));
    Eingabefluss flow(*EingabeschirmAus(screen));
    EXPECT_TRUE(flow.Ziffer(1));
    EXPECT_TRUE(flow.Ziffer(2));
    EXPECT_TRUE(screen.Check1(0).value() && screen.Check1(1).value());
    EXPECT_FALSE(flow.Ziffer(9));
    EXPECT_TRUE(flow.Weiter(Richtung::Vor));
    EXPECT_TRUE(flow.Ziffer(2));
    EXPECT_TRUE(screen.Option6(1).value());
    EXPECT_FALSE(flow.Weiter(Richtung::Zurueck) && flow.Weiter(Richtung::Zurueck));
}

} // namespace
} // namespace zeugnis::test
