#pragma once

#include "platform/text.h"

#include <string>

namespace zeugnis::dokumente {

/// The text as it stands in Rich Text: only ASCII, with every other character as its byte in
/// Windows-1252, or as its number with the nearest letter of that code page behind it.
/// "\n" becomes a line break.
std::string rtfText(TextView text);

/// A control word with its number, for example "\sa120".
std::string rtfNumber(const char* word, int number);

} // namespace zeugnis::dokumente
