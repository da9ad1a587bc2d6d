#pragma once

#include <QCoreApplication>

namespace zeugnis::test {

/// A new height travels outwards one layout at a time; lets all of them follow.
inline void settleLayouts() {
    constexpr int DeepestNesting = 20;
    for (int i = 0; i < DeepestNesting; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace zeugnis::test
