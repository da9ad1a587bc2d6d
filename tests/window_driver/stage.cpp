#include "tests/window_driver/stage.h"

#include "desktop/theme.h"
#include "tests/window_driver/offscreen_display.h"

#include <QApplication>
#include <QStyleHints>
#include <QTimer>

#include <cstdio>

namespace zeugnis::windowdriver {
namespace {

// Outlives the application, which keeps pointers to both.
int argumentCount = 1;
char programName[] = "zeugnis-window-driver";
char* arguments[] = {programName, nullptr};

// Without a display there is much that a window asks for in vain.
void leaveOutPlatformNotes(QtMsgType /*type*/, const QMessageLogContext& context,
                           const QString& message) {
    const QString category = QString::fromLatin1(context.category);
    if (!message.startsWith(QStringLiteral("This plugin does not support")) &&
        !category.startsWith(QStringLiteral("qt.gui.imageio")))
        std::fputs((message + u'\n').toLocal8Bit().constData(), stderr);
}

} // namespace

Stage::Stage() {
    qInstallMessageHandler(leaveOutPlatformNotes);
    // As large as the smallest display that teachers have.
    m_application = test::offscreenApplication({1280, 800}, argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    theme::apply(*m_application);
}

Stage::~Stage() = default;

int Stage::play(const std::function<int()>& play) {
    int result = 0;
    QTimer::singleShot(0, [&] {
        result = play();
        QCoreApplication::exit(0);
    });
    QCoreApplication::exec();
    return result;
}

} // namespace zeugnis::windowdriver
