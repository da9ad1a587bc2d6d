#include "toolkit/entry_combo.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

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

void EntryCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }

void EntryCombo::keyPressEvent(QKeyEvent* event) {
    if (!isLetter(*event))
        return QComboBox::keyPressEvent(event);
    showPopup();
    view()->keyboardSearch({}); // begins anew
    view()->keyboardSearch(event->text());
}

} // namespace zeugnis
