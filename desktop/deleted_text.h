#pragma once

#include "platform/text.h"

#include <QObject>

class QPushButton;

namespace zeugnis {

class Binder;
class Control;
class TextBox;
class TextEditor;

/// Offers the text of a box again that a button has emptied, until another child or page is chosen:
/// with a button of its own, and with undo in the box. It is put in and clicked as by hand, so it
/// is locked again where a click locks.
class DeletedText : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the offer. The editor of the box must have been made.
    DeletedText(Binder& binder, const Control& reset, TextBox& box, QPushButton& offer);

    /// Another child or page is chosen.
    void forget();

  private:
    void bringBack();
    void show();

    TextBox& m_box;
    TextEditor& m_editor;
    QPushButton& m_offer;
    Text m_before;
    Text m_deleted;
};

} // namespace zeugnis
