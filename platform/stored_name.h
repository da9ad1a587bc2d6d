#pragma once

#include <filesystem>

namespace zeugnis {

/// The path of something that exists with its last part spelled as it stands on the disk. Where
/// case tells names apart that is the path itself.
std::filesystem::path asStored(const std::filesystem::path& existing);

} // namespace zeugnis
