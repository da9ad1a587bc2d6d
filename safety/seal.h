#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zeugnis::safety {

/// Tells contents apart and finds damage done by accident.
std::uint64_t checksum(std::string_view bytes);

/// 16 lower-case digits.
std::string checksumText(std::string_view bytes);

/// A content behind a line that proves it whole: "kind 1 checksum length".
std::string sealed(std::string_view kind, std::string_view content);

/// Empty if it is of another kind or not whole.
std::optional<std::string> unsealed(std::string_view kind, std::string_view bytes);

} // namespace zeugnis::safety
