#pragma once

#include "platform/text.h"

namespace zeugnis {

/// The sentence on the interests and, on a line of its own, the badges.
inline Text InteressenVerbinden(const Text& interessenSatz, const Text& sportSatz) {
    const bool beide = !interessenSatz.empty() && !sportSatz.empty();
    return interessenSatz + Text(beide ? Zeilenende : TextView()) + sportSatz;
}

} // namespace zeugnis
