#pragma once

#include "tests/layout/every_window.h"

namespace zeugnis::test {

/// The windows of the documents' program.
void forEveryDocumentWindow(const Content& content, const std::function<void(const Sight&)>& look,
                            const std::string& part);

} // namespace zeugnis::test
