#include "platform/path_text.h"

namespace zeugnis {

Text textFromPath(const std::filesystem::path& path) {
    const std::u8string utf8 = path.u8string();
    return textFromUtf8(std::string(utf8.begin(), utf8.end()));
}

std::filesystem::path pathFromText(TextView name) {
    const std::string utf8 = utf8FromText(name);
    return std::u8string(utf8.begin(), utf8.end());
}

} // namespace zeugnis
