#pragma once

#include "desktop/window_host.h"
#include "driver/hand.h"
#include "platform/failure.h"
#include "tests/window_driver/pressed_dialogs.h"

#include <QPointer>

#include <map>
#include <memory>

class QComboBox;
class QListWidget;

namespace zeugnis {

class TextEditor;

namespace windowdriver {

/// Acts on the real windows with mouse and keys. Nothing of it touches a control; it reads them to
/// know where the caret should be and to see that the windows show the same.
class WindowHand : public driver::Hand {
  public:
    WindowHand(std::ostream& out, driver::DialogScript& script);
    ~WindowHand() override;

    Dialogs& dialogs() override { return m_dialogs; }
    Clipboard& clipboard() override { return m_clipboard; }

    void start(Programm& program) override;
    void finish() override;
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
    Text clipboardText() override;
    void lookAt(const Control& control) override;
    bool ownCommand(const std::vector<driver::Word>& words) override;

  private:
    friend class OwnWords;

    struct Selection {
        size_t start;
        size_t end;
        Text of; ///< the text that it was made in
        QPointer<TextEditor> editor;
    };

    /// The control's widget in sight and in the front window, or null if no user can reach it.
    QWidget* reach(const Control& control);
    bool hasNoWidget(const Control& control);
    void clickAt(QWidget& widget, const QPoint& wished, bool twice = false);
    void clickBox(TextBox& box, TextEditor& editor);
    void doubleClickBox(TextBox& box, TextEditor& editor);
    static QPoint edgeOf(const QListWidget& list);
    void openList(QComboBox& combo);
    static void pickInOpenList(const QComboBox& combo, int entry);
    void pickInList(QListWidget& list, int entry);
    void giveFocus(Control& control, QWidget& widget);
    TextEditor* takeUp(TextBox& box);
    [[nodiscard]] Selection wantedSelection(const TextBox& box);
    void placeCaret(const TextBox& box, TextEditor& editor);
    void pressKey(const TextEditor& editor, char16_t key);
    TextEditor* editorOf(const TextBox& box) const;

    /// Ends an action: what went wrong in it comes out.
    void done();

    std::ostream& m_out;
    PressedDialogs m_dialogs;
    DesktopClipboard m_clipboard;
    std::unique_ptr<WindowHost> m_host;
    std::unique_ptr<QObject> m_clock;
    std::map<const TextBox*, Selection> m_selections;
    std::optional<Laufzeitfehler> m_failure;
};

} // namespace windowdriver
} // namespace zeugnis
