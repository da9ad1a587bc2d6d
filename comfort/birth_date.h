#pragma once

#include "platform/text.h"

#include <optional>

namespace zeugnis {

/// A birth date in one of the usual forms ("3.4.2018", "03.04.18", "3/4/2018", "2018-04-03",
/// "3. April 2018", "3. Apr. 18") as dd.mm.yyyy; none where it is no date of the calendar between
/// 1990 and 2099.
std::optional<Text> GeburtsdatumLesen(TextView text);

} // namespace zeugnis
