// The calls are defined here, so the checked forms of the library must not be.
#undef _FORTIFY_SOURCE

#include "tests/safety/faults/fault_calls.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace zeugnis::test::faults {
namespace {
namespace fs = std::filesystem;

using Content = std::optional<std::string>;

// A change of names that is lost with the power as long as its folder was not put on the disk.
struct NameChange {
    fs::path folder;
    std::function<void()> undo;
};

struct State {
    bool armed = false;
    bool busy = false; // our own calls
    std::string folder;
    Kind kind = Kind::Eio;
    int at = 0;
    int calls = 0;
    std::map<int, fs::path> open;
    std::map<fs::path, std::string> onDisk; // of files with contents that are not
    std::vector<NameChange> names;
};

State& state() {
    static State one;
    return one;
}

class Busy {
  public:
    Busy() : m_former(state().busy) { state().busy = true; }
    ~Busy() { state().busy = m_former; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    bool m_former;
};

Content contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return std::nullopt;
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

void put(const fs::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary).write(content.data(), std::ssize(content));
}

void loseWhatIsNotOnDisk(bool torn) {
    const Busy busy;
    for (const auto& [file, former] : state().onDisk) {
        const Content held = contentOf(file);
        if (!held)
            continue;
        const size_t half = torn ? held->size() / 2 : 0;
        put(file, held->substr(0, half) + (half < former.size() ? former.substr(half) : ""));
    }
    for (size_t i = state().names.size(); i-- > 0;)
        state().names[i].undo();
}

[[noreturn]] void die() {
    kill(getpid(), SIGKILL);
    _exit(9);
}

bool inside(const fs::path& path) {
    return state().armed && !state().busy && (path / "").native().starts_with(state().folder);
}

const fs::path* inside(int handle) {
    if (!state().armed || state().busy)
        return nullptr;
    const auto found = state().open.find(handle);
    return found == state().open.end() ? nullptr : &found->second;
}

enum class Does { Looks, Changes, Grows };

// Strikes if this call is the one. Gives the error that the call is to fail with, or 0.
int strike(Does does, const std::function<void()>& half = {}) {
    State& now = state();
    const bool here = ++now.calls == now.at;
    const bool since = now.at != 0 && now.calls >= now.at;
    switch (now.kind) {
    case Kind::Eio:
        return here ? EIO : 0;
    case Kind::Enospc:
        if (here && half)
            half();
        return here ? ENOSPC : 0;
    case Kind::Eacces:
        return here ? EACCES : 0;
    case Kind::Erofs:
        return here ? EROFS : 0;
    case Kind::LastingEnospc:
        return since && does == Does::Grows ? ENOSPC : 0;
    case Kind::LastingErofs:
        return since && does != Does::Looks ? EROFS : 0;
    case Kind::TornKill:
        if (here && half)
            half();
        [[fallthrough]];
    case Kind::Kill:
        if (here)
            die();
        return 0;
    case Kind::PowerCut:
    case Kind::TornCut:
        if (here)
            cutPower(now.kind == Kind::TornCut);
        return 0;
    }
    return 0;
}

int failed(int error) {
    errno = error;
    return -1;
}

void aboutToChange(const fs::path& file) {
    const Busy busy;
    if (const Content content = contentOf(file))
        state().onDisk.try_emplace(file, *content);
}

template <typename Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name)); // NOLINT
}

int opened(int folder, const char* path, int flags, mode_t mode) {
    static const auto call = real<int (*)(int, const char*, int, ...)>("openat");
    const bool ours = inside(path);
    const bool writes = (flags & O_ACCMODE) != O_RDONLY;
    const bool makes = (flags & O_CREAT) != 0;
    if (ours)
        if (const int error = strike(makes ? Does::Grows : writes ? Does::Changes : Does::Looks))
            return failed(error);
    bool isNew = false;
    if (ours) {
        const Busy busy;
        isNew = makes && !fs::exists(path);
        if (writes && !isNew)
            aboutToChange(path);
    }
    const int handle = call(folder, path, flags, mode);
    if (ours && handle >= 0) {
        const Busy busy;
        state().open[handle] = path;
        if (isNew) {
            state().onDisk[path] = "";
            const fs::path file = path;
            state().names.push_back({file.parent_path(), [file] { ::remove(file.c_str()); }});
        }
    }
    return handle;
}

void forgetLostNames(const fs::path& folder) {
    std::erase_if(state().names, [&](const NameChange& one) { return one.folder == folder; });
}

int synced(int handle, const char* name) {
    const auto call = real<int (*)(int)>(name);
    const fs::path* path = inside(handle);
    if (path != nullptr) {
        if (const int error = strike(Does::Changes))
            return failed(error);
        const Busy busy;
        state().onDisk.erase(*path);
        forgetLostNames(*path);
    }
    return call(handle);
}

int removed(const char* path, const char* name) {
    const auto call = real<int (*)(const char*)>(name);
    if (inside(path)) {
        if (const int error = strike(Does::Changes))
            return failed(error);
        const Busy busy;
        const fs::path file = path;
        Content content = contentOf(file);
        if (const auto found = state().onDisk.find(file); found != state().onDisk.end()) {
            content = found->second;
            state().onDisk.erase(found);
        }
        if (content)
            state().names.push_back({file.parent_path(), [file, content] { put(file, *content); }});
    }
    return call(path);
}

} // namespace

const char* nameOf(Kind kind) {
    constexpr std::array<const char*, Kinds> Names = {"EIO",
                                                      "ENOSPC",
                                                      "EACCES",
                                                      "EROFS",
                                                      "ENOSPC, lasting",
                                                      "EROFS, lasting",
                                                      "SIGKILL",
                                                      "SIGKILL, torn",
                                                      "power cut",
                                                      "power cut, torn"};
    return Names.at(static_cast<size_t>(kind));
}

bool endsProcess(Kind kind) { return kind >= Kind::Kill; }

void arm(const std::string& folder, Kind kind, int at) {
    State& now = state();
    now.folder = folder + '/';
    now.kind = kind;
    now.at = at;
    now.calls = 0;
    now.onDisk.clear();
    now.names.clear();
    now.armed = true;
}

int disarm() {
    state().armed = false;
    return state().calls;
}

void cutPower(bool torn) {
    loseWhatIsNotOnDisk(torn);
    die();
}

} // namespace zeugnis::test::faults

// NOLINTBEGIN: the names and kinds of the C library
using namespace zeugnis::test::faults;

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return opened(AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return opened(folder, path, flags, mode);
}

ssize_t read(int handle, void* buffer, size_t size) {
    static const auto call = real<ssize_t (*)(int, void*, size_t)>("read");
    if (inside(handle) != nullptr)
        if (const int error = strike(Does::Looks))
            return failed(error);
    return call(handle, buffer, size);
}

ssize_t write(int handle, const void* buffer, size_t size) {
    static const auto call = real<ssize_t (*)(int, const void*, size_t)>("write");
    if (const auto* path = inside(handle); path != nullptr) {
        aboutToChange(*path);
        if (const int error =
                strike(Does::Grows, [&] { static_cast<void>(call(handle, buffer, size / 2)); }))
            return failed(error);
    }
    return call(handle, buffer, size);
}

int ftruncate(int handle, off_t length) noexcept {
    static const auto call = real<int (*)(int, off_t)>("ftruncate");
    if (const auto* path = inside(handle); path != nullptr) {
        aboutToChange(*path);
        if (const int error = strike(Does::Changes))
            return failed(error);
    }
    return call(handle, length);
}

int fsync(int handle) { return synced(handle, "fsync"); }
int fdatasync(int handle) { return synced(handle, "fdatasync"); }

int close(int handle) {
    static const auto call = real<int (*)(int)>("close");
    if (inside(handle) == nullptr)
        return call(handle);
    const int error = strike(Does::Looks);
    state().open.erase(handle);
    const int result = call(handle);
    return error != 0 ? failed(error) : result;
}

int remove(const char* path) noexcept { return removed(path, "remove"); }
int unlink(const char* path) noexcept { return removed(path, "unlink"); }

int mkdir(const char* path, mode_t mode) noexcept {
    static const auto call = real<int (*)(const char*, mode_t)>("mkdir");
    const bool ours = inside(path);
    if (ours)
        if (const int error = strike(Does::Grows))
            return failed(error);
    const int result = call(path, mode);
    if (ours && result == 0) {
        const Busy busy;
        const std::filesystem::path folder = path;
        state().names.push_back({folder.parent_path(), [folder] {
                                     std::error_code ignored;
                                     std::filesystem::remove_all(folder, ignored);
                                 }});
    }
    return result;
}

int rename(const char* from, const char* to) noexcept {
    static const auto call = real<int (*)(const char*, const char*)>("rename");
    if (!inside(from))
        return call(from, to);
    if (const int error = strike(Does::Changes))
        return failed(error);
    const Busy busy;
    const std::filesystem::path source = from;
    const std::filesystem::path target = to;
    const Content replaced = contentOf(target);
    const int result = call(from, to);
    if (result != 0)
        return result;
    if (const auto found = state().onDisk.find(source); found != state().onDisk.end()) {
        state().onDisk[target] = found->second;
        state().onDisk.erase(source);
    } else {
        state().onDisk.erase(target);
    }
    state().names.push_back({target.parent_path(), [source, target, replaced] {
                                 ::rename(target.c_str(), source.c_str());
                                 if (replaced)
                                     put(target, *replaced);
                             }});
    return result;
}

int stat(const char* path, struct stat* status) noexcept {
    static const auto call = real<int (*)(const char*, struct stat*)>("stat");
    if (inside(path))
        if (const int error = strike(Does::Looks))
            return failed(error);
    return call(path, status);
}

int lstat(const char* path, struct stat* status) noexcept {
    static const auto call = real<int (*)(const char*, struct stat*)>("lstat");
    if (inside(path))
        if (const int error = strike(Does::Looks))
            return failed(error);
    return call(path, status);
}

} // extern "C"
// NOLINTEND
