#pragma once

#include "platform/text.h"

#include <filesystem>

namespace zeugnis {

/// Names of files as text and back. Bytes that are no UTF-8 become U+FFFD.
Text textFromPath(const std::filesystem::path& path);
std::filesystem::path pathFromText(TextView name);

} // namespace zeugnis
