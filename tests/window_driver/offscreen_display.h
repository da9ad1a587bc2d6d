#pragma once

#include <QSize>

class QTemporaryFile;

namespace zeugnis::test {

/// Gives the application that is made next a display of this size that is not there. Its
/// description lies in the file as long as that lives.
void useOffscreenDisplay(QTemporaryFile& description, QSize size);

} // namespace zeugnis::test
