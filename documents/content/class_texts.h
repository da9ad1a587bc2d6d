#pragma once

#include "documents/content/school_report.h"

#include <string>

namespace zeugnis::dokumente {

/// All that is written about a class as a table for a spreadsheet: one line per child; UTF-8 with
/// its mark in front, semicolons, every field in quotes, line ends inside of a text as LF.
std::string KlassentexteAlsCsv(const Zeugnisdaten& daten);

} // namespace zeugnis::dokumente
