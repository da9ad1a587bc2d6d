#include "platform/raw_file.h"

#include <cerrno>

namespace zeugnis::raw {

bool meansFull(int error) {
#ifdef EDQUOT
    if (error == EDQUOT)
        return true;
#endif
    return error == ENOSPC;
}

int replaceByRename(const std::filesystem::path& path, std::string_view bytes,
                    Durability durability) {
    std::filesystem::path beside = path;
    beside += BesideEnding;
    raw::remove(beside); // what a killed program has left
    const Opened opened = createNew(beside);
    if (opened.error != 0)
        return opened.error;
    int error = write(opened.handle, bytes);
    if (error == 0 && durability == Durability::AtOnce)
        error = sync(opened.handle);
    if (const int closing = close(opened.handle); error == 0)
        error = closing;
    if (error == 0)
        error = raw::rename(beside, path);
    if (error != 0)
        raw::remove(beside);
    else if (durability == Durability::AtOnce)
        error = syncFolder(path.parent_path());
    return error;
}

} // namespace zeugnis::raw
