#include "desktop/rescue/termination.h"

#include "platform/end_signals.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <cstdlib>

namespace zeugnis {

Termination::Termination(std::function<void()> setDown, std::function<bool()> mayReturn)
    : m_setDown(std::move(setDown)), m_mayReturn(std::move(mayReturn)) {
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { m_setDown(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { m_setDown(); });
    const int wakes = watchEndSignals();
    if (wakes < 0)
        return;
    auto* notifier = new QSocketNotifier(wakes, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { end(); });
}

Termination::~Termination() { unwatchEndSignals(); }

// In the middle of a question nobody can answer for the teacher; a save that is under way is taken
// back at the next start.
void Termination::end() {
    m_setDown();
    if (m_mayReturn())
        QCoreApplication::exit(0);
    else
        std::_Exit(0);
}

} // namespace zeugnis
