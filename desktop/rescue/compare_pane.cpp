#include "desktop/rescue/compare_pane.h"

#include "desktop/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace zeugnis {

ComparePane::ComparePane(const QString& left, const QString& right, QWidget* parent)
    : QWidget(parent) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(10);
    m_left = column(left);
    m_right = column(right);
}

QPlainTextEdit* ComparePane::column(const QString& heading) {
    auto* box = new QVBoxLayout;
    box->setSpacing(4);
    auto* label = new QLabel(heading, this);
    label->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    auto* text = new QPlainTextEdit(this);
    text->setReadOnly(true);
    text->setStyleSheet(
        QStringLiteral("QPlainTextEdit { background: %1; }").arg(theme::colours().Surface.name()));
    text->setTabChangesFocus(true);
    text->setAccessibleName(heading);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setBuddy(text);
    box->addWidget(label);
    box->addWidget(text, 1);
    dynamic_cast<QHBoxLayout&>(*layout()).addLayout(box, 1);
    return text;
}

void ComparePane::show(const QString& left, const QString& right) {
    m_left->setPlainText(left);
    m_right->setPlainText(right);
}

QString ComparePane::leftText() const { return m_left->toPlainText(); }

} // namespace zeugnis
