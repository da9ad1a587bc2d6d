#include "safety/restore.h"

#include "platform/raw_file.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <system_error>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

bool isGone(int error) { return error == 0 || error == ENOENT || error == ENOTDIR; }

bool write(const fs::path& file, const std::string& content) {
    if (const raw::Content held = raw::read(file); held.error == 0 && held.bytes == content) {
        // It may not be on the disk yet.
        const raw::Opened opened = raw::openForWriting(file);
        if (opened.error != 0)
            return false;
        const int error = raw::sync(opened.handle);
        return raw::close(opened.handle) == 0 && error == 0;
    }
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
    const raw::Opened opened = raw::openForWriting(file);
    return opened.error == 0 && raw::replaceContentAndClose(opened.handle, content) == 0;
}

} // namespace

std::vector<std::string> restore(const Paths& paths, const std::vector<Former>& files) {
    std::vector<std::string> failed;
    std::set<fs::path> folders;
    // What goes makes room for what comes back.
    for (const bool standing : {false, true})
        for (const Former& one : files) {
            const std::optional<fs::path> file = paths.fileOf(one.name);
            if (!file || one.content.has_value() != standing)
                continue;
            if (standing ? write(*file, *one.content) : isGone(raw::remove(*file)))
                folders.insert(file->parent_path());
            else
                failed.push_back(one.name);
        }
    std::error_code ignored;
    const bool synced = std::all_of(folders.begin(), folders.end(), [&](const fs::path& folder) {
        return !fs::exists(folder, ignored) || raw::syncFolder(folder) == 0;
    });
    if (!synced && failed.empty() && !files.empty())
        failed.push_back(files.front().name);
    return failed;
}

} // namespace zeugnis::safety
