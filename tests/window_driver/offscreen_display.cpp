#include "tests/window_driver/offscreen_display.h"

#include <QTemporaryFile>

namespace zeugnis::test {

void useOffscreenDisplay(QTemporaryFile& description, QSize size) {
    const QString display = QStringLiteral(R"({ "windowFrameMargins": false, "screens": [
        { "name": "display", "x": 0, "y": 0, "width": %1, "height": %2,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] })");
    if (description.open())
        description.write(display.arg(size.width()).arg(size.height()).toUtf8());
    description.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.fileName().toUtf8());
}

} // namespace zeugnis::test
