#include "tests/years34/entry_screen_test.h"

namespace zeugnis::test {
namespace {

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
