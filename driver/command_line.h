#pragma once

#include "platform/text.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zeugnis::driver {

/// The command makes no sense. `what()` is UTF-8.
class CommandError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// One word of a command line; what stood in double quotes is a text, not a bare word.
struct Word {
    Text text;
    bool quoted = false;
};

/// Splits a UTF-8 line at blanks; texts stand in double quotes as JSON strings.
/// Throws CommandError if a text does not end or holds an unknown escape.
std::vector<Word> splitCommand(std::string_view line);

/// The text as a JSON string in UTF-8, quotes included. Letters stay as they are.
std::string jsonString(TextView text);

} // namespace zeugnis::driver
