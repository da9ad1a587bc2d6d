#include "safety/restore.h"

#include "platform/raw_file.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <system_error>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

int removed(const fs::path& file) {
    const int error = raw::remove(file);
    return error == ENOENT || error == ENOTDIR ? 0 : error;
}

int write(const fs::path& file, const std::string& content) {
    if (const raw::Content held = raw::read(file); held.error == 0 && held.bytes == content) {
        // It may not be on the disk yet.
        const raw::Opened opened = raw::openForWriting(file);
        if (opened.error != 0)
            return opened.error;
        const int error = raw::sync(opened.handle);
        const int closing = raw::close(opened.handle);
        return error != 0 ? error : closing;
    }
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
    const raw::Opened opened = raw::openForWriting(file);
    return opened.error != 0 ? opened.error : raw::replaceContentAndClose(opened.handle, content);
}

} // namespace

Restored restore(const Paths& paths, const std::vector<Former>& files) {
    Restored restored;
    std::set<fs::path> folders;
    // What goes makes room for what comes back.
    for (const bool standing : {false, true})
        for (const Former& one : files) {
            const std::optional<fs::path> file = paths.fileOf(one.name);
            if (!file || one.content.has_value() != standing)
                continue;
            const int error = standing ? write(*file, *one.content) : removed(*file);
            if (error == 0)
                folders.insert(file->parent_path());
            else
                restored.failed.push_back(one.name);
            restored.diskFull = restored.diskFull || error == ENOSPC;
        }
    std::error_code ignored;
    const bool synced = std::all_of(folders.begin(), folders.end(), [&](const fs::path& folder) {
        return !fs::exists(folder, ignored) || raw::syncFolder(folder) == 0;
    });
    if (!synced && restored.complete() && !files.empty())
        restored.failed.push_back(files.front().name);
    return restored;
}

} // namespace zeugnis::safety
