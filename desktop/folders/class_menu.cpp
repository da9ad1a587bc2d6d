#include "desktop/folders/class_menu.h"

#include "desktop/folders/about_window.h"
#include "desktop/window_host.h"

#include <QCoreApplication>
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
}

void ClassMenu::open(QWidget& button) {
    QMenu menu(&button);
    menu.setAccessibleName(tr("Klasse und Programm"));
    menu.addAction(tr("Andere &Klasse öffnen …"), this, &ClassMenu::otherClass);
    menu.addSeparator();
    menu.addAction(tr("Ü&ber das Programm …"), this, &ClassMenu::about);
    menu.exec(button.mapToGlobal(QPoint(0, -menu.sizeHint().height())));
}

void ClassMenu::otherClass() { startAnother({QStringLiteral("--auswahl")}); }

void ClassMenu::about() { AboutWindow(m_folder, m_host.dialogParent()).exec(); }

} // namespace zeugnis
