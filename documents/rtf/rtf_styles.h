#pragma once

#include "documents/model/styles.h"

#include <string>

namespace zeugnis::dokumente {

/// Font table, colour table and style sheet of a Rich Text file.
std::string rtfTables();

/// All properties of a style, as they stand at the beginning of each of its paragraphs: Rich Text
/// readers do not look them up in the style sheet.
std::string rtfProperties(const Style& style);

/// A line as borders have it: "\brdrs" with width and colour.
std::string rtfLine(Twips width, std::uint32_t colour);

} // namespace zeugnis::dokumente
