#include "controls/user_actions.h"

#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/text_box.h"

namespace zeugnis::user {
namespace {

bool arrives(const Control& control) {
    return !control.screen().programm().ended() && control.reachable();
}

void moveFocusForClick(Control& control) {
    Programm& programm = control.screen().programm();
    if (control.takesFocus())
        programm.moveFocus(&control);
    else if (programm.focus() != nullptr && &programm.focus()->screen() != &control.screen())
        programm.moveFocus(nullptr);
}

void deliverClick(Control& control) {
    if (auto* option = dynamic_cast<OptionButton*>(&control))
        option->setValue(true);
    else if (auto* check = dynamic_cast<CheckBox*>(&control))
        check->setValue(!check->value());
    else if (dynamic_cast<ListControl*>(&control) == nullptr && control.onClick)
        control.onClick();
}

// Runs one action with the focus moved to the control, as far as the action reaches it.
template <typename Action>
bool withFocus(Control& control, Action action) {
    if (!arrives(control))
        return false;
    const Programm::Task task(control.screen().programm());
    control.screen().programm().moveFocus(&control);
    action();
    return true;
}

} // namespace

bool click(Control& control) {
    if (!arrives(control))
        return false;
    const Programm::Task task(control.screen().programm());
    moveFocusForClick(control);
    deliverClick(control);
    return true;
}

bool doubleClick(Control& control) {
    const Programm::Task task(control.screen().programm());
    if (!click(control))
        return false;
    secondClick(control);
    return true;
}

bool secondClick(Control& control) {
    if (!arrives(control))
        return false;
    const Programm::Task task(control.screen().programm());
    if (control.onDblClick)
        control.onDblClick();
    return true;
}

bool pick(ListControl& list, int index) {
    return withFocus(list, [&] { list.userPick(index); });
}

bool focus(Control& control) {
    return control.takesFocus() && withFocus(control, [] {});
}

void blur(Screen& screen) {
    Programm& programm = screen.programm();
    const Programm::Task task(programm);
    if (!programm.ended() && programm.focus() != nullptr && &programm.focus()->screen() == &screen)
        programm.moveFocus(nullptr);
}

bool type(TextBox& box, TextView characters) {
    return withFocus(box, [&] { box.userType(characters); });
}

bool key(TextBox& box, char16_t key) {
    // A character goes the way of typing, where it takes the form that the files can hold.
    return withFocus(box, [&] {
        if (key < u' ')
            box.userKey(key);
        else
            box.userType(TextView(&key, 1));
    });
}

bool paste(TextBox& box, TextView text) {
    return withFocus(box, [&] { box.userReplaceSelection(text); });
}

bool keySeen(TextBox& box, char16_t key) {
    return withFocus(box, [&] {
        if (box.onKeyPress)
            box.onKeyPress(key);
    });
}

bool type(ComboBox& combo, TextView characters) {
    return withFocus(combo, [&] { combo.userType(characters); });
}

bool tick(Timer& timer) {
    const Programm::Task task(timer.screen().programm());
    if (timer.screen().programm().ended() || !timer.Enabled)
        return false;
    if (timer.onTimer)
        timer.onTimer();
    return true;
}

void close(Screen& screen) {
    Programm& programm = screen.programm();
    const Programm::Task task(programm);
    if (&screen == programm.startScreen())
        programm.end();
    else
        programm.unload(screen.name());
}

} // namespace zeugnis::user
