#include "documents/rtf/rtf_text.h"

#include "platform/code_page.h"

#include <cstdint>

namespace zeugnis::dokumente {
namespace {

constexpr char16_t NoBreakSpace = 0xA0;

// The code page leaves these places unassigned, and readers make of them what they like.
bool isControl(char16_t unit) { return unit < 0xA0; }

// One byte of the code page as it stands in Rich Text.
std::string codePageByte(char byte) {
    constexpr std::string_view Digits = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x7F ? std::string(1, byte)
                        : std::string("\\'") + Digits[value >> 4U] + Digits[value & 0xFU];
}

// Readers understand a byte of the code page better than a character's number, which they show
// together with what stands behind it for those that do not know numbers.
std::string beyondAscii(char16_t unit) {
    const Text text(1, unit);
    const Text nearest = nearestInWindows1252(text);
    if (nearest == text && !isControl(unit))
        return codePageByte(encodeWindows1252(text).front());
    const std::string fallback =
        nearest.empty() || isControl(unit) ? "?" : codePageByte(encodeWindows1252(nearest).front());
    return rtfNumber("\\u", static_cast<std::int16_t>(unit)) + fallback;
}

void append(std::string& rtf, char16_t unit) {
    if (unit == u'\n')
        rtf += "\\line ";
    else if (unit == NoBreakSpace)
        rtf += "\\~";
    else if (unit == u'\\' || unit == u'{' || unit == u'}')
        rtf += {'\\', static_cast<char>(unit)};
    else if (unit >= u' ' && unit < 0x7F)
        rtf += static_cast<char>(unit);
    else
        rtf += beyondAscii(unit);
}

} // namespace

std::string rtfText(TextView text) {
    std::string rtf;
    for (const char16_t unit : text)
        append(rtf, unit);
    return rtf;
}

std::string rtfNumber(const char* word, int number) { return word + std::to_string(number); }

} // namespace zeugnis::dokumente
