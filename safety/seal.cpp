#include "safety/seal.h"

#include <array>

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace zeugnis::safety {
namespace {

std::string headOf(std::string_view kind, std::string_view content) {
    return std::string(kind) + " 1 " + checksumText(content) + ' ' +
           std::to_string(content.size()) + '\n';
}

} // namespace

std::uint64_t checksum(std::string_view bytes) { return XXH3_64bits(bytes.data(), bytes.size()); }

std::string checksumText(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::uint64_t value = checksum(bytes);
    std::string text(16, '0');
    for (size_t at = text.size(); at-- > 0; value /= Digits.size())
        text[at] = Digits[value % Digits.size()];
    return text;
}

std::string sealed(std::string_view kind, std::string_view content) {
    std::string bytes = headOf(kind, content);
    bytes.reserve(bytes.size() + content.size());
    return bytes.append(content);
}

std::optional<std::string> unsealed(std::string_view kind, std::string_view bytes) {
    const size_t end = bytes.find('\n');
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view content = bytes.substr(end + 1);
    if (bytes.substr(0, end + 1) != headOf(kind, content))
        return std::nullopt;
    return std::string(content);
}

} // namespace zeugnis::safety
