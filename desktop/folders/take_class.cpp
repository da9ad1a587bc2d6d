#include "desktop/folders/take_class.h"

#include "desktop/rescue/choice_box.h"
#include "toolkit/one_window.h"
#include "toolkit/qt_text.h"

namespace zeugnis {
namespace {

using safety::FolderLock;

bool mayOpen(FolderLock& lock, const FolderLock::Answer& answer, QWidget* owner) {
    const QString who = qString(safety::holderSentence(answer.holder));
    if (answer.outcome == FolderLock::Outcome::Held) {
        askChoice(owner,
                  who + QObject::tr("\n\nDamit sich nichts gegenseitig überschreibt, öffnet sich "
                                    "das Programm kein zweites Mal. Arbeiten Sie in dem Fenster "
                                    "weiter, das schon offen ist."),
                  {owner == nullptr ? QObject::tr("&Beenden") : QObject::tr("&Zurück")}, 0);
        return false;
    }
    if (answer.outcome != FolderLock::Outcome::HeldFarAway)
        return true;
    return askChoice(owner,
                     who +
                         QObject::tr("\n\nWenn dort noch gearbeitet wird, würden Sie sich "
                                     "gegenseitig Texte überschreiben. Öffnen Sie den Ordner nur, "
                                     "wenn Sie sicher sind, dass er dort nicht mehr offen ist: "
                                     "etwa nach einem Stromausfall."),
                     {QObject::tr("Trotzdem &öffnen"),
                      owner == nullptr ? QObject::tr("&Beenden") : QObject::tr("&Zurück")},
                     1) == 0 &&
           lock.takeOver();
}

bool mayOnlyRead(QWidget* owner, const std::filesystem::path& folder) {
    return askChoice(owner,
                     QObject::tr("In den Ordner „%1“ kann das Programm nichts schreiben: Er ist "
                                 "schreibgeschützt, oder Ihnen fehlt das Recht dazu. Speichern ist "
                                 "dort nicht möglich, und manche Fenster öffnen sich nicht.\n\n"
                                 "Mit „Klasse von einem Stick mitnehmen“ kopieren Sie die Klasse "
                                 "in einen Ordner, der Ihnen gehört.")
                         .arg(qPath(folder)),
                     {QObject::tr("Trotzdem &öffnen"), QObject::tr("&Zurück")}, 1) == 0;
}

} // namespace

TakenClass takeClass(const std::filesystem::path& folder, QWidget* owner) {
    TakenClass taken{folder, nullptr};
    auto lock = std::make_unique<FolderLock>(folder, safety::thisProgram(safety::now()));
    const FolderLock::Answer answer = lock->take();
    taken.elsewhere =
        answer.outcome != FolderLock::Outcome::Ours && OneWindow::bringToFront(folder);
    if (taken.elsewhere)
        return taken;
    if (owner != nullptr && answer.outcome == FolderLock::Outcome::Unknown &&
        !mayOnlyRead(owner, folder))
        return taken;
    if (mayOpen(*lock, answer, owner))
        taken.lock = std::move(lock);
    return taken;
}

} // namespace zeugnis
