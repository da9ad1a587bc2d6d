#include "platform/local_time.h"

namespace zeugnis {

std::optional<std::tm> localTime(std::time_t moment) {
    std::tm local{};
    if (::localtime_r(&moment, &local) == nullptr)
        return std::nullopt;
    return local;
}

} // namespace zeugnis
