#pragma once

#include "driver/driver.h"

#include <functional>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace zeugnis::test {

/// The scripts that lie in a folder of tests/scenarios, or in that itself, as playScenario() takes
/// them.
std::vector<std::string> scenariosIn(const std::string& folder = {});

/// Plays commands on an installation, prints what happens and returns the exit code.
using Play = std::function<int(std::istream& commands, std::ostream& out,
                               const driver::Surroundings& surroundings)>;

/// Plays a script on a copy of an installation and expects what stands beside it: see
/// tests/README.md.
void playScenario(const std::string& name, const Play& play);

} // namespace zeugnis::test
