#pragma once

#include "controls/control.h"

namespace zeugnis {

/// A text box. A line end in it is CR LF, two characters, and carets count both.
class TextBox : public Control {
  public:
    using Control::Control;
    [[nodiscard]] bool takesFocus() const override { return true; }

    [[nodiscard]] const Text& text() const { return m_text; }

    /// From code: another text puts the caret at its end and runs the change handler at once. It
    /// may come from the clipboard, so its characters take the form that the files can hold; line
    /// ends stay as they are.
    void setText(const Text& text);

    [[nodiscard]] size_t selectionStart() const { return m_start; }
    [[nodiscard]] size_t selectionEnd() const { return m_end; }

    /// Puts the selection between the two places, as far as the text reaches. No event.
    void select(size_t start, size_t end);

    /// A user's keys and pastes. They leave the text as it is while the box is locked, yet every
    /// typed key passes the key handler first.
    void userKey(char16_t key);
    void userType(TextView characters);
    void userReplaceSelection(TextView text);

    bool Locked = false;

    /// May change the key, or take it away by setting it to 0. Backspace arrives as 8.
    std::function<void(char16_t& key)> onKeyPress;
    Handler onChange;

  private:
    void replace(size_t start, size_t end, TextView text);

    Text m_text;
    size_t m_start = 0;
    size_t m_end = 0;
};

} // namespace zeugnis
