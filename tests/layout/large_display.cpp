#include "tests/layout/large_display.h"

#include <QApplication>
#include <QDir>

namespace zeugnis::test {
namespace {

// Outlives the application, which keeps pointers to both.
int argumentCount = 1;
char programName[] = "layout";
char* arguments[] = {programName, nullptr};

} // namespace

LargeDisplay::LargeDisplay() : m_display(QDir::tempPath() + QStringLiteral("/display-XXXXXX")) {
    // Without a display there is much that a window asks for in vain.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    constexpr const char* Display = R"({ "windowFrameMargins": false, "screens": [
        { "name": "display", "x": 0, "y": 0, "width": 2560, "height": 1600,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] })";
    if (m_display.open())
        m_display.write(Display);
    m_display.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + m_display.fileName().toUtf8());
    m_application = std::make_unique<QApplication>(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
}

LargeDisplay::~LargeDisplay() = default;

} // namespace zeugnis::test
