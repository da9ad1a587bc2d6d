#include "common/screen_names.h"
#include "desktop/comfort/lead_to_text.h"
#include "desktop/desktop_machine.h"
#include "desktop/rescue/choice_box.h"
#include "desktop/rescue/net.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "desktop/word_launcher.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "platform/version.h"
#include "program/all_screens.h"
#include "safety/folder_lock.h"
#include "safety/guard.h"
#include "safety/recovery.h"
#include "toolkit/entry_call.h"
#include "toolkit/qt_text.h"

#include <QApplication>
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

// False if another program has the folder open and the teacher does not open it all the same.
bool takeFolder(safety::FolderLock& lock) {
    using Outcome = safety::FolderLock::Outcome;
    const safety::FolderLock::Answer answer = lock.take();
    if (answer.outcome != Outcome::Held && answer.outcome != Outcome::HeldFarAway)
        return true;
    const QString who = qString(safety::holderSentence(answer.holder));
    if (answer.outcome == Outcome::Held) {
        askChoice(nullptr,
                  who + QObject::tr("\n\nDamit sich nichts gegenseitig überschreibt, öffnet sich "
                                    "das Programm kein zweites Mal. Arbeiten Sie in dem Fenster "
                                    "weiter, das schon offen ist."),
                  {QObject::tr("&Beenden")}, 0);
        return false;
    }
    return askChoice(nullptr,
                     who +
                         QObject::tr("\n\nWenn dort noch gearbeitet wird, würden Sie sich "
                                     "gegenseitig Texte überschreiben. Öffnen Sie den Ordner nur, "
                                     "wenn Sie sicher sind, dass er dort nicht mehr offen ist: "
                                     "etwa nach einem Stromausfall."),
                     {QObject::tr("Trotzdem &öffnen"), QObject::tr("&Beenden")}, 1) == 0 &&
           lock.takeOver();
}

int run() {
    DesktopDialogs dialogs;
    DesktopClipboard clipboard;
    SystemCalendar calendar;
    DesktopPictures pictures;
    WordLauncher launcher(QApplication::applicationDirPath());
    const std::filesystem::path programFolder = startFolder();
    safety::FolderLock lock(programFolder, safety::thisProgram(safety::now()));
    if (!takeFolder(lock) || !startCleanly(dialogs, programFolder))
        return 1;
    safety::Guard guard(programFolder);
    guard.thinOutStates();
    Programm program({dialogs, clipboard, calendar, pictures, launcher}, programFolder);
    BildschirmeAnmelden(program);

    WindowHost host(program);
    BusyWrites watcher(host.busyPointer(), guard);
    program.directory().watchWrites(&watcher);
    dialogs.parent = [&host] { return host.dialogParent(); };
    Net net(host, dialogs, guard, programFolder);
    net.keepFolder(lock);
    const EntryCallServer calls(
        programFolder, [&host](const EntryPlace& place) { return leadToText(host, place); });
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
    try {
        return run();
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, qString(Programmtitel), qString(sentenceOf(failure)));
        return 1;
    }
}
