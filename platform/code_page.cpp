#include "platform/code_page.h"

#include <unicode/normalizer2.h>
#include <unicode/translit.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace zeugnis {
namespace {

// Bytes 0x80 to 0x9F; all others stand for the character of the same number.
constexpr std::array<char16_t, 32> UpperControls = std::to_array<char16_t>(
    {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
     0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
     0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178});

std::optional<char> byteFor(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(unit);
    const auto* const found = std::find(UpperControls.begin(), UpperControls.end(), unit);
    if (found == UpperControls.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (found - UpperControls.begin()));
}

bool holds(TextView text) {
    return std::all_of(text.begin(), text.end(),
                       [](char16_t unit) { return byteFor(unit).has_value(); });
}

icu::UnicodeString nearestForm(const icu::UnicodeString& character) {
    UErrorCode status = U_ZERO_ERROR;
    // Setting up the transliterator is slow, and only rare characters need it.
    thread_local const std::unique_ptr<icu::Transliterator> toAscii(
        icu::Transliterator::createInstance("Any-Latin; Latin-ASCII", UTRANS_FORWARD, status));
    icu::UnicodeString form = character;
    if (toAscii)
        toAscii->transliterate(form);
    return form;
}

} // namespace

Text decodeWindows1252(std::string_view bytes) {
    Text text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code >= 0x80 && code < 0xA0 ? UpperControls[code - 0x80U]
                                           : static_cast<char16_t>(code);
    });
    return text;
}

std::string encodeWindows1252(TextView text) {
    std::string bytes(text.size(), '?');
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](char16_t unit) { return byteFor(unit).value_or('?'); });
    return bytes;
}

Text nearestInWindows1252(TextView text) {
    if (holds(text))
        return Text(text);

    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString source(text.data(), static_cast<int32_t>(text.size()));
    // A letter with a separate accent is one character of the code page.
    if (const auto* composer = icu::Normalizer2::getNFCInstance(status); U_SUCCESS(status))
        source = composer->normalize(source, status);

    Text result;
    for (int32_t at = 0; at < source.length(); at = source.moveIndex32(at, 1)) {
        const icu::UnicodeString character(source.char32At(at));
        const Text kept(character.getBuffer(), static_cast<size_t>(character.length()));
        if (holds(kept)) {
            result += kept;
            continue;
        }
        const icu::UnicodeString form = nearestForm(character);
        const Text nearest(form.getBuffer(), static_cast<size_t>(form.length()));
        if (holds(nearest))
            result += nearest;
    }
    return result;
}

} // namespace zeugnis
