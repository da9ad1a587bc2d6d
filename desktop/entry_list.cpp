#include "desktop/entry_list.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include <utility>

namespace zeugnis {

void EntryList::highlight(int row) {
    if (row >= 0)
        setCurrentRow(row);
    else
        selectionModel()->clear();
}

void EntryList::pickCurrent() {
    if (currentRow() >= 0)
        emit picked(currentRow());
}

void EntryList::keyPressEvent(QKeyEvent* event) {
    // Alt with a letter and Escape are the window's.
    if (event->modifiers().testFlag(Qt::AltModifier) || event->key() == Qt::Key_Escape)
        return event->ignore();
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                          event->key() == Qt::Key_Space;
    if (confirms)
        event->accept();
    if (confirms || currentRow() != before)
        pickCurrent();
}

void EntryList::mousePressEvent(QMouseEvent* event) {
    m_pressedEntry = event->button() == Qt::LeftButton && indexAt(event->pos()).isValid() &&
                     indexAt(event->pos()).flags().testFlag(Qt::ItemIsEnabled);
    QListWidget::mousePressEvent(event);
}

void EntryList::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (std::exchange(m_pressedEntry, false))
        pickCurrent();
}

// The first click has picked already.
void EntryList::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

// A list that gets the keyboard would take its first entry for the current one.
void EntryList::focusInEvent(QFocusEvent* event) {
    const bool none = currentRow() < 0;
    QListWidget::focusInEvent(event);
    if (none)
        highlight(-1);
}

QItemSelectionModel::SelectionFlags EntryList::selectionCommand(const QModelIndex& index,
                                                                const QEvent* /*event*/) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

} // namespace zeugnis
