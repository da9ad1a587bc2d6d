#include "platform/local_time.h"

namespace zeugnis {

std::optional<std::tm> localTime(std::time_t moment) {
    std::tm local{};
    if (::localtime_s(&local, &moment) != 0)
        return std::nullopt;
    return local;
}

} // namespace zeugnis
