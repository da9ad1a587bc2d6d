#include "desktop/folders/class_menu.h"

#include "desktop/folders/about_window.h"
#include "desktop/folders/module_update_window.h"
#include "desktop/folders/moving_up_window.h"
#include "desktop/folders/recent_classes.h"
#include "desktop/rescue/choice_box.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "folders/folder_copy.h"
#include "folders/module_update.h"
#include "rescue/writing_screens.h"
#include "toolkit/qt_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QMenu>
#include <QProcess>

namespace zeugnis {
namespace {

// A program of its own, as each class has.
void startAnother(const QStringList& arguments) {
    QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
}

} // namespace

ClassMenu::ClassMenu(WindowHost& host, std::filesystem::path folder,
                     std::optional<std::filesystem::path> delivered)
    : m_host(host), m_folder(std::move(folder)), m_delivered(std::move(delivered)) {
    host.beside.openClassMenu = [this](QWidget& button) { open(button); };
    host.beside.newModules = [this] { return m_newModules; };
    host.beside.showNewModules = [this] { showNewModules(); };
    connect(&host, &WindowHost::firstPainted, this, &ClassMenu::countNewModules);
}

void ClassMenu::open(QWidget& button) {
    QMenu menu(&button);
    menu.setAccessibleName(tr("Klasse und Programm"));
    menu.addAction(tr("Andere &Klasse öffnen …"), this, &ClassMenu::otherClass);
    auto* up =
        menu.addAction(tr("Klasse ins neue &Schuljahr übernehmen …"), this, &ClassMenu::moveUp);
    auto* modules =
        menu.addAction(m_newModules == 0 ? tr("Neue &Bausteine: keine")
                                         : tr("Neue &Bausteine: %1 Texte …").arg(m_newModules),
                       this, &ClassMenu::showNewModules);
    up->setEnabled(m_delivered.has_value());
    modules->setEnabled(m_newModules > 0);
    menu.addSeparator();
    menu.addAction(tr("Über das &Programm …"), this, &ClassMenu::about);
    menu.exec(button.mapToGlobal(QPoint(0, -menu.sizeHint().height())));
}

void ClassMenu::otherClass() { startAnother({QStringLiteral("--auswahl")}); }

void ClassMenu::moveUp() {
    QWidget* owner = m_host.dialogParent();
    MovingUpWindow window(m_folder, *m_delivered, owner);
    if (window.exec() != QDialog::Accepted)
        return;
    recentclasses::remember(window.newFolder());
    if (askChoice(owner,
                  tr("Der neue Ordner ist angelegt:\n\n%1\n\nDie bisherige Klasse bleibt in ihrem "
                     "Ordner, wie sie ist. Beide finden Sie beim nächsten Start in der Auswahl.")
                      .arg(QDir::toNativeSeparators(qPath(window.newFolder()))),
                  {tr("Neue Klasse &öffnen und diese schließen"), tr("Hier &weiterarbeiten")},
                  0) != 0)
        return;
    startAnother({qPath(window.newFolder())});
    // Asks, if something here is not saved yet.
    if (ScreenWindow* start = m_host.windowOf(m_host.program().startScreen()))
        start->close();
}

void ClassMenu::countNewModules() {
    m_newModules = 0;
    if (!m_delivered)
        return;
    // A module that cannot be read is told of when it is needed.
    obstacleIn([this] {
        m_newModules =
            NeueModultexte(Arbeitsverzeichnis(m_folder), Arbeitsverzeichnis(*m_delivered)).size();
    });
    m_host.refresh();
}

Text ClassMenu::obstacle() const {
    const Screen* open = rescue::shownWriter(m_host.program());
    return open == nullptr ? Text()
                           : u"Das Fenster „" + open->Title +
                                 u"“ ist noch offen und arbeitet mit den bisherigen Bausteinen. "
                                 u"Bitte verlassen Sie es zuerst.";
}

void ClassMenu::showNewModules() {
    const Arbeitsverzeichnis& directory = m_host.program().directory();
    const Text failed = obstacleIn([&] {
        ModuleUpdateWindow window(
            directory, Arbeitsverzeichnis(*m_delivered), [this] { return obstacle(); },
            m_host.dialogParent());
        if (window.exec() == QDialog::Accepted)
            rescue::dropHiddenWriters(m_host.program());
    });
    if (!failed.empty())
        askChoice(m_host.dialogParent(), qString(failed), {tr("&Weiter")}, 0);
    countNewModules();
}

void ClassMenu::about() {
    QWidget* owner = m_host.dialogParent();
    AboutWindow(m_folder, owner).exec();
    if (owner != nullptr)
        owner->activateWindow();
}

} // namespace zeugnis
