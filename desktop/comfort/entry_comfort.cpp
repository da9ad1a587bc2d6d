#include "desktop/comfort/entry_comfort.h"

#include "comfort/entry_access.h"
#include "desktop/comfort/choice_keeper.h"
#include "desktop/comfort/class_rail.h"
#include "desktop/comfort/entry_keys.h"
#include "desktop/comfort/last_term_window.h"
#include "desktop/comfort/report_pane.h"
#include "desktop/comfort/saved_line.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace zeugnis {
namespace {

// Everything that the window has shown until now goes to the right of the rail.
QHBoxLayout* putAtTheLeft(QWidget& rail, QWidget& window) {
    auto* rest = new QWidget;
    QWidget* first = window.focusWidget();
    const QMargins margins = window.layout()->contentsMargins();
    rest->setLayout(window.layout());
    rest->layout()->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout(&window);
    row->setContentsMargins(margins);
    row->setSpacing(margins.left());
    row->addWidget(&rail);
    // What stands beside it may take all that it does not need.
    rest->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(rest, 1);
    // A widget that moves to another parent loses the keyboard.
    if (first != nullptr)
        first->setFocus();
    return row;
}

QWidget* lastTermButton(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry) {
    auto* texts = new LastTermWindow(window, host, entry);
    auto* button = new QPushButton(QObject::tr("Letztes Halbjahr"), &window);
    button->setObjectName(QStringLiteral("link"));
    button->setFont(theme::font(theme::Size::Small));
    button->setCursor(Qt::PointingHandCursor);
    button->setToolTip(QObject::tr("Den Text des Kindes vom letzten Halbjahr daneben zeigen (F5)"));
    QObject::connect(button, &QPushButton::clicked, texts, &LastTermWindow::toggle);
    auto* shortcut = new QShortcut(Qt::Key_F5, &window);
    QObject::connect(shortcut, &QShortcut::activated, texts, &LastTermWindow::toggle);
    return button;
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
    last->setSpacing(10);
    auto* layout = qobject_cast<QBoxLayout*>(window.layout());
    layout->addLayout(last);
    if (!entry) {
        // Empty as long as all is as it was, so it had better look like the margin.
        QMargins margins = layout->contentsMargins();
        margins.setBottom(4);
        return layout->setContentsMargins(margins);
    }
    last->addWidget((new ChoiceKeeper(window, host, *entry))->link());
    last->addWidget(lastTermButton(window, host, *entry));
    auto* rail = new ClassRail(window, host, *entry);
    last->addWidget(rail->hintButton());
    auto* report = new ReportPane(window, host, *entry, *putAtTheLeft(*rail, window), *rail);
    last->addWidget(report->opener());
}

} // namespace zeugnis
