#pragma once

#include "platform/machine.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace zeugnis {

/// The window of a message or input box: a sign, a text that wraps, and German standard buttons.
class DialogBox : public QDialog {
    Q_OBJECT

  public:
    DialogBox(const QString& title, const QString& text, QWidget* owner);

    void setSign(Symbol symbol);
    void setButtons(Tasten tasten, Antwort standard);
    /// Adds a line to write in, with OK and Cancel below.
    QLineEdit* addInput();

    /// Shows the box and returns what was pressed. Where there is no other answer than Yes and
    /// No, the box cannot be closed without one.
    Antwort ask();

    void reject() override;

  private:
    void addButton(Antwort antwort, bool isDefault);

    QVBoxLayout* m_column;
    QDialogButtonBox* m_buttons;
    QLabel* m_sign;
    Antwort m_answer = Antwort::Abbrechen;
    bool m_closable = true;
};

} // namespace zeugnis
