#include "desktop/insertion_view.h"

#include "desktop/entry_list.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

// An entry of a placeholder list holds blanks that align its explanation in a type of one width.
QString withDash(const QString& entry) {
    static const QRegularExpression blanks(QStringLiteral("(?<=\\S) {2,}"));
    return QString(entry).replace(blanks, QStringLiteral("  –  ")).trimmed();
}

} // namespace

InsertionView::InsertionView(Einfuegungen& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(8);
    layout->addWidget(bind().label(screen.Label1));
    EntryList* list =
        bind().list(screen.List1, tr("Einfügetexte"), [&screen](const QString& entry) {
            return screen.mitKopfzeile() ? withDash(entry) : entry;
        });
    bind().follow([list, &screen] {
        if (screen.KopfzeileBeendet())
            list->item(0)->setFlags(Qt::NoItemFlags);
    });
    layout->addWidget(list, 1);
    layout->addWidget(bind().check(screen.Check1));
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(6);
    buttons->addWidget(bind().button(screen.Command1(2), u'N'));
    auto* removals = new QHBoxLayout;
    removals->addWidget(bind().button(screen.Command1(0), u'M', TintedButton::Role::Quiet));
    removals->addWidget(bind().button(screen.Command1(1), u'A', TintedButton::Role::Quiet));
    buttons->addLayout(removals);
    layout->addLayout(buttons);

    bind().holdBack(screen.Command1(0), [&screen] { return !screen.EintragGewaehlt(); });

    // Beside the text that is being written, over the lines that are locked meanwhile.
    const QRect desktop = this->screen()->availableGeometry();
    resize(430, 440);
    move(desktop.right() - 430 - 90, desktop.top() + 60);
}

} // namespace zeugnis
