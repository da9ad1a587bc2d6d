#pragma once

#include "platform/text.h"

namespace zeugnis {

class ComboBox;
class Control;
class ListControl;
class Programm;
class Screen;
class TextBox;
class Timer;

/// What a user does to a control. Each action returns false, and nothing happens, if it would not
/// reach the control. This is the only way in for windows and for the driver.
namespace user {

/// A click moves the focus first if the control can hold it; the control that had it gets its
/// leave event. A click on any other control of another screen takes the focus away as well.
bool click(Control& control);
/// Click, then DblClick.
bool doubleClick(Control& control);
/// Only the DblClick, where the Click that belongs to it has been delivered before.
bool secondClick(Control& control);
/// Picks an entry that exists.
bool pick(ListControl& list, int index);
/// The focus comes without a click, as by Tab.
bool focus(Control& control);
/// The focus leaves the screen for a window of another program.
void blur(Screen& screen);

/// The actions on a text box move the focus to it without a click.
bool type(TextBox& box, TextView characters);
bool key(TextBox& box, char16_t key);
bool paste(TextBox& box, TextView text);
/// A key that has another use in its window: the key handler sees it, the text does not change.
bool keySeen(TextBox& box, char16_t key);

/// The same for the text of a combo.
bool type(ComboBox& combo, TextView characters);

/// Lets an enabled timer fire once.
bool tick(Timer& timer);
/// The close box of a window. Closing the start page ends the program.
void close(Screen& screen);

} // namespace user
} // namespace zeugnis
