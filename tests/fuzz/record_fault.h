#pragma once

#include <string>
#include <string_view>

namespace zeugnis::test {

/// Reads the bytes as records in all the ways the program does. Returns what is wrong, or an empty
/// text: every failure must be a Laufzeitfehler, and what was read must come back the same after
/// it was written.
std::string recordFault(std::string_view bytes);

} // namespace zeugnis::test
