#include "common/screen_names.h"
#include "desktop/desktop_machine.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "desktop/word_launcher.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QIcon>

#include <filesystem>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(zeugnis::qString(zeugnis::Programmtitel));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/zeugnisprogramm.png")));
    zeugnis::theme::apply(application);

    zeugnis::DesktopDialogs dialogs;
    zeugnis::DesktopClipboard clipboard;
    zeugnis::SystemCalendar calendar;
    zeugnis::DesktopPictures pictures;
    zeugnis::WordLauncher launcher(QApplication::applicationDirPath());
    zeugnis::Programm program({dialogs, clipboard, calendar, pictures, launcher},
                              std::filesystem::current_path());
    zeugnis::BildschirmeAnmelden(program);

    zeugnis::WindowHost host(program);
    dialogs.beforeBox = [&host] { host.refresh(); };
    dialogs.parent = [&host] { return host.dialogParent(); };
    // Only inside the event loop can a failure of the start end the program.
    QMetaObject::invokeMethod(
        &host, [&] { host.run([&program] { program.show(zeugnis::bildschirme::GsStart); }); },
        Qt::QueuedConnection);
    return QApplication::exec();
}
