#include "tests/layout/large_display.h"

#include "tests/window_driver/offscreen_display.h"

#include <QApplication>

namespace zeugnis::test {
namespace {

// Outlives the application, which keeps pointers to both.
int argumentCount = 1;
char programName[] = "layout";
char* arguments[] = {programName, nullptr};

} // namespace

LargeDisplay::LargeDisplay() {
    // Without a display there is much that a window asks for in vain.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    m_application = offscreenApplication({2560, 1600}, argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
}

LargeDisplay::~LargeDisplay() = default;

} // namespace zeugnis::test
