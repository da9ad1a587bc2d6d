#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zeugnis::test {

/// The files that are damaged: all that the program reads, each in every way in which it does.
std::size_t damagedFiles();

/// Plays what reads file number `file` with these bytes in it. Returns what is wrong, or an empty
/// text: every failure must be a Laufzeitfehler with a sentence, and the fields of the bytes must
/// come back the same after they were written.
std::string fileFault(std::size_t file, std::string_view bytes);

} // namespace zeugnis::test
