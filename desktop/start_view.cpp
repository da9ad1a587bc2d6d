#include "desktop/start_view.h"

#include "desktop/comfort/class_summary_line.h"
#include "desktop/picture_view.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "toolkit/page_area.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace zeugnis {
namespace {

constexpr int PanelWidth = 312;

// The help documents 10 to 13.
const char* const Overviews[] = {"Erste Schritte mit einer neuen Klasse",
                                 "Texte schreiben und Platzhalter",
                                 "Speichern und Sicherheitskopien", "Drucken"};

} // namespace

StartView::StartView(GsStart& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_start(screen) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(sidePanel());
    columns->addLayout(mainArea(), 1);
    bind().timer(screen.Timer1);
    // The button that changed the view is gone; the keyboard goes to the first one there is now.
    bind().follow([this, tools = false]() mutable {
        if (std::exchange(tools, m_start.Command3.Visible) == tools)
            return;
        if (QWidget* first = bind().widgetOf(m_start.Command1(tools ? 4 : 0)))
            first->setFocus();
    });
    bind().widgetOf(m_start.Command1(0))->setFocus();
    wishSize({1060, 700}, Growth::None);
}

QWidget* StartView::sidePanel() {
    auto* panel = new QWidget(this);
    panel->setFixedWidth(PanelWidth);
    panel->setAutoFillBackground(true);
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, theme::colours().HighContrast ? theme::colours().Background
                                                                     : QColor(0xE8, 0xEF, 0xEC));
    panel->setPalette(palette);

    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(24, 24, 24, 20);
    layout->setSpacing(4);
    layout->addWidget(bind().picture(m_start.Picture1, {264, 198}, tr("Turnstunde")));
    layout->addSpacing(18);
    for (int i = 0; i <= 2; ++i) {
        QLabel* label = bind().label(m_start.Label1(i));
        label->setFont(i == 0 ? theme::font(theme::Size::Title, QFont::DemiBold)
                              : theme::font(theme::Size::Body));
        layout->addWidget(label);
    }
    layout->addSpacing(18);
    auto* teacher = new QHBoxLayout;
    teacher->setSpacing(12);
    teacher->addWidget(bind().picture(m_start.Picture2, {84, 112}, tr("Bild der Klassenleitung")));
    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    names->addStretch();
    names->addWidget(bind().label(m_start.Label4));
    QLabel* teacherName = bind().label(m_start.Label5);
    teacherName->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    names->addWidget(teacherName);
    names->addStretch();
    teacher->addLayout(names, 1);
    layout->addLayout(teacher);
    layout->addStretch();
    QLabel* owner = bind().label(m_start.Label6);
    layout->addWidget(owner);
    return panel;
}

QBoxLayout* StartView::mainArea() {
    using Role = TintedButton::Role;
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(28, 20, 28, 18);
    layout->setSpacing(8);
    auto* head = new QHBoxLayout;
    QLabel* question = bind().label(m_start.Label2);
    question->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    head->addWidget(question, 1);
    head->addStretch();
    head->addWidget(bind().signButton(m_start.Command8, QStringLiteral("?"),
                                      tr("Hilfe zur Startseite"), QKeySequence::HelpContents));
    layout->addLayout(head);

    layout->addWidget(works(), 1);
    auto* last = new QHBoxLayout;
    last->addWidget(bind().button(m_start.Command2, u'W', Role::Quiet));
    last->addWidget(bind().button(m_start.Command3, u'k', Role::Normal));
    last->addWidget(formerStates());
    last->addWidget(classMenu());
    last->addStretch();
    last->addWidget(bind().button(m_start.Command1(7), u'P', Role::Normal));
    layout->addLayout(last);
    layout->addSpacing(4);
    layout->addLayout(helpRow());
    return layout;
}

// No control of the screen: it belongs to the net below the files.
QWidget* StartView::formerStates() {
    auto* button = new TintedButton(TintedButton::Role::Quiet, this);
    button->setText(tr("F&rühere Stände …"));
    button->setToolTip(tr("Ansehen und zurückholen, was vor einem Speichern da war"));
    connect(button, &QAbstractButton::clicked, this, [this] { host().beside.showFormerStates(); });
    bind().follow([this, button] {
        button->setVisible(m_start.Command3.Visible && host().beside.showFormerStates);
    });
    return button;
}

// Neither: it belongs to the folder of the class.
QWidget* StartView::classMenu() {
    auto* button = new TintedButton(TintedButton::Role::Quiet, this);
    button->setText(tr("Klasse u&nd Programm\u00a0…"));
    button->setToolTip(tr("Andere Klasse, neues Schuljahr, neue Bausteine, Version und Diagnose"));
    connect(button, &QAbstractButton::clicked, this,
            [this, button] { host().beside.openClassMenu(*button); });
    bind().follow([this, button] {
        button->setVisible(m_start.Command3.Visible && host().beside.openClassMenu);
    });
    return button;
}

// Only as long as there are any.
QWidget* StartView::newModules() {
    auto* button = new TintedButton(TintedButton::Role::Quiet, this);
    connect(button, &QAbstractButton::clicked, this, [this] { host().beside.showNewModules(); });
    bind().follow([this, button] {
        const size_t texts = host().beside.newModules ? host().beside.newModules() : 0;
        button->setText(tr("Neue Bausteine: %1 Texte anse&hen …").arg(texts));
        button->setVisible(texts > 0);
    });
    return button;
}

QWidget* StartView::works() {
    using Role = TintedButton::Role;
    auto* area = new PageArea(this);
    area->fillRoom();
    auto* column = new QVBoxLayout;
    column->setSpacing(7);
    constexpr QChar Mnemonics[] = {u'A', u'I', u'F', u'B', u'T', u'x', u'S'};
    for (int i = 0; i <= 6; ++i) {
        TintedButton* button = bind().button(m_start.Command1(i), Mnemonics[i], Role::Main);
        column->addWidget(button);
    }
    column->addSpacing(7);
    column->addWidget(bind().button(m_start.Command4, u'Z', Role::Main));
    column->addWidget(bind().button(m_start.Command6, u'E', Role::Main));
    column->addWidget(bind().button(m_start.Command5, u'u', Role::Main));
    column->addWidget(bind().button(m_start.Command7, u'L', Role::Main));
    column->addSpacing(3);
    column->addWidget(new ClassSummaryLine(m_start, *this, host()));
    column->addWidget(newModules(), 0, Qt::AlignLeft);
    column->addStretch();
    area->add(*column);
    return area;
}

QBoxLayout* StartView::helpRow() {
    auto* row = new QHBoxLayout;
    QLabel* mark = bind().label(m_start.Label3);
    row->addWidget(mark, 1);
    row->addSpacing(16);
    auto* caption = new QLabel(tr("Hilfe:"), this);
    bind().follow([this, caption] { caption->setVisible(m_start.Command9(0).Visible); });
    row->addWidget(caption);
    for (int i = 0; i <= 3; ++i)
        row->addWidget(bind().signButton(m_start.Command9(i), QString::number(i + 1),
                                         tr("Hilfe: %1").arg(tr(Overviews[i]))));
    return row;
}

} // namespace zeugnis
