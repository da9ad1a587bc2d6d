#pragma once

#include <memory>

class QApplication;
class QSize;

namespace zeugnis::test {

/// An application on a display of this size that is not there. The arguments have to outlive it.
std::unique_ptr<QApplication> offscreenApplication(QSize display, int& argumentCount,
                                                   char** arguments);

} // namespace zeugnis::test
