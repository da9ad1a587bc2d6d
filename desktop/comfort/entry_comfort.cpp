#include "desktop/comfort/entry_comfort.h"

#include "comfort/entry_access.h"
#include "desktop/comfort/class_rail.h"
#include "desktop/comfort/entry_keys.h"
#include "desktop/comfort/saved_line.h"
#include "desktop/screen_window.h"

#include <QHBoxLayout>

namespace zeugnis {
namespace {

// Everything that the window has shown until now goes to the right of the rail.
void putAtTheLeft(QWidget& rail, QWidget& window) {
    auto* rest = new QWidget;
    QWidget* first = window.focusWidget();
    const QMargins margins = window.layout()->contentsMargins();
    rest->setLayout(window.layout());
    rest->layout()->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout(&window);
    row->setContentsMargins(margins);
    row->setSpacing(margins.left());
    row->addWidget(&rail);
    row->addWidget(rest, 1);
    // A widget that moves to another parent loses the keyboard.
    if (first != nullptr)
        first->setFocus();
}

} // namespace

void addEntryComfort(ScreenWindow& window, Screen& screen, WindowHost& host) {
    auto* last = new QHBoxLayout;
    const std::optional<Eingabeschirm> entry = EingabeschirmAus(screen);
    if (entry)
        last->addWidget((new EntryKeys(window, host, *entry))->hint(), 1);
    else
        last->addStretch(1);
    addSavedLine(window, screen, host, *last);
    if (last->count() == 1) {
        delete last;
        return;
    }
    last->setSpacing(16);
    qobject_cast<QBoxLayout*>(window.layout())->addLayout(last);
    if (!entry)
        return;
    auto* rail = new ClassRail(window, host, *entry);
    last->addWidget(rail->hintButton());
    putAtTheLeft(*rail, window);
}

} // namespace zeugnis
