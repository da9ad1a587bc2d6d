#include "platform/text.h"

#include "platform/failure.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace zeugnis {

Text textFromUtf8(std::string_view utf8) {
    if (utf8.empty())
        return {};
    Text text(utf8.size(), u'\0');
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(text.data(), static_cast<int32_t>(text.size()), &length, utf8.data(),
                         static_cast<int32_t>(utf8.size()), 0xFFFD, nullptr, &status);
    text.resize(static_cast<size_t>(length));
    return text;
}

std::string utf8FromText(TextView text) {
    if (text.empty())
        return {};
    std::string utf8(text.size() * 3, '\0');
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(utf8.data(), static_cast<int32_t>(utf8.size()), &length, text.data(),
                       static_cast<int32_t>(text.size()), 0xFFFD, nullptr, &status);
    utf8.resize(static_cast<size_t>(length));
    return utf8;
}

Text trimmed(TextView text) {
    const size_t first = text.find_first_not_of(u' ');
    if (first == TextView::npos)
        return {};
    const size_t last = text.find_last_not_of(u' ');
    return Text(text.substr(first, last - first + 1));
}

Text withBoxLineEnds(TextView text) {
    Text result;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n') {
            result += text[i];
            continue;
        }
        result += Zeilenende;
        if (text.substr(i, 2) == Zeilenende)
            ++i;
    }
    return result;
}

Text textFromNumber(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

int numberFromText(TextView text, TextView what) {
    const Text value = trimmed(text);
    const bool isSigned = !value.empty() && (value[0] == u'-' || value[0] == u'+');
    const TextView digits = TextView(value).substr(isSigned ? 1 : 0);
    const bool isNumber =
        !digits.empty() && std::all_of(digits.begin(), digits.end(),
                                       [](char16_t c) { return c >= u'0' && c <= u'9'; });
    if (!isNumber)
        throw Laufzeitfehler(Fehlerart::TypeMismatch,
                             Text(what) + u": „" + value + u"“ ist keine ganze Zahl.");

    int32_t number = 0;
    const int32_t bound = value[0] == u'-' ? -std::numeric_limits<int16_t>::min()
                                           : std::numeric_limits<int16_t>::max();
    for (const char16_t digit : digits) {
        number = number * 10 + (digit - u'0');
        if (number > bound)
            throw Laufzeitfehler(Fehlerart::Overflow,
                                 Text(what) + u": Die Zahl " + value +
                                     u" ist zu groß (erlaubt ist -32768 bis 32767).");
    }
    return value[0] == u'-' ? -number : number;
}

Text enumerated(std::span<const Text> words) {
    auto left =
        std::count_if(words.begin(), words.end(), [](const Text& word) { return !word.empty(); });
    Text list;
    for (const Text& word : words) {
        if (word.empty())
            continue;
        --left;
        list += word + (left == 0 ? u"" : left == 1 ? u" und " : u", ");
    }
    return list;
}

bool sameIgnoringCase(TextView left, TextView right) {
    return std::equal(
        left.begin(), left.end(), right.begin(), right.end(), [](char16_t a, char16_t b) {
            return u_foldCase(a, U_FOLD_CASE_DEFAULT) == u_foldCase(b, U_FOLD_CASE_DEFAULT);
        });
}

} // namespace zeugnis
