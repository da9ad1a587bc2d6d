#pragma once

#include <cstdint>
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

/// Whether an error says that there is no more room, on the disk or for this user.
bool meansFull(int error);

Content read(const std::filesystem::path& path);

/// When the file was last written, in the machine's own finest steps; 0 if there is none. Two
/// values tell whether it was written in between, and nothing else.
std::int64_t writtenAt(const std::filesystem::path& path);

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

/// A new file for writing; an error if there is anything of this name.
Opened createNew(const std::filesystem::path& path);

int write(int handle, std::string_view bytes);
int truncate(int handle, size_t length);
/// Has the machine put the file on the disk.
int sync(int handle);
int close(int handle);

/// The exclusive lock of an open file, until it is closed or the program ends in any way.
enum class Lock {
    Taken,
    Held,       ///< by another opening of the file
    NotOffered, ///< files cannot be locked here
};
Lock tryLock(int handle);

int rename(const std::filesystem::path& from, const std::filesystem::path& to);

/// Puts the names in a folder on the disk: new ones, new names and deletions.
int syncFolder(const std::filesystem::path& folder);

enum class Durability { Eventually, AtOnce };

/// Puts a file in the place of another, as a whole, by way of a file beside it with this ending.
inline constexpr std::string_view BesideEnding = ".neu";
int replaceByRename(const std::filesystem::path& path, std::string_view bytes,
                    Durability durability);

} // namespace zeugnis::raw
