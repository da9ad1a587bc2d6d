#pragma once

#include "toolkit/look.h"

#include <optional>

class QPalette;

namespace zeugnis::look {

/// As WCAG 2 measures it: 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// The colours for a system that is dark, or black on white throughout; none for any other.
std::optional<Colours> highContrastOf(const QPalette& system);

/// The style sheet with its colours replaced by these, each by what it is used for.
QString inHighContrast(const QString& styleSheet, const Colours& colours);

} // namespace zeugnis::look
