#include "tests/window_driver/offscreen_display.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace zeugnis::test {

std::unique_ptr<QApplication> offscreenApplication(QSize display, int& argumentCount,
                                                   char** arguments) {
    const QTemporaryDir folder;
    QFile description(folder.filePath(QStringLiteral("display")));
    if (description.open(QIODevice::WriteOnly))
        description.write(QStringLiteral(R"({ "windowFrameMargins": false, "screens": [
        { "name": "display", "x": 0, "y": 0, "width": %1, "height": %2,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] })")
                              .arg(display.width())
                              .arg(display.height())
                              .toUtf8());
    description.close();
    // By its bare name: Qt would cut a path of Windows behind the letter of the drive.
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=display");
    auto application = std::make_unique<QApplication>(argumentCount, arguments);
    QDir::setCurrent(before);
    return application;
}

} // namespace zeugnis::test
