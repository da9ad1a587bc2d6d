#include "toolkit/entry_combo.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace zeugnis {
namespace {

bool isLetter(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text()[0].isPrint() && !event.text()[0].isSpace() &&
           (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

} // namespace

// The style draws the entries of an opened list with the list's own rules only if the delegate is
// not the one that comes with the box.
void EntryCombo::showPopup() {
    if (qobject_cast<QStyledItemDelegate*>(itemDelegate()) == nullptr)
        setItemDelegate(new QStyledItemDelegate(this));
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
}

QString EntryCombo::shownText() const {
    return currentIndex() < 0 ? placeholderText() : currentText();
}

QString EntryCombo::elidedText() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return fontMetrics().elidedText(shownText(), Qt::ElideRight, room(option));
}

// The style counts whole pixels, and none for what it leaves free on both sides of the text.
QSize EntryCombo::wholeIn(QSize hint) const {
    if (sizeAdjustPolicy() == AdjustToMinimumContentsLengthWithIcon)
        return hint;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = QRect({}, hint);
    int longest = 0;
    for (int i = 0; i < count(); ++i)
        longest = std::max(longest, fontMetrics().horizontalAdvance(itemText(i)) + 1);
    return hint + QSize(std::max(0, longest - room(option)), 0);
}

int EntryCombo::room(const QStyleOptionComboBox& option) const {
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return field.width() - 2;
}

void EntryCombo::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = elidedText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool EntryCombo::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || elidedText() == shownText())
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shownText(), this);
    return true;
}

void EntryCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }

void EntryCombo::keyPressEvent(QKeyEvent* event) {
    if (!isLetter(*event))
        return QComboBox::keyPressEvent(event);
    if (findText(event->text(), Qt::MatchStartsWith) < 0)
        return event->ignore();
    showPopup();
    view()->keyboardSearch({}); // begins anew
    view()->keyboardSearch(event->text());
}

} // namespace zeugnis
