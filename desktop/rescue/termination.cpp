#include "desktop/rescue/termination.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace zeugnis {
namespace {

constexpr std::array Signals = {SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> ends = {-1, -1};

// Hardly anything may be called in here, so the event loop is woken.
extern "C" void wake(int /*signal*/) {
    const char one = 1;
    [[maybe_unused]] const auto written = ::write(ends[1], &one, 1);
}

} // namespace

Termination::Termination(std::function<void()> setDown, std::function<bool()> mayReturn)
    : m_setDown(std::move(setDown)), m_mayReturn(std::move(mayReturn)) {
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { m_setDown(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { m_setDown(); });
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { end(); });
    for (const int one : Signals)
        std::signal(one, wake);
}

Termination::~Termination() {
    for (const int one : Signals)
        std::signal(one, SIG_DFL);
    for (int& end : ends)
        if (end >= 0)
            ::close(std::exchange(end, -1));
}

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
