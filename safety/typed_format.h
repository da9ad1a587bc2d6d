#pragma once

#include "safety/typed.h"

namespace zeugnis::safety {

struct Session {
    Moment when{};
    std::map<Text, std::vector<Typed>> screens;
};

std::string sessionBytes(const Session& session);

/// Empty if it is not whole.
std::optional<Session> sessionFrom(std::string_view bytes);

} // namespace zeugnis::safety
