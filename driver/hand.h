#pragma once

#include "driver/command_line.h"
#include "platform/machine.h"

#include <vector>

namespace zeugnis {

class ComboBox;
class Control;
class ListControl;
class Programm;
class Screen;
class TextBox;
class Timer;

namespace driver {

/// What carries out the commands that act on a screen, and the part of the machine that a user
/// would touch. Actions return false, and nothing happens, if they would not reach the control;
/// the control may be gone after one that did. A run-time failure of the program comes out of them
/// as a Laufzeitfehler, a question that nobody answers as a CommandError.
class Hand {
  public:
    virtual ~Hand() = default;

    virtual Dialogs& dialogs() = 0;
    virtual Clipboard& clipboard() = 0;

    /// `start` with the running program: at first it has no screens.
    virtual void start(Programm& program) = 0;
    /// Lets go of the program, which ends.
    virtual void finish() {}

    virtual bool click(Control& control) = 0;
    virtual bool doubleClick(Control& control) = 0;
    virtual bool pick(ListControl& list, int entry) = 0;
    virtual bool focus(Control& control) = 0;
    virtual void blur(Screen& screen) = 0;
    /// Places count the characters of the box's text; they may lie behind its end.
    virtual void caret(TextBox& box, size_t start, size_t end) = 0;
    virtual bool type(TextBox& box, const Text& characters) = 0;
    virtual bool type(ComboBox& combo, const Text& characters) = 0;
    virtual bool key(TextBox& box, char16_t key) = 0;
    virtual bool paste(TextBox& box, const Text& text) = 0;
    virtual void tick(Timer& timer) = 0;
    virtual bool close(Screen& screen) = 0;

    /// What lies on the clipboard.
    virtual Text clipboardText() { return clipboard().text(); }

    /// Called before a property of the control is read.
    virtual void lookAt(const Control& /*control*/) {}

    /// A command of this hand's own; false if there is none of that name.
    virtual bool ownCommand(const std::vector<Word>& /*words*/) { return false; }
};

} // namespace driver
} // namespace zeugnis
