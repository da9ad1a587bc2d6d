#include "platform/plain_machine.h"

#include "platform/local_time.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace zeugnis {

Text SystemCalendar::today() {
    const std::tm local = localTime(std::time(nullptr)).value_or(std::tm{});
    std::array<char, 16> date{};
    const size_t length = std::strftime(date.data(), date.size(), "%d.%m.%Y", &local);
    return {date.data(), date.data() + length};
}

bool JpegMarkPictures::canShow(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return stream.get() == 0xFF && stream.get() == 0xD8;
}

} // namespace zeugnis
