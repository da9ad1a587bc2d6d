#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The few calls by which the bytes of a file are touched. Each returns 0 or the number of the
/// error, as in <cerrno>.
namespace zeugnis::raw {

struct Content {
    std::string bytes;
    int error = 0;
};

Content read(const std::filesystem::path& path);

struct Opened {
    int handle = -1;
    int error = 0;
    bool created = false; ///< the opening has made the file
};

/// For writing from the start. What the file holds stays until it is written over.
Opened openForWriting(const std::filesystem::path& path);

/// Writes over the content from the start, cuts the file to that length, has the machine put it on
/// the disk and closes the file, whatever fails on the way. Gives the first error.
int replaceContentAndClose(int handle, std::string_view bytes);

int remove(const std::filesystem::path& path);

} // namespace zeugnis::raw
