#include "desktop/insertion_view.h"

#include "desktop/entry_list.h"
#include "desktop/place_beside.h"
#include "desktop/window_host.h"
#include "toolkit/window_place.h"
#include "toolkit/wrapped_entries.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr QSize Wished(430, 440);
constexpr int LeastListHeight = 110;

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
    list->setItemDelegate(new WrappedEntries(list));
    list->setMinimumHeight(LeastListHeight);
    layout->addWidget(list, 1);
    layout->addWidget(bind().check(screen.Check1));
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(6);
    buttons->addWidget(bind().button(screen.Command1(2), u'N'));
    auto* removals = new QHBoxLayout;
    for (const int removal : {0, 1})
        removals->addWidget(
            bind().button(screen.Command1(removal), {}, TintedButton::Role::Danger));
    buttons->addSpacing(8);
    buttons->addLayout(removals);
    layout->addLayout(buttons);

    bind().holdBack(screen.Command1(0), [&screen] { return !screen.EintragGewaehlt(); });
    wishSize(Wished, Growth::None);
}

// Over the lines that are locked meanwhile, not over what the phrases are for.
void InsertionView::place() {
    const QWidget* served = host().frontWindow(this);
    if (served == nullptr)
        return ScreenWindow::place();
    const QMargins frame = windowplace::frameOf(*this);
    const QSize last = placed() ? placed()->geometry.size() : windowplace::atFont(Wished);
    const int leastHeight = layout()->totalMinimumHeightForWidth(last.width());
    const QSize wished = last.expandedTo({0, leastHeight});
    const QRect best = placeBeside(*served, wished, {wished.width(), leastHeight},
                                   QSize(0, 0).grownBy(frame), screen()->availableGeometry());
    setGeometry(best.marginsRemoved(frame));
    m_cameUpAt = pos();
}

// It serves one window after the other, unless the user has given it a place.
bool InsertionView::isPlaced() const { return testAttribute(Qt::WA_Moved) && pos() != m_cameUpAt; }

// Back to the window that it serves: by Escape or F6, or by a key of a button there.
void InsertionView::keyPressEvent(QKeyEvent* event) {
    ScreenWindow* served = host().frontWindow(this);
    if (served == nullptr)
        return ScreenWindow::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F6)
        served->activateWindow();
    else if (event->modifiers() == Qt::AltModifier)
        served->pressMnemonic(QKeySequence(event->keyCombination()));
}

} // namespace zeugnis
