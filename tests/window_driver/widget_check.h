#pragma once

#include <optional>
#include <string>

class QWidget;

namespace zeugnis {

class Control;

namespace windowdriver {

/// What the widget shows otherwise than its control says, or nothing.
std::optional<std::string> differenceBetween(const Control& control, const QWidget& widget);

/// Whether the window keeps the widget from being pressed although its control could be, so that
/// no accident acts.
bool isHeldBack(const QWidget& widget);

} // namespace windowdriver
} // namespace zeugnis
