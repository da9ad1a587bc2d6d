#pragma once

#include "platform/text.h"

#include <vector>

namespace zeugnis {

using Tabellenzeile = std::vector<Text>;

/// The text of a file that a spreadsheet wrote: UTF-8, with or without a mark in front, or
/// Windows-1252 where the bytes are no UTF-8.
Text textFromSpreadsheet(std::string_view bytes);

/// The cells of a text with one record a line. The sign between the cells is a semicolon, a tab or
/// a comma, whichever the first lines hold most of. A cell in double quotes may hold such signs and
/// line ends, and two quotes for one; line ends in it become blanks. Cells are trimmed, of tabs and
/// non-breaking blanks too. Lines without any content are there as empty records, so that the
/// number of a record is that of its place.
std::vector<Tabellenzeile> delimitedRecords(TextView text);

} // namespace zeugnis
