#pragma once

#include "platform/text.h"

#include <string_view>
#include <vector>

namespace zeugnis::safety {

/// A field with its place in the text of the file.
struct Field {
    Text value{};
    bool quoted = false;
    bool closed = true;    ///< a quoted one: its closing quote stands there
    bool trailing = false; ///< something stands between the closing quote and the next comma
    size_t begin = 0;      ///< with its quotes
    size_t end = 0;
};

struct Record {
    std::vector<Field> fields;
    bool complete = false; ///< a line end stands behind it
};

/// The lines of a file as they are, whatever they hold. Fields are told apart as the readers do,
/// but a record ends with its line.
std::vector<Record> recordsOf(TextView content);

} // namespace zeugnis::safety
