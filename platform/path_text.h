#pragma once

#include "platform/text.h"

#include <filesystem>

namespace zeugnis {

/// Names of files as text and back. Bytes that are no UTF-8 become U+FFFD.
Text textFromPath(const std::filesystem::path& path);
std::filesystem::path pathFromText(TextView name);

/// The same in UTF-8 with "/" between folders, as names stand in the program's own files. Nowhere
/// else are names of files kept in char: not every system would know them again.
std::string utf8FromPath(const std::filesystem::path& path);
std::filesystem::path pathFromUtf8(std::string_view name);

} // namespace zeugnis
