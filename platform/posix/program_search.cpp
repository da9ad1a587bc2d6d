#include "platform/program_search.h"

namespace zeugnis {

std::optional<std::filesystem::path> registeredProgram(TextView /*name*/) { return std::nullopt; }

std::vector<std::filesystem::path> dictionaryFolders() {
    return {"/usr/share/hunspell", "/usr/share/myspell/dicts"};
}

std::string nameForCLibrary(const std::filesystem::path& file) { return file.native(); }

bool drawsWithoutDisplay() { return false; }

} // namespace zeugnis
