#pragma once

#include "safety/typed.h"

namespace zeugnis::safety {

struct Run {
    Moment when{};
    std::map<Text, std::vector<Typed>> screens;
};

std::string runBytes(const Run& run);

/// Empty if it is not whole.
std::optional<Run> runFrom(std::string_view bytes);

} // namespace zeugnis::safety
