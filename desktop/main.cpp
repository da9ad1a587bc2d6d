#include "common/screen_names.h"
#include "desktop/desktop_machine.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "desktop/word_launcher.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "platform/version.h"
#include "program/all_screens.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

namespace {

using namespace zeugnis;

int run() {
    DesktopDialogs dialogs;
    DesktopClipboard clipboard;
    SystemCalendar calendar;
    DesktopPictures pictures;
    WordLauncher launcher(QApplication::applicationDirPath());
    Programm program({dialogs, clipboard, calendar, pictures, launcher}, startFolder());
    BildschirmeAnmelden(program);

    WindowHost host(program);
    dialogs.beforeBox = [&host] { host.refresh(); };
    dialogs.parent = [&host] { return host.dialogParent(); };
    // Only inside the event loop can a failure of the start end the program.
    QMetaObject::invokeMethod(
        &host, [&] { host.run([&program] { program.show(bildschirme::GsStart); }); },
        Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(qString(Programmtitel));
    QApplication::setApplicationVersion(qString(Programmversion()));
    theme::apply(application);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/zeugnisprogramm.png")));
    try {
        return run();
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, qString(Programmtitel), qString(sentenceOf(failure)));
        return 1;
    }
}
