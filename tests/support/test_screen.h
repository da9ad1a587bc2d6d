#pragma once

#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "controls/user_actions.h"
#include "tests/support/test_programm.h"

namespace zeugnis::test {

using Log = std::vector<std::string>;

/// A screen with some of each kind of control. Every event leaves a line in the log, with the
/// name of the screen: "A.Command1 Click".
class TestScreen : public Screen {
  public:
    TestScreen(Programm& programm, TextView name, Log& log)
        : Screen(programm, name, name), m_log(log) {
        for (Control* control : controls()) {
            control->onClick = note(*control, "Click");
            control->onDblClick = note(*control, "DblClick");
            control->onLostFocus = note(*control, "LostFocus");
        }
        Text1.each([this](TextBox& box) {
            box.onChange = note(box, "Change");
            box.onKeyPress = [this, &box](char16_t& key) {
                note(box, ("Key" + std::to_string(key)).c_str())();
            };
        });
        Timer1.onTimer = note(Timer1, "Timer");
    }
    ~TestScreen() override { m_log.push_back(utf8FromText(name()) + " destroyed"); }

    void load() override { m_log.push_back(utf8FromText(name()) + " load"); }

    using Screen::setFocus;

    Frame Frame1{*this, u"Frame1"};
    Frame Frame2{*this, u"Frame2", {}, &Frame1};
    ControlArray<OptionButton> Option1{*this, u"Option1", 0, 2, &Frame1};
    ControlArray<OptionButton> Option2{*this, u"Option2", 0, 1, &Frame1};
    ControlArray<OptionButton> Option3{*this, u"Option3", 1, 2, &Frame2};
    CheckBox Check1{*this, u"Check1", {}, &Frame2};
    Button Command1{*this, u"Command1"};
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 1};
    ListBox List1{*this, u"List1"};
    ComboBox Combo1{*this, u"Combo1"};
    Label Label1{*this, u"Label1"};
    Timer Timer1{*this, u"Timer1"};

  private:
    Handler note(const Control& control, const char* event) {
        return [this, line = utf8FromText(name() + u"." + control.fullName()) + " " + event] {
            m_log.push_back(line);
        };
    }

    Log& m_log;
};

/// A program with the screens A (shown) and B (not loaded).
class ControlsTest : public testing::Test {
  protected:
    ControlsTest() : m_machine(m_folder.path()), programm(m_machine.programm) {
        for (const TextView name : {u"A", u"B"})
            programm.registerScreen(name, [this, name](Programm& running) {
                return std::make_unique<TestScreen>(running, name, log);
            });
        a = &open(u"A");
        log.clear();
    }

    TestScreen& open(TextView name) {
        programm.show(name);
        return dynamic_cast<TestScreen&>(*programm.find(name));
    }

    /// What has happened since it was last asked for.
    Log happened() { return std::exchange(log, {}); }

  private:
    TemporaryFolder m_folder;

  protected:
    Log log;

  private:
    EmptyProgramm m_machine;

  protected:
    Programm& programm;
    TestScreen* a = nullptr;
};

} // namespace zeugnis::test
