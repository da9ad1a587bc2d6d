#pragma once

#include <filesystem>
#include <string>

/// Takes the place of platform/raw_file.cpp where it is linked in: files are read from the disk
/// once, and whatever is written stays in memory.
namespace zeugnis::test::memory_files {

/// What the file holds from now on.
void put(const std::filesystem::path& path, std::string bytes);

/// Forgets all that was put or written.
void reset();

} // namespace zeugnis::test::memory_files
