#include "comfort/birth_date.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

namespace zeugnis {
namespace {

constexpr std::array<TextView, 12> Monate = {u"januar",    u"februar", u"märz",     u"april",
                                             u"mai",       u"juni",    u"juli",     u"august",
                                             u"september", u"oktober", u"november", u"dezember"};
constexpr int FruehestesJahr = 1990;
constexpr int SpaetestesJahr = 2099;
constexpr size_t KuerzesterMonat = 3;

bool isDigit(char16_t sign) { return sign >= u'0' && sign <= u'9'; }

/// Numbers and words in their order.
std::vector<Text> partsOf(TextView text) {
    std::vector<Text> parts;
    bool open = false;
    for (const char16_t sign : text) {
        const bool divides = TextView(u" ./-\u00A0").find(sign) != TextView::npos;
        const bool changes = open && !divides && isDigit(parts.back().back()) != isDigit(sign);
        if (!divides && (!open || changes))
            parts.emplace_back();
        open = !divides;
        if (open)
            parts.back() += sign;
    }
    return parts;
}

std::optional<int> numberOf(const Text& part) {
    constexpr size_t LongestYear = 4;
    if (part.empty() || part.size() > LongestYear || !std::ranges::all_of(part, isDigit))
        return std::nullopt;
    return numberFromText(part, u"");
}

std::optional<int> monthOf(const Text& part) {
    if (isDigit(part.front()))
        return numberOf(part);
    if (part.size() < KuerzesterMonat)
        return std::nullopt;
    for (size_t i = 0; i < Monate.size(); ++i)
        if (sameIgnoringCase(part, Monate.at(i).substr(0, part.size())))
            return static_cast<int>(i) + 1;
    return std::nullopt;
}

std::optional<int> yearOf(const Text& part) {
    const std::optional<int> year = numberOf(part);
    if (year && part.size() == 2)
        return 2000 + *year;
    return year && part.size() == 4 ? year : std::nullopt;
}

Text twoDigits(int number) { return (number < 10 ? u"0" : u"") + textFromNumber(number); }

} // namespace

std::optional<Text> GeburtsdatumLesen(TextView text) {
    std::vector<Text> parts = partsOf(text);
    constexpr size_t DayMonthYear = 3;
    if (parts.size() != DayMonthYear)
        return std::nullopt;
    if (parts[0].size() == 4)
        std::swap(parts[0], parts[2]);
    const std::optional<int> day = numberOf(parts[0]);
    const std::optional<int> month = monthOf(parts[1]);
    const std::optional<int> year = yearOf(parts[2]);
    if (!day || !month || !year || *year < FruehestesJahr || *year > SpaetestesJahr)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok())
        return std::nullopt;
    return twoDigits(*day) + u"." + twoDigits(*month) + u"." + textFromNumber(*year);
}

} // namespace zeugnis
