#include "common/screen_names.h"
#include "desktop/desktop_machine.h"
#include "desktop/rescue/net.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "desktop/word_launcher.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "platform/version.h"
#include "program/all_screens.h"
#include "safety/guard.h"
#include "safety/recovery.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

namespace {

using namespace zeugnis;

// False if files may be half old and half new: then they had better not be read.
bool startCleanly(Dialogs& dialogs, const std::filesystem::path& programFolder) {
    const safety::Recovery recovery = safety::takeBackInterrupted(programFolder);
    for (const auto* sentences : {&recovery.takenBack, &recovery.obstacles})
        for (const Text& sentence : *sentences)
            dialogs.message({.text = sentence, .symbol = Symbol::Ausrufezeichen});
    return recovery.complete();
}

int run() {
    DesktopDialogs dialogs;
    DesktopClipboard clipboard;
    SystemCalendar calendar;
    DesktopPictures pictures;
    WordLauncher launcher(QApplication::applicationDirPath());
    const std::filesystem::path programFolder = startFolder();
    if (!startCleanly(dialogs, programFolder))
        return 1;
    safety::Guard guard(programFolder);
    guard.thinOutStates();
    Programm program({dialogs, clipboard, calendar, pictures, launcher}, programFolder);
    program.directory().watchWrites(&guard);
    BildschirmeAnmelden(program);

    WindowHost host(program);
    dialogs.parent = [&host] { return host.dialogParent(); };
    Net net(host, dialogs, guard, programFolder);
    // Only inside the event loop can a failure of the start end the program.
    QMetaObject::invokeMethod(
        &host,
        [&] {
            net.examine();
            host.run([&program] { program.show(bildschirme::GsStart); });
            if (!program.ended() && program.startScreen() != nullptr)
                net.offerTyped();
        },
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
