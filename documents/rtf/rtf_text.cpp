#include "documents/rtf/rtf_text.h"

#include <cstdint>

namespace zeugnis::dokumente {
namespace {

constexpr char16_t NoBreakSpace = 0xA0;

void append(std::string& rtf, char16_t unit) {
    if (unit == u'\n')
        rtf += "\\line ";
    else if (unit == NoBreakSpace)
        rtf += "\\~";
    else if (unit == u'\\' || unit == u'{' || unit == u'}')
        rtf += {'\\', static_cast<char>(unit)};
    else if (unit >= u' ' && unit < 0x7F)
        rtf += static_cast<char>(unit);
    else // the number is a signed one, and "?" is for readers that cannot take it
        rtf += rtfNumber("\\u", static_cast<std::int16_t>(unit)) + "?";
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
