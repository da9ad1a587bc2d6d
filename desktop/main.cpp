#include "common/screen_names.h"
#include "desktop/comfort/lead_to_text.h"
#include "desktop/desktop_machine.h"
#include "desktop/folders/class_menu.h"
#include "desktop/folders/first_start_window.h"
#include "desktop/folders/recent_classes.h"
#include "desktop/rescue/net.h"
#include "desktop/theme.h"
#include "desktop/user_settings.h"
#include "desktop/window_host.h"
#include "desktop/word_launcher.h"
#include "folders/diagnosis.h"
#include "folders/start_way.h"
#include "platform/failure.h"
#include "platform/plain_machine.h"
#include "platform/process.h"
#include "platform/version.h"
#include "program/all_screens.h"
#include "safety/guard.h"
#include "safety/recovery.h"
#include "toolkit/entry_call.h"
#include "toolkit/one_window.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

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

std::optional<std::filesystem::path> delivered() { return VorlageBei(programFile().parent_path()); }

int run(const TakenClass& taken) {
    DesktopDialogs dialogs;
    DesktopClipboard clipboard;
    SystemCalendar calendar;
    DesktopPictures pictures;
    WordLauncher launcher(QApplication::applicationDirPath());
    const std::filesystem::path& programFolder = taken.folder;
    if (!startCleanly(dialogs, programFolder))
        return 1;
    safety::Guard guard(programFolder);
    Programm program({dialogs, clipboard, calendar, pictures, launcher}, programFolder);
    BildschirmeAnmelden(program);

    WindowHost host(program);
    BusyWrites watcher(host.busyPointer(), guard);
    program.directory().watchWrites(&watcher);
    dialogs.parent = [&host] { return host.dialogParent(); };
    Net net(host, dialogs, guard, programFolder);
    net.keepFolder(*taken.lock);
    const ClassMenu menu(host, programFolder, delivered());
    QObject::connect(&host, &WindowHost::failed, [&](const Laufzeitfehler& failure) {
        FehlerMerken(programFolder, failure, safety::now());
    });
    std::optional<RememberedComfort> remembered;
    std::optional<OneWindow> answering;
    std::optional<EntryCallServer> calls;
    QObject::connect(&host, &WindowHost::firstPainted, &host, [&] {
        remembered.emplace(host);
        guard.thinOutStates();
        answering.emplace(programFolder, [&host] { return host.dialogParent(); });
        calls.emplace(programFolder,
                      [&host](const EntryPlace& place) { return leadToText(host, place); });
        net.tellAtStart();
    });
    // One that starts minimised is not painted.
    constexpr int LongEnough = 2000;
    QTimer::singleShot(LongEnough, &host, &WindowHost::painted);
    // Only inside the event loop can a failure of the start end the program.
    QMetaObject::invokeMethod(
        &host,
        [&] {
            net.examineStart();
            host.run([&program] { program.show(bildschirme::GsStart); });
        },
        Qt::QueuedConnection);
    return QApplication::exec();
}

// The class of this start, by the command line, the working directory or the teacher's choice. The
// lock is null if there is none to open here.
TakenClass classOfThisStart() {
    std::vector<Text> arguments;
    for (const QString& one : QApplication::arguments().mid(1))
        arguments.push_back(fromQString(one));
    const Startweg way = StartwegFinden(arguments, startFolder(), delivered().has_value());
    if (!way.Ordner.empty()) {
        if (!arguments.empty())
            recentclasses::remember(way.Ordner);
        return takeClass(way.Ordner, nullptr);
    }
    FirstStartWindow window(delivered(), qString(way.Hinweis));
    return window.exec() == QDialog::Accepted ? window.takeAway() : TakenClass{{}, nullptr, true};
}

int start() {
    // The window of the first start closes before the class opens.
    QApplication::setQuitOnLastWindowClosed(false);
    const TakenClass taken = classOfThisStart();
    if (taken.lock == nullptr)
        return taken.elsewhere ? 0 : 1;
    QApplication::setQuitOnLastWindowClosed(true);
    return run(taken);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(qString(Programmtitel));
    QApplication::setApplicationVersion(qString(Programmversion()));
    theme::apply(application);
    try {
        return start();
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, qString(Programmtitel), qString(sentenceOf(failure)));
        return 1;
    }
}
