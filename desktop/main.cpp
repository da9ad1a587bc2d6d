#include "common/screen_names.h"
#include "desktop/desktop_machine.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "desktop/word_launcher.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "safety/guard.h"
#include "safety/recovery.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QIcon>

#include <filesystem>

namespace {

// False if files may be half old and half new: then they had better not be read.
bool startCleanly(zeugnis::Dialogs& dialogs, const std::filesystem::path& programFolder) {
    const auto recovery = zeugnis::safety::takeBackInterrupted(programFolder);
    for (const auto* sentences : {&recovery.takenBack, &recovery.obstacles})
        for (const zeugnis::Text& sentence : *sentences)
            dialogs.message({.text = sentence, .symbol = zeugnis::Symbol::Ausrufezeichen});
    return recovery.complete();
}

} // namespace

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
    const std::filesystem::path programFolder = std::filesystem::current_path();
    if (!startCleanly(dialogs, programFolder))
        return 1;
    zeugnis::safety::Guard guard(programFolder);
    guard.thinOutStates();
    zeugnis::Programm program({dialogs, clipboard, calendar, pictures, launcher}, programFolder);
    program.directory().watchWrites(&guard);
    zeugnis::BildschirmeAnmelden(program);

    zeugnis::WindowHost host(program);
    dialogs.beforeBox = [&host] { host.refresh(); };
    dialogs.parent = [&host] { return host.dialogParent(); };
    guard.onUnavailable = [&](const zeugnis::Text& sentence) {
        QMetaObject::invokeMethod(
            &host, [&dialogs, sentence] { dialogs.message({.text = sentence}); },
            Qt::QueuedConnection);
    };
    // Only inside the event loop can a failure of the start end the program.
    QMetaObject::invokeMethod(
        &host, [&] { host.run([&program] { program.show(zeugnis::bildschirme::GsStart); }); },
        Qt::QueuedConnection);
    return QApplication::exec();
}
