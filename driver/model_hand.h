#pragma once

#include "driver/driver_machine.h"
#include "driver/hand.h"
#include "platform/plain_machine.h"

namespace zeugnis::driver {

/// Acts on the control model, without any window.
class ModelHand : public Hand {
  public:
    explicit ModelHand(DialogScript& script) : m_dialogs(script) {}

    Dialogs& dialogs() override { return m_dialogs; }
    Clipboard& clipboard() override { return m_clipboard; }

    void start(Programm& program) override;
    bool click(Control& control) override;
    bool doubleClick(Control& control) override;
    bool pick(ListControl& list, int entry) override;
    bool focus(Control& control) override;
    void blur(Screen& screen) override;
    void caret(TextBox& box, size_t start, size_t end) override;
    bool type(TextBox& box, const Text& characters) override;
    bool type(ComboBox& combo, const Text& characters) override;
    bool key(TextBox& box, char16_t key) override;
    bool paste(TextBox& box, const Text& text) override;
    void tick(Timer& timer) override;
    bool close(Screen& screen) override;

  private:
    ScriptedDialogs m_dialogs;
    PlainClipboard m_clipboard;
};

} // namespace zeugnis::driver
