#include "safety/moment.h"

#include "platform/local_time.h"

#include <array>
#include <charconv>

namespace zeugnis::safety {
namespace {

using namespace std::chrono;

struct Parts {
    year_month_day day;
    hh_mm_ss<seconds> time;
};

Parts partsOf(Moment moment) {
    return {year_month_day(dayOf(moment)), hh_mm_ss<seconds>(moment - dayOf(moment))};
}

std::string padded(long long number, size_t digits) {
    const std::string text = std::to_string(number);
    return text.size() >= digits ? text : std::string(digits - text.size(), '0') + text;
}

std::optional<int> numberIn(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0)
        return std::nullopt;
    return number;
}

} // namespace

Moment now() {
    const std::time_t clock = std::time(nullptr);
    const std::optional<std::tm> local = localTime(clock);
    if (!local)
        return Moment(seconds(clock));
    const sys_days day = year(local->tm_year + 1900) / (local->tm_mon + 1) / local->tm_mday;
    return day + hours(local->tm_hour) + minutes(local->tm_min) + seconds(local->tm_sec);
}

sys_days dayOf(Moment moment) { return floor<days>(moment); }

std::string stampOf(Moment moment) {
    const Parts parts = partsOf(moment);
    return padded(int(parts.day.year()), 4) + '-' + padded(unsigned(parts.day.month()), 2) + '-' +
           padded(unsigned(parts.day.day()), 2) + ' ' + padded(parts.time.hours().count(), 2) +
           ':' + padded(parts.time.minutes().count(), 2) + ':' +
           padded(parts.time.seconds().count(), 2);
}

std::optional<Moment> momentFrom(std::string_view stamp) {
    struct Piece {
        size_t at;
        size_t length;
    };
    constexpr std::array<Piece, 6> Pieces = {{{0, 4}, {5, 2}, {8, 2}, {11, 2}, {14, 2}, {17, 2}}};
    constexpr std::string_view Between = "....-..-.. ..:..:..";
    if (stamp.size() != Between.size())
        return std::nullopt;
    std::array<int, Pieces.size()> numbers{};
    for (size_t i = 0; i < Pieces.size(); ++i) {
        const std::optional<int> number =
            numberIn(stamp.substr(Pieces.at(i).at, Pieces.at(i).length));
        if (!number)
            return std::nullopt;
        numbers.at(i) = *number;
    }
    const auto [y, mo, d, h, mi, s] = numbers;
    const year_month_day day(year(y), month(static_cast<unsigned>(mo)),
                             std::chrono::day(static_cast<unsigned>(d)));
    if (!day.ok() || h > 23 || mi > 59 || s > 59)
        return std::nullopt;
    const Moment moment = sys_days(day) + hours(h) + minutes(mi) + seconds(s);
    return stampOf(moment) == stamp ? std::optional(moment) : std::nullopt;
}

Text shownDay(Moment moment) {
    const std::string stamp = stampOf(moment);
    return textFromUtf8(stamp.substr(8, 2) + '.' + stamp.substr(5, 2) + '.' + stamp.substr(0, 4));
}

Text shownTime(Moment moment) { return textFromUtf8(stampOf(moment).substr(11, 5)); }

} // namespace zeugnis::safety
