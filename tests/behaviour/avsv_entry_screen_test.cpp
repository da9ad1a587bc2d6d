#include "behaviour/avsv_entry_screen.h"

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"

namespace zeugnis::test {
namespace {

constexpr Farbwert Grau = 0xC0C0C0;
constexpr Farbwert Gelb = 0x00FFFF;
constexpr Farbwert FarbeZeile7 = 0xC0FFC0; // colour number 2

class AVSVEntryScreen : public testing::Test {
  protected:
    GsArbeitsverhalten& open() {
        program.emplace(installation);
        program->programm.show(bildschirme::GsStart);
        return program->open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    }
    // Tom Ahlers with one section open.
    GsArbeitsverhalten& openTom(Abschnitt section = Abschnitt::AV) {
        GsArbeitsverhalten& screen = open();
        user::pick(screen.Combo1, 0);
        user::click(section == Abschnitt::AV ? screen.Command1 : screen.Command2);
        return screen;
    }
    static void choose(GsArbeitsverhalten& screen, int category, int line) {
        ASSERT_TRUE(user::click(screen.Command3(category)));
        ASSERT_TRUE(user::click(screen.Option1(line)));
    }
    [[nodiscard]] bool isOpen() const {
        return program->programm.find(bildschirme::GsArbeitsverhalten) != nullptr;
    }
    [[nodiscard]] Text savedText() const {
        const Text content = installation.read(u"Daten/AVSVspeicher.txt");
        return content.substr(0, content.find(u'\r'));
    }

    TestInstallation installation;
    std::optional<TestProgramm> program;
};

TEST_F(AVSVEntryScreen, ButtonsOfTheCategoriesShowChoicesAndWhereOneIs) {
    GsArbeitsverhalten& screen = openTom();
    const auto colours = [&] {
        std::vector<Farbwert> found;
        screen.Command3.each([&](const Button& button) { found.push_back(button.BackColor); });
        return found;
    };
    using Colours = std::vector<Farbwert>;
    EXPECT_EQ(colours(), (Colours{Gelb, Grau, Grau, Grau, Grau, Grau, Grau}));
    choose(screen, 1, 7);
    user::click(screen.Command3(2));
    EXPECT_EQ(colours(), (Colours{Grau, FarbeZeile7, Gelb, Grau, Grau, Grau, Grau}));
    user::click(screen.Command3(1));
    EXPECT_FALSE(screen.Option1(7).value()) << "a choice shows in its button only";
    user::click(screen.Command1);
    EXPECT_EQ(colours(), (Colours{Gelb, FarbeZeile7, Grau, Grau, Grau, Grau, Grau}));
    EXPECT_EQ(screen.Frame1.Caption, u"AV 0");
    user::click(screen.Text1(0));
    EXPECT_EQ(colours(), Colours(7, Grau));
}

TEST_F(AVSVEntryScreen, FocusGoesIntoALockedTextAndElseToTheFirstCategory) {
    installation.write(u"Daten/AVSVspeicher.txt", u"1,\"3a\",\"Ahlers\",\"Tom\",\"Alt.\",\"\"\r\n");
    GsArbeitsverhalten& screen = openTom();
    EXPECT_EQ(program->programm.focus(), &screen.Text1(0));
    user::click(screen.Command2);
    EXPECT_EQ(program->programm.focus(), &screen.Command3(0));
    EXPECT_FALSE(screen.Text1(0).Enabled);
}

TEST_F(AVSVEntryScreen, NextChoiceOverwritesWhatWasTypedWithoutAClick) {
    GsArbeitsverhalten& screen = openTom();
    choose(screen, 0, 2);
    user::type(screen.Text1(0), u" Ja.");
    EXPECT_EQ(screen.Text1(0).text(), u"Tom a02. Ja.");
    user::click(screen.Command4);
    EXPECT_EQ(savedText(), u"1,\"3a\",\"Ahlers\",\"Tom\",\"Tom a02. Ja.\",\"\"");
    choose(screen, 1, 3);
    EXPECT_EQ(screen.Text1(0).text(), u"Tom a02 und a13.");
    EXPECT_EQ(screen.Speicher.AV.Gesperrt[0], 0);
}

TEST_F(AVSVEntryScreen, SavedCountsUntilPupilSectionOrCategoryIsSelected) {
    const struct {
        std::function<void(GsArbeitsverhalten&)> action;
        bool asks;
    } cases[] = {
        {[](auto& screen) { user::click(screen.Option1(1)); }, false},
        {[](auto& screen) { user::type(screen.Text1(0), u"x"); }, false},
        {[](auto& screen) { user::click(screen.Command3(1)); }, true},
        {[](auto& screen) { user::click(screen.Command2); }, true},
        {[](auto& screen) { user::pick(screen.Combo1, 0); }, true},
    };
    for (const auto& one : cases) {
        GsArbeitsverhalten& screen = openTom();
        user::click(screen.Command4);
        one.action(screen);
        program->dialogs.answers = {Antwort::Abbrechen};
        user::click(screen.Command5);
        EXPECT_EQ(isOpen(), one.asks);
        EXPECT_EQ(program->dialogs.answers.empty(), one.asks);
    }
}

TEST_F(AVSVEntryScreen, NeedsTheStandardPictureWhereAPupilHasNone) {
    installation.write(u"Bild/Ahlers_Tom_01022018.jpg", u"kein Bild");
    GsArbeitsverhalten& screen = open();
    user::pick(screen.Combo1, 0);
    EXPECT_EQ(screen.Picture1.picture(), u"SMILI.jpg");
    installation.remove(u"Bild/SMILI.jpg");
    EXPECT_EQ(failureOf([&] { user::pick(screen.Combo1, 1); }), "file-not-found");
}

TEST_F(AVSVEntryScreen, ColourNumberWithoutColourFailsWhenItsCategoryIsShown) {
    Text colours = installation.read(u"Daten/AVKategorien.txt");
    colours.replace(colours.find(u"1,2,3"), 1, u"11");
    installation.write(u"Daten/AVKategorien.txt", colours);
    EXPECT_EQ(failureOf([&] { openTom(Abschnitt::SV); }), "none");
    EXPECT_EQ(failureOf([&] { openTom(Abschnitt::AV); }), "index-out-of-range");
}

} // namespace
} // namespace zeugnis::test
