#pragma once

#include "safety/journal.h"
#include "safety/paths.h"

#include <vector>

namespace zeugnis::safety {

/// Puts files back to what they held, in place and on the disk; a file that was none goes. Files
/// that hold it already are not touched, so it may be done again and again.
struct Restored {
    std::vector<std::string> failed; ///< the files that could not be put back
    bool diskFull = false;           ///< for one of them at least there was no room

    [[nodiscard]] bool complete() const { return failed.empty(); }
};
Restored restore(const Paths& paths, const std::vector<Former>& files);

} // namespace zeugnis::safety
