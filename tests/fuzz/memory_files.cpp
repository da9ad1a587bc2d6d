#include "tests/fuzz/memory_files.h"

#include "platform/raw_file.h"

#include <cerrno>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <vector>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

struct Files {
    std::map<fs::path, std::optional<std::string>> onDisk; // as they were when first read
    std::map<fs::path, std::optional<std::string>> changed;
    std::vector<fs::path> open;
};

Files& files() {
    static Files all;
    return all;
}

const std::optional<std::string>& contentOf(const fs::path& path) {
    if (const auto changed = files().changed.find(path); changed != files().changed.end())
        return changed->second;
    const auto [known, isNew] = files().onDisk.try_emplace(path);
    if (isNew)
        if (std::ifstream stream(path, std::ios::binary); stream) {
            std::ostringstream bytes;
            bytes << stream.rdbuf();
            known->second = bytes.str();
        }
    return known->second;
}

} // namespace

namespace raw {

Content read(const fs::path& path) {
    const std::optional<std::string>& content = contentOf(path);
    return content ? Content{*content, 0} : Content{{}, ENOENT};
}

Opened openForWriting(const fs::path& path) {
    files().open.push_back(path);
    return {static_cast<int>(files().open.size()) - 1, 0, !contentOf(path)};
}

int replaceContentAndClose(int handle, std::string_view bytes) {
    files().changed[files().open.at(static_cast<size_t>(handle))] = std::string(bytes);
    return 0;
}

int remove(const fs::path& path) {
    files().changed[path] = std::nullopt;
    return 0;
}

} // namespace raw

namespace test::memory_files {

void put(const fs::path& path, std::string bytes) { files().changed[path] = std::move(bytes); }

void reset() {
    files().changed.clear();
    files().open.clear();
}

} // namespace test::memory_files
} // namespace zeugnis
