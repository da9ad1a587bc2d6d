#pragma once

#include "controls/text_box.h"

#include <QPlainTextEdit>

namespace zeugnis {

class WindowHost;

/// The view of a text box. Typed keys go through the box's key handler, whatever keyboard or
/// input method they come from; everything else that edits (paste, delete, undo, drag and drop)
/// is Qt's own and arrives at the box as one change. Ctrl+Enter does what a double click does.
///
/// With one line only, Enter passes the key handler and goes on to the next field, Tab selects the
/// whole text, and pasted line ends become blanks; Shift+Enter and Ctrl+Shift+V put line ends in
/// all the same. One that grows does so too, but wraps a long text and is as high as that.
class TextEditor : public QPlainTextEdit {
    Q_OBJECT

  public:
    enum class Lines { Many, One, Grows };

    TextEditor(TextBox& box, WindowHost& host, QWidget* parent = nullptr,
               Lines lines = Lines::Many);

    /// Puts another text in and clicks into the box, as by hand.
    void replaceAll(const Text& text);
    /// The same with a part of it, from one place of documentText() up to the other.
    void replace(int from, int to, const Text& text);
    /// Nothing from before can be undone.
    void forgetHistory();

    /// Takes over what the box says. A text that this editor's own user brought about can be
    /// undone, word by word; any other starts a new history, so that undo never mixes two pupils.
    void refresh();

    [[nodiscard]] bool oneLine() const { return m_lines != Lines::Many; }
    /// The text with its characters as they are, places counted as the cursor counts them.
    [[nodiscard]] QString documentText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    /// Undo was asked for where nothing is left to undo.
    void nothingToUndo();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    [[nodiscard]] int textHeight() const;
    void growIfNeeded();
    [[nodiscard]] QString boxText() const;
    [[nodiscard]] Text incoming(const QString& text) const;
    void keepToOneLine();
    void enter();
    void selectInBox();
    void takeSelectionFromBox();
    void pasteAsItStands();
    void moveSelection(int to, bool copy);
    [[nodiscard]] Text textBetween(int from, int to) const;
    void ownAction(const std::function<void()>& action);
    void takeNativeChange();
    void showText(const QString& text);
    void replaceDifference(const QString& text);
    [[nodiscard]] bool goesOn(int start, int removed, const QString& inserted) const;

    TextBox& m_box;
    WindowHost& m_host;
    Lines m_lines;
    int m_grownTo = 0;
    bool m_refreshing = false;
    bool m_ownAction = false;
    bool m_followsBox = false;
    bool m_secondRelease = false;

    /// Where the next key would go on with what the last one has changed, and how; -1: nowhere.
    struct {
        int at = -1;
        bool removing = false;
        bool wasSpace = false;
    } m_going;
};

} // namespace zeugnis
