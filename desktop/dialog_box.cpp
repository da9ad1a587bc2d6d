#include "desktop/dialog_box.h"

#include "desktop/text_line_ends.h"
#include "desktop/theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <vector>

namespace zeugnis {
namespace {

struct Sign {
    QString letter;
    QColor colour;
};

Sign signOf(Symbol symbol) {
    switch (symbol) {
    case Symbol::Ausrufezeichen:
        return {QStringLiteral("!"), QColor(0xC7, 0x7A, 0x00)};
    case Symbol::Frage:
        return {QStringLiteral("?"), theme::colours().Accent};
    case Symbol::Stopp:
        return {QStringLiteral("×"), QColor(0xB3, 0x26, 0x1E)};
    case Symbol::Keins:
        break;
    }
    return {};
}

// Drawn in twice its size, so that it stays sharp on fine displays.
QPixmap pixmapOf(const Sign& sign) {
    constexpr int Size = 48;
    constexpr int Density = 2;
    QPixmap pixmap(Size * Density, Size * Density);
    pixmap.setDevicePixelRatio(Density);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sign.colour);
    painter.drawEllipse(2, 2, Size - 4, Size - 4);
    painter.setPen(Qt::white);
    painter.setFont(theme::font(theme::Size::Title, QFont::DemiBold));
    painter.drawText(QRect(0, 0, Size, Size), Qt::AlignCenter, sign.letter);
    return pixmap;
}

QDialogButtonBox::StandardButton standardButton(Antwort antwort) {
    switch (antwort) {
    case Antwort::Ja:
        return QDialogButtonBox::Yes;
    case Antwort::Nein:
        return QDialogButtonBox::No;
    case Antwort::Abbrechen:
        return QDialogButtonBox::Cancel;
    case Antwort::Ok:
        break;
    }
    return QDialogButtonBox::Ok;
}

std::vector<Antwort> answersOf(Tasten tasten) {
    switch (tasten) {
    case Tasten::JaNein:
        return {Antwort::Ja, Antwort::Nein};
    case Tasten::JaNeinAbbrechen:
        return {Antwort::Ja, Antwort::Nein, Antwort::Abbrechen};
    case Tasten::Ok:
        break;
    }
    return {Antwort::Ok};
}

} // namespace

DialogBox::DialogBox(const QString& title, const QString& text, QWidget* owner)
    : QDialog(owner), m_buttons(new QDialogButtonBox(this)), m_sign(new QLabel(this)) {
    setWindowTitle(title);
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(460);
    m_sign->hide();

    m_column = new QVBoxLayout;
    m_column->setSpacing(14);
    m_column->addWidget(label);
    auto* row = new QHBoxLayout;
    row->setSpacing(18);
    row->addWidget(m_sign, 0, Qt::AlignTop);
    row->addLayout(m_column, 1);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(22, 20, 22, 16);
    outer->setSpacing(18);
    outer->addLayout(row);
    outer->addWidget(m_buttons);
    outer->setSizeConstraint(QLayout::SetFixedSize);
}

void DialogBox::setSign(Symbol symbol) {
    m_sign->setVisible(symbol != Symbol::Keins);
    if (symbol != Symbol::Keins)
        m_sign->setPixmap(pixmapOf(signOf(symbol)));
}

void DialogBox::setButtons(Tasten tasten, Antwort standard) {
    for (const Antwort antwort : answersOf(tasten))
        addButton(antwort, antwort == standard);
    m_closable = tasten != Tasten::JaNein;
    m_answer = tasten == Tasten::Ok ? Antwort::Ok : Antwort::Abbrechen;
    setWindowFlag(Qt::WindowCloseButtonHint, m_closable);
}

void DialogBox::addButton(Antwort antwort, bool isDefault) {
    QPushButton* button = m_buttons->addButton(standardButton(antwort));
    button->setDefault(isDefault);
    if (isDefault)
        button->setFocus();
    connect(button, &QPushButton::clicked, this, [this, antwort] {
        m_answer = antwort;
        accept();
    });
}

QLineEdit* DialogBox::addInput() {
    auto* edit = new QLineEdit(this);
    // A pasted cell ends with a line end that nobody means.
    connect(edit, &QLineEdit::textChanged, edit, [edit](const QString& text) {
        if (const QString line = inOneLine(text); line != text) {
            const int cursor = edit->cursorPosition();
            edit->setText(line);
            edit->setCursorPosition(cursor);
        }
    });
    edit->setAccessibleName(windowTitle());
    m_column->addWidget(edit);
    addButton(Antwort::Ok, true);
    addButton(Antwort::Abbrechen, false);
    edit->setFocus();
    return edit;
}

Antwort DialogBox::ask() {
    const QPointer<QWidget> owner(parentWidget());
    exec();
    // Where there are several windows, the desktop might choose another.
    if (!owner.isNull())
        owner->activateWindow();
    return m_answer;
}

void DialogBox::reject() {
    if (m_closable)
        QDialog::reject();
}

} // namespace zeugnis
