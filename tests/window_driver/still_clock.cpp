#include "tests/window_driver/still_clock.h"

#include "controls/control.h"
#include "desktop/screen_window.h"
#include "toolkit/qt_text.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QTimer>
#include <QTimerEvent>

namespace zeugnis::windowdriver {

StillClock::StillClock() { qApp->installEventFilter(this); }

StillClock::~StillClock() { qApp->removeEventFilter(this); }

void StillClock::strike(QWidget& window, const Timer& timer) {
    auto* ticking =
        window.findChild<QTimer*>(qString(timer.fullName()), Qt::FindDirectChildrenOnly);
    if (ticking == nullptr || !ticking->isActive())
        return;
    const QScopedValueRollback strikes(m_strikes, true);
    QTimerEvent fires(ticking->timerId());
    QCoreApplication::sendEvent(ticking, &fires);
}

bool StillClock::eventFilter(QObject* watched, QEvent* event) {
    return event->type() == QEvent::Timer && !m_strikes &&
           qobject_cast<QTimer*>(watched) != nullptr &&
           dynamic_cast<ScreenWindow*>(watched->parent()) != nullptr;
}

} // namespace zeugnis::windowdriver
