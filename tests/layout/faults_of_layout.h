#pragma once

#include "tests/layout/every_window.h"

namespace zeugnis::test {

/// What is wrong with a window as it is laid out now, a line each: a text that is cut, a control
/// that cannot be seen or scrolled to, two that lie on each other, one that has to be there and
/// would have to be scrolled to.
std::vector<std::string> faultsOfLayout(const Sight& sight);

} // namespace zeugnis::test
