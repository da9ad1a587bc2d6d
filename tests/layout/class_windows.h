#pragma once

#include "tests/layout/every_window.h"

namespace zeugnis::test {

/// The windows of the first start and of class folders, as forEveryWindow() does it.
void forEveryClassWindow(const Content& content, const std::function<void(const Sight&)>& look,
                         const std::string& part);

} // namespace zeugnis::test
