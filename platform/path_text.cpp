#include "platform/path_text.h"

namespace zeugnis {
namespace {

std::string bytesOf(const std::u8string& utf8) { return {utf8.begin(), utf8.end()}; }

} // namespace

Text textFromPath(const std::filesystem::path& path) {
    return textFromUtf8(bytesOf(path.u8string()));
}

std::filesystem::path pathFromText(TextView name) { return pathFromUtf8(utf8FromText(name)); }

std::string utf8FromPath(const std::filesystem::path& path) {
    return bytesOf(path.generic_u8string());
}

std::filesystem::path pathFromUtf8(std::string_view name) {
    return std::u8string(name.begin(), name.end());
}

} // namespace zeugnis
