#include "desktop/rescue/net.h"

#include "common/word_launch.h"
#include "desktop/desktop_machine.h"
#include "desktop/rescue/choice_box.h"
#include "desktop/rescue/former_states_window.h"
#include "desktop/rescue/half_year_box.h"
#include "desktop/rescue/offer_window.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "files/file_catalogue.h"
#include "platform/path_text.h"
#include "rescue/forethought.h"
#include "toolkit/qt_text.h"

namespace zeugnis {
namespace fs = std::filesystem;

Net::Net(WindowHost& host, DesktopDialogs& dialogs, safety::Guard& guard,
         const fs::path& programFolder)
    : m_host(host),
      m_folder(programFolder),
      m_keeper(host.program(), programFolder),
      m_states(host.program(), guard, programFolder),
      m_damage(host.program().directory(), guard, programFolder),
      m_termination([this] { m_keeper.setDown(); }, [this] { return m_host.isIdle(); }) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(Pause);
    connect(&m_timer, &QTimer::timeout, this, [this] { m_keeper.setDown(); });
    guard.onUnitEnd = [this](safety::Guard::Outcome outcome) { m_keeper.unitEnded(outcome); };
    guard.onUnavailable = [this, &dialogs](const Text& sentence) {
        QMetaObject::invokeMethod(
            this, [&dialogs, sentence] { dialogs.message({.text = sentence}); },
            Qt::QueuedConnection);
    };
    dialogs.beforeBox = [this] {
        m_host.refreshForBox();
        m_keeper.questionComes();
    };
    dialogs.afterBox = [this](const Meldung& question, Antwort answer) {
        m_keeper.answered(question, answer);
    };
    m_host.beside = {
        .mayAct = [this](Control& control) { return mayAct(control); },
        .actionEnded =
            [this] {
                m_keeper.actionEnded();
                if (!m_timer.isActive())
                    m_timer.start();
            },
        .closesKnowingly =
            [this](const Screen& screen) {
                m_keeper.note();
                m_keeper.closesKnowingly(screen);
            },
        .unsaved = [this] { return qString(m_keeper.unsavedSentence()); },
        .programFolder = programFolder,
        .showFormerStates = [this] { showFormerStates(); },
        .openClassMenu = {},
        .newModules = {},
        .showNewModules = {},
    };
}

void Net::keepFolder(safety::FolderLock& lock) {
    if (!lock.isOurs())
        return;
    connect(&m_beat, &QTimer::timeout, this, [this, &lock] {
        if (lock.renew())
            return;
        m_beat.stop();
        m_keeper.setDown();
        askChoice(m_host.dialogParent(),
                  tr("Dieser Ordner ist inzwischen an einem anderen Gerät geöffnet worden. Damit "
                     "sich nichts gegenseitig überschreibt, speichern Sie hier bitte nicht mehr, "
                     "solange dort gearbeitet wird. Was Sie hier geschrieben haben, ist "
                     "aufgehoben und wird beim nächsten Start angeboten."),
                  {tr("&Weiter")}, 0);
    });
    m_beat.start(safety::FolderLock::Beat);
}

void Net::examineStart() {
    makeFolders();
    m_damage.examineStart(m_host.dialogParent());
}

void Net::tellAtStart() {
    if (m_host.program().ended() || m_host.program().startScreen() == nullptr)
        return;
    examine();
    offerTyped();
}

void Net::examine() {
    makeFolders();
    m_damage.examine(m_host.dialogParent());
}

void Net::offerTyped() {
    rescue::OfferList offers(m_keeper.store(), safety::now());
    if (offers.texts().empty())
        return;
    auto* window = new OfferWindow(
        std::move(offers), m_keeper, m_host, [this] { showHelp(); }, m_host.dialogParent());
    window->show();
    window->raise();
    window->activateWindow();
}

bool Net::mayAct(Control& control) {
    m_keeper.note();
    if (!mayBlankTexts(control, m_folder, m_host.dialogParent()))
        return false;
    if (rescue::opens(control))
        examine();
    if (!rescue::mayWrite(control))
        return true;
    makeFolders();
    return mayAddPupil(control) && mayWrite(control);
}

bool Net::mayAddPupil(const Control& control) {
    const Text warning = rescue::tooManyPupils(control);
    if (warning.empty())
        return true;
    const QString add = tr("Trotzdem &hinzufügen …");
    const QString leave = tr("&Nicht hinzufügen");
    return askChoice(m_host.dialogParent(), qString(warning), {add, leave}, 1) == 0 &&
           askChoice(m_host.dialogParent(),
                     tr("Wirklich? Alle Texte der Klasse werden dabei geleert. Unter „Frühere "
                        "Stände“ in der Werkzeugkiste können Sie sie wieder zurückholen."),
                     {tr("Ja, &hinzufügen"), leave}, 1) == 0;
}

bool Net::mayWrite(Control& control) {
    constexpr qsizetype Shown = 8;
    QStringList names;
    for (const Text& name : rescue::textsWithQuotes(control.screen()))
        names << qString(name);
    if (names.isEmpty())
        return true;
    const qsizetype more = names.size() - Shown;
    names = names.mid(0, Shown);
    if (more > 0)
        names << tr("und %1 weitere").arg(more);
    const int answer = askChoice(
        m_host.dialogParent(),
        tr("In diesen Texten steht ein gerades Anführungszeichen (\"):\n\n–  %1\n\nIn der Datei "
           "würde der Text dort enden, und beim nächsten Öffnen käme eine Fehlermeldung. Mit den "
           "deutschen Zeichen „ und “ bleibt alles, wie Sie es geschrieben haben.")
            .arg(names.join(QStringLiteral("\n–  "))),
        {tr("Durch „ und “ &ersetzen und weiter"), tr("So &lassen und weiter"), tr("&Zurück")}, 0);
    if (answer == 2)
        return false;
    if (answer == 0)
        m_host.run([&] { rescue::mendQuotes(control.screen()); });
    return true;
}

// Copying tools lose empty folders, and a save needs this one.
void Net::makeFolders() const {
    for (const TextView name : {dateien::Daten, dateien::Bild})
        if (std::error_code failed; !fs::exists(m_folder / pathFromText(name), failed))
            fs::create_directory(m_folder / pathFromText(name), failed);
    std::error_code failed;
    const fs::path data = m_folder / pathFromText(dateien::Daten);
    if (!fs::exists(data / "Sicherheit", failed))
        fs::create_directory(data / "Sicherheit", failed);
}

void Net::showHelp() {
    constexpr int WayBack = 14;
    m_host.run([this] { WordStarten(m_host.program(), word::Hilfe(WayBack)); });
}

void Net::showFormerStates() {
    FormerStatesWindow window(
        m_states, [this] { showHelp(); }, m_host.dialogParent());
    window.exec();
}

} // namespace zeugnis
