#pragma once

#include "platform/text.h"

#include <chrono>
#include <functional>
#include <optional>

namespace zeugnis::safety {

/// What the clock on the wall shows; days are counted as the teacher counts them.
using Moment = std::chrono::sys_seconds;
using Clock = std::function<Moment()>;

Moment now();

std::chrono::sys_days dayOf(Moment moment);

/// "2026-11-23 07:00:59", and back.
std::string stampOf(Moment moment);
std::optional<Moment> momentFrom(std::string_view stamp);

/// "23.11.2026" and "07:00"
Text shownDay(Moment moment);
Text shownTime(Moment moment);

} // namespace zeugnis::safety
