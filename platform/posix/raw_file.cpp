#include "platform/raw_file.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zeugnis::raw {
namespace {

constexpr mode_t NewFileMode = 0666;

int writeAll(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(handle, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        bytes.remove_prefix(static_cast<size_t>(count));
    }
    return 0;
}

// Devices have no length, and some cannot be synchronised.
bool isRegular(int handle) {
    struct stat status {};
    return ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
}

bool isPipe(int handle) {
    struct stat status {};
    return ::fstat(handle, &status) == 0 && S_ISFIFO(status.st_mode);
}

} // namespace

std::int64_t writtenAt(const std::filesystem::path& path) {
    constexpr std::int64_t Nanoseconds = 1'000'000'000;
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0
               ? status.st_mtim.tv_sec * Nanoseconds + status.st_mtim.tv_nsec
               : 0;
}

Content read(const std::filesystem::path& path) {
    Content content;
    // A pipe would keep whoever opens it waiting for somebody to write.
    const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); // NOLINT(*-vararg)
    if (handle < 0)
        return {{}, errno};
    if (isPipe(handle)) {
        ::close(handle);
        return {{}, ENXIO};
    }
    std::array<char, 16384> block{};
    while (true) {
        const ssize_t count = ::read(handle, block.data(), block.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            content.error = errno;
        if (count <= 0)
            break;
        content.bytes.append(block.data(), static_cast<size_t>(count));
    }
    ::close(handle);
    return content;
}

Opened openForWriting(const std::filesystem::path& path) {
    Opened opened;
    opened.handle = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK); // NOLINT(*-vararg)
    if (opened.handle < 0 && errno == ENOENT) {
        opened.handle = // NOLINTNEXTLINE(*-vararg)
            ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, NewFileMode);
        opened.created = opened.handle >= 0;
    }
    if (opened.handle < 0)
        opened.error = errno;
    return opened;
}

int replaceContentAndClose(int handle, std::string_view bytes) {
    int error = writeAll(handle, bytes);
    if (error == 0 && isRegular(handle)) {
        if (::ftruncate(handle, static_cast<off_t>(bytes.size())) != 0 || ::fsync(handle) != 0)
            error = errno;
    }
    if (::close(handle) != 0 && error == 0)
        error = errno;
    return error;
}

int remove(const std::filesystem::path& path) { return ::unlink(path.c_str()) == 0 ? 0 : errno; }

Opened createNew(const std::filesystem::path& path) {
    Opened opened;
    opened.handle = // NOLINTNEXTLINE(*-vararg)
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, NewFileMode);
    opened.created = opened.handle >= 0;
    if (!opened.created)
        opened.error = errno;
    return opened;
}

int write(int handle, std::string_view bytes) { return writeAll(handle, bytes); }

int truncate(int handle, size_t length) {
    return ::ftruncate(handle, static_cast<off_t>(length)) == 0 ? 0 : errno;
}

int sync(int handle) { return ::fsync(handle) == 0 ? 0 : errno; }

int close(int handle) { return ::close(handle) == 0 ? 0 : errno; }

Lock tryLock(int handle) {
    if (::flock(handle, LOCK_EX | LOCK_NB) == 0)
        return Lock::Taken;
    return errno == EWOULDBLOCK ? Lock::Held : Lock::NotOffered;
}

int rename(const std::filesystem::path& from, const std::filesystem::path& to) {
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int syncFolder(const std::filesystem::path& folder) {
    const int handle = // NOLINTNEXTLINE(*-vararg)
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return errno;
    int error = sync(handle);
    // Some file systems know no such thing and need none.
    if (error == EINVAL)
        error = 0;
    ::close(handle);
    return error;
}

} // namespace zeugnis::raw
