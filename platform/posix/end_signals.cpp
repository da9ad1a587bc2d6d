#include "platform/end_signals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace zeugnis {
namespace {

constexpr std::array Signals = {SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> ends = {-1, -1};

// Hardly anything may be called in here, so whoever reads is woken.
extern "C" void wake(int /*signal*/) {
    const char one = 1;
    [[maybe_unused]] const auto written = ::write(ends[1], &one, 1);
}

} // namespace

int watchEndSignals() {
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    for (const int one : Signals)
        std::signal(one, wake);
    return ends[0];
}

void unwatchEndSignals() {
    for (const int one : Signals)
        std::signal(one, SIG_DFL);
    for (int& end : ends)
        if (end >= 0)
            ::close(std::exchange(end, -1));
}

} // namespace zeugnis
