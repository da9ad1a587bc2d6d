#pragma once

#include <ctime>
#include <optional>

namespace zeugnis {

/// The moment on the clock of this machine; nothing for one that it cannot tell.
std::optional<std::tm> localTime(std::time_t moment);

} // namespace zeugnis
