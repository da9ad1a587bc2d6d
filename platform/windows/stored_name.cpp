#include "platform/stored_name.h"

#include "platform/windows/windows_text.h"

namespace zeugnis {

std::filesystem::path asStored(const std::filesystem::path& existing) {
    WIN32_FIND_DATAW found{};
    HANDLE search = ::FindFirstFileW(existing.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return existing;
    ::FindClose(search);
    return existing.parent_path() / found.cFileName;
}

} // namespace zeugnis
