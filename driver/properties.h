#pragma once

#include "controls/control.h"

#include <optional>
#include <string>
#include <vector>

namespace zeugnis::driver {

/// The names of the properties that a control has.
std::vector<std::string> propertiesOf(const Control& control);

/// The value as it is printed, or nothing if the control has no such property.
std::optional<std::string> propertyValue(const Control& control, std::string_view property);

} // namespace zeugnis::driver
