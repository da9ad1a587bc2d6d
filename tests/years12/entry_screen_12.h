#pragma once

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"
#include "tests/years12/klasse2b.h"
#include "years12/entry_screen.h"

namespace zeugnis::test {

constexpr int Lena = 0;
constexpr int Tim = 1;
constexpr int Emir = 2;
constexpr int Mia = 3;

constexpr Farbwert Weiss = 0xFFFFFF;
constexpr Farbwert Gruen = 0x80FF80;
constexpr Farbwert Rot = 0x0000FF;

/// The screen Kompetenzen on a copy of the class 2b. Controls are named as the driver names them.
class EntryScreen12 : public testing::Test {
  protected:
    void open() {
        program.emplace(installation);
        screen = &program->open<Kompetenzen>(bildschirme::Kompetenzen);
    }
    void open(int child, int page) {
        open();
        select(child);
        turnTo(page);
    }
    void select(int child) { user::pick(screen->Combo1, child); }
    void turnTo(int page) { user::click(screen->Command1(page)); }

    template <typename C = Control>
    C& control(TextView name) {
        Control* found = screen->find(name);
        if (found == nullptr)
            throw std::runtime_error("no control " + utf8FromText(name));
        return dynamic_cast<C&>(*found);
    }
    bool click(TextView name) { return user::click(control(name)); }
    void choose(std::initializer_list<TextView> names) {
        for (const TextView name : names)
            EXPECT_TRUE(click(name)) << utf8FromText(name);
    }
    bool isOn(TextView name) { return control<OptionButton>(name).value(); }
    Farbwert colour(TextView name) { return control(name).BackColor; }
    [[nodiscard]] const Text& text(int area) const { return screen->Text1(area).text(); }

    /// The options, boxes and labels of all pages that wear the mark.
    std::vector<std::string> marked() {
        std::vector<std::string> names;
        for (const Control* one : screen->controls())
            if (one->container() != nullptr && one->BackColor == Gruen)
                names.push_back(utf8FromText(one->fullName()));
        return names;
    }

    Klasse2b installation;
    std::optional<TestProgramm> program;
    Kompetenzen* screen = nullptr;
};

} // namespace zeugnis::test
