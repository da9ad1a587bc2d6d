#include "desktop/busy_pointer.h"

#include <QApplication>

#include <utility>

namespace zeugnis {

void BusyPointer::work() {
    if (!std::exchange(m_shown, true))
        QApplication::setOverrideCursor(Qt::WaitCursor);
}

void BusyPointer::rest() {
    if (std::exchange(m_shown, false))
        QApplication::restoreOverrideCursor();
}

} // namespace zeugnis
