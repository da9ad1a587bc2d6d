#pragma once

#include <string_view>
#include <vector>

namespace zeugnis::test::faults {

/// A save, as commands of the driver: what leads to it, and the one command that writes.
struct Save {
    const char* name;
    const char* installation;           ///< below tests/fixtures
    std::vector<const char*> standards; ///< modules that get a Standard copy beforehand
    const char* before;
    const char* save;
};

const std::vector<Save>& allSaves();

} // namespace zeugnis::test::faults
