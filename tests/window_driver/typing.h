#pragma once

#include "platform/text.h"

#include <Qt>

class QPlainTextEdit;
class QWidget;

/// The keyboard of the hand. Keys go to the widget that has the focus.
namespace zeugnis::windowdriver::keyboard {

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// One character, by a key where there is one, otherwise as an input method delivers it.
void type(char16_t character);

/// Puts the text on the clipboard, pastes it and puts back what was there.
void paste(TextView text, Qt::KeyboardModifiers modifiers = Qt::ControlModifier);

/// Moves the caret of the box that has the focus to a selection, counted in its document.
void select(QPlainTextEdit& box, int start, int end);

} // namespace zeugnis::windowdriver::keyboard
