#pragma once

#include "checks/spelling.h"

#include <memory>

namespace zeugnis {

/// German as Hunspell knows it; nullptr where no German dictionary is installed. Loading it takes
/// some tenths of a second.
std::unique_ptr<Rechtschreibung> DeutscheRechtschreibung();

} // namespace zeugnis
