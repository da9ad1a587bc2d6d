#pragma once

#include "controls/text_box.h"

#include <QPlainTextEdit>

namespace zeugnis {

class WindowHost;

/// The view of a text box. Typed keys go through the box's key handler, whatever keyboard or
/// input method they come from; everything else that edits (paste, delete, undo, drag and drop)
/// is Qt's own and arrives at the box as one change.
class TextEditor : public QPlainTextEdit {
    Q_OBJECT

  public:
    TextEditor(TextBox& box, WindowHost& host, QWidget* parent = nullptr);

    /// Takes over what the box says. A text that this editor's own user brought about can be
    /// undone; any other starts a new history, so that undo never mixes two pupils.
    void refresh();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void selectInBox();
    void ownAction(const std::function<void()>& action);
    void takeNativeChange();
    void showText(const QString& text);
    void replaceDifference(const QString& text);

    TextBox& m_box;
    WindowHost& m_host;
    bool m_refreshing = false;
    bool m_ownAction = false;
    bool m_secondRelease = false;
};

} // namespace zeugnis
