#include "safety/paths.h"

#include "platform/path_text.h"
#include "platform/raw_file.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace zeugnis::safety {
namespace fs = std::filesystem;

namespace {

// As the working directory has it.
fs::path canonicalOr(const fs::path& folder) {
    std::error_code failed;
    fs::path canonical = fs::canonical(folder, failed);
    return failed ? folder : canonical;
}

} // namespace

Paths::Paths(const fs::path& programFolder)
    : program(canonicalOr(programFolder)),
      root(program / "Notsicherung"),
      states(root / "Staende"),
      latest(root / "Zuletzt"),
      typed(root / "Getippt") {}

std::optional<std::string> Paths::nameOf(const fs::path& file) const {
    const fs::path relative = file.lexically_relative(program);
    if (relative.empty() || relative == "." || *relative.begin() == "..")
        return std::nullopt;
    return utf8FromPath(relative);
}

std::optional<fs::path> Paths::fileOf(std::string_view name) const {
    const fs::path relative = pathFromUtf8(name);
    if (relative.empty() || relative.is_absolute() ||
        std::find(relative.begin(), relative.end(), "..") != relative.end())
        return std::nullopt;
    return program / relative;
}

int makeFolder(const Paths& paths, const fs::path& folder) {
    std::error_code failed;
    if (fs::is_directory(folder, failed))
        return 0;
    for (const fs::path& one : {paths.root, folder}) {
        if (!fs::create_directory(one, failed)) {
            if (failed)
                return failed.default_error_condition().value();
            continue;
        }
        if (const int error = raw::syncFolder(one.parent_path()); error != 0)
            return error;
    }
    return 0;
}

Text shownName(std::string_view name) {
    Text shown = textFromUtf8(name);
    std::replace(shown.begin(), shown.end(), u'/', u'\\');
    return shown;
}

std::vector<fs::path> filesEndingIn(const fs::path& folder, std::string_view ending) {
    std::error_code ignored;
    return filesEndingIn(folder, ending, ignored);
}

std::vector<fs::path> filesEndingIn(const fs::path& folder, std::string_view ending,
                                    std::error_code& failed) {
    std::vector<fs::path> found;
    failed.clear();
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed))
        if (utf8FromPath(entry->path().filename()).ends_with(ending))
            found.push_back(entry->path());
    if (failed == std::errc::no_such_file_or_directory)
        failed.clear();
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace zeugnis::safety
