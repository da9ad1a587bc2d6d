#include "platform/raw_file.h"

#include "platform/windows/windows_text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <io.h>

namespace zeugnis::raw {
namespace {

constexpr int Attempts = 20;
constexpr DWORD Pause = 25; // milliseconds

bool isFolder(const std::filesystem::path& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

int errorOf(DWORD windowsError) {
    switch (windowsError) {
    case ERROR_SUCCESS:
        return 0;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return EACCES;
    case ERROR_WRITE_PROTECT:
        return EROFS;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return EEXIST;
    case ERROR_FILENAME_EXCED_RANGE:
        return ENAMETOOLONG;
    default:
        return EIO;
    }
}

// Virus scanners and the index of the search hold a file for moments. `attempt` gives true when it
// succeeds and leaves the reason with the system otherwise.
template <typename Attempt>
int patiently(Attempt attempt) {
    DWORD reason = ERROR_SUCCESS;
    for (int i = 0; i < Attempts; ++i) {
        if (attempt())
            return 0;
        reason = ::GetLastError();
        if (reason != ERROR_SHARING_VIOLATION && reason != ERROR_LOCK_VIOLATION)
            break;
        ::Sleep(Pause);
    }
    return errorOf(reason);
}

// As elsewhere, an open file may be renamed and removed; the usual call of the library forbids it.
Opened open(const std::filesystem::path& path, DWORD access, DWORD disposition, int flags) {
    HANDLE file = INVALID_HANDLE_VALUE;
    Opened opened;
    opened.error = patiently([&] {
        file = ::CreateFileW(path.c_str(), access,
                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                             disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
        return file != INVALID_HANDLE_VALUE;
    });
    if (opened.error == EACCES && isFolder(path))
        opened.error = EISDIR;
    if (opened.error != 0)
        return opened;
    opened.handle = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), flags | _O_BINARY);
    if (opened.handle < 0) {
        opened.error = EMFILE;
        ::CloseHandle(file);
    }
    return opened;
}

} // namespace

std::int64_t writtenAt(const std::filesystem::path& path) {
    // The standard library's goes by whole seconds.
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == 0)
        return 0;
    constexpr int HighBits = 32;
    return (static_cast<std::int64_t>(data.ftLastWriteTime.dwHighDateTime) << HighBits) |
           static_cast<std::int64_t>(data.ftLastWriteTime.dwLowDateTime);
}

Content read(const std::filesystem::path& path) {
    const Opened opened = open(path, GENERIC_READ, OPEN_EXISTING, _O_RDONLY);
    if (opened.error != 0)
        return {{}, opened.error};
    Content content;
    std::array<char, 16384> block{};
    int count = 0;
    while ((count = ::_read(opened.handle, block.data(), block.size())) > 0)
        content.bytes.append(block.data(), static_cast<size_t>(count));
    if (count < 0)
        content.error = errno;
    ::_close(opened.handle);
    return content;
}

Opened openForWriting(const std::filesystem::path& path) {
    Opened opened = open(path, GENERIC_WRITE, OPEN_EXISTING, 0);
    if (opened.error == ENOENT) {
        opened = open(path, GENERIC_WRITE, CREATE_NEW, 0);
        opened.created = opened.error == 0;
    }
    return opened;
}

int replaceContentAndClose(int handle, std::string_view bytes) {
    int error = write(handle, bytes);
    if (error == 0)
        error = truncate(handle, bytes.size());
    if (error == 0)
        error = sync(handle);
    if (::_close(handle) != 0 && error == 0)
        error = errno;
    return error;
}

int remove(const std::filesystem::path& path) {
    return patiently([&] { return ::DeleteFileW(path.c_str()) != 0; });
}

Opened createNew(const std::filesystem::path& path) {
    Opened opened = open(path, GENERIC_WRITE, CREATE_NEW, _O_APPEND);
    opened.created = opened.error == 0;
    return opened;
}

int write(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto part = static_cast<unsigned>(std::min<size_t>(bytes.size(), INT_MAX));
        const int count = ::_write(handle, bytes.data(), part);
        if (count <= 0)
            return count == 0 ? ENOSPC : errno;
        bytes.remove_prefix(static_cast<size_t>(count));
    }
    return 0;
}

int truncate(int handle, size_t length) {
    return ::_chsize_s(handle, static_cast<__int64>(length));
}

int sync(int handle) { return ::_commit(handle) == 0 ? 0 : errno; }

int close(int handle) { return ::_close(handle) == 0 ? 0 : errno; }

Lock tryLock(int handle) {
    // Here a lock keeps others from the bytes themselves, so it lies behind all that are there.
    OVERLAPPED behind{};
    behind.OffsetHigh = INT_MAX;
    const auto file = reinterpret_cast<HANDLE>(::_get_osfhandle(handle));
    if (::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &behind) !=
        0)
        return Lock::Taken;
    const DWORD reason = ::GetLastError();
    return reason == ERROR_LOCK_VIOLATION || reason == ERROR_IO_PENDING ? Lock::Held
                                                                        : Lock::NotOffered;
}

int rename(const std::filesystem::path& from, const std::filesystem::path& to) {
    return patiently([&] {
        return ::MoveFileExW(from.c_str(), to.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
}

// The file system writes names by itself, in the order in which they come to be.
int syncFolder(const std::filesystem::path& folder) { return isFolder(folder) ? 0 : ENOENT; }

} // namespace zeugnis::raw
