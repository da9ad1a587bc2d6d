#include "desktop/editor_view_years.h"

#include "common/editor_common.h"
#include "desktop/editor_parts.h"
#include "desktop/even_rows.h"
#include "desktop/text_editor.h"
#include "desktop/theme.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace zeugnis {

EditorViewYears::EditorViewYears(GSAenderung12& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below) {
    build({.Editor = screen,
           .Title = screen.Label1,
           .Help = screen.Command8,
           .Info = screen.Text29,
           .Load = screen.Command3,
           .NextStep = screen.Label4,
           .Hint = screen.Label3,
           .Placeholders = screen.Command2,
           .Save = screen.Command5,
           .Leave = screen.Command6},
          pagesOf(screen));
}

EditorViewYears::EditorViewYears(GSAenderung34& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below) {
    build({.Editor = screen,
           .Title = screen.Label1,
           .Help = screen.Command8,
           .Info = screen.Text5,
           .Load = screen.Command1,
           .NextStep = screen.Label5,
           .Hint = screen.Label2,
           .Placeholders = screen.Command7,
           .Save = screen.Command5,
           .Leave = screen.Command6},
          pagesOf(screen));
}

void EditorViewYears::build(const Parts& parts, const std::vector<EditorPage>& pages) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 14, 20, 14);
    layout->setSpacing(8);
    layout->addLayout(editorparts::head(bind(), parts.Title, parts.Help));
    layout->addWidget(loadRow(parts));
    layout->addLayout(pageButtons(pages));
    auto* area = new PageArea(this);
    area->keepRoomToScroll();
    area->fillRoom();
    area->add(*entryparts::nextStep(bind(), parts.NextStep));
    for (const EditorPage& one : pages)
        area->add(*page(parts.Editor, one));
    area->addBelow(*editorparts::hint(bind(), parts.Hint));
    layout->addWidget(area, 1);
    layout->addWidget(besideNote(parts.Editor));
    layout->addLayout(
        editorparts::actions(bind(), {.ShowPlaceholders = {parts.Placeholders(0), u'P'},
                                      .HidePlaceholders = {parts.Placeholders(1), u'v'},
                                      .Save = {parts.Save, u't'},
                                      .Leave = {parts.Leave, u'B'}}));
    // Not before: a button that moves to another parent loses the keyboard.
    bind().widgetOf(parts.Load(1))->setFocus();
    warnBeforeClosing(editorparts::lostByClosing());
    wishSize({1220, 760});
}

// Whose modules these are, and which wording to load.
QWidget* EditorViewYears::loadRow(const Parts& parts) {
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(info(parts.Info(0), tr("Klasse und Schuljahr")));
    row->addWidget(info(parts.Info(1), tr("Halbjahr")));
    row->addStretch();
    row->addLayout(editorparts::loading(bind(), parts.Load));
    return area;
}

QWidget* EditorViewYears::besideNote(const Bausteineditor& editor) {
    auto* note =
        new QLabel(tr("Standard geladen: Speichern ändert die aktuellen Texte nicht."), this);
    note->setObjectName(QStringLiteral("lock"));
    note->setWordWrap(true);
    bind().follow([note, &editor] { note->setVisible(editor.SpeichertDaneben()); });
    return note;
}

// A locked box that is read like a label.
QWidget* EditorViewYears::info(TextBox& box, const QString& name) {
    TextEditor* widget = bind().line(box, name);
    widget->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    widget->setProperty("paper", true);
    bind().follow([widget] {
        const int text = widget->fontMetrics().horizontalAdvance(widget->toPlainText());
        widget->setFixedWidth(text + 2 * widget->fontMetrics().averageCharWidth() + 8);
    });
    return widget;
}

QLayout* EditorViewYears::pageButtons(const std::vector<EditorPage>& pages) {
    auto* rows = new EvenRows(6, editorparts::TwoLines);
    std::vector<const Control*> buttons;
    for (const EditorPage& one : pages) {
        TintedButton* widget = bind().button(one.button, one.mnemonic);
        bind().follow([widget, &frame = one.frame] { widget->setMarked(frame.Visible); });
        buttons.push_back(&one.button);
        rows->addWidget(widget);
    }
    bind().oneStop(buttons);
    return rows;
}

QWidget* EditorViewYears::page(const Bausteineditor& editor, const EditorPage& one) {
    QFrame* frame = bind().frame(one.frame);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(14, 8, 14, 10);
    layout->setSpacing(4);
    for (Label* note : one.notes)
        layout->addWidget(editorparts::hint(bind(), *note));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    for (const auto* groups : {&one.left, &one.right})
        columns->addLayout(column(editor, *groups), 1);
    layout->addLayout(columns);
    return frame;
}

QVBoxLayout* EditorViewYears::column(const Bausteineditor& editor,
                                     const std::vector<BoxGroup>& groups) {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(3);
    for (const BoxGroup& group : groups)
        addGroup(*layout, editor, group);
    layout->addStretch();
    return layout;
}

void EditorViewYears::addGroup(QVBoxLayout& column, const Bausteineditor& editor,
                               const BoxGroup& group) {
    if (group.label != nullptr) {
        QLabel* label = bind().label(*group.label);
        label->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
        column.addWidget(label);
    }
    const bool several =
        std::any_of(group.boxes.begin(), group.boxes.end(),
                    [](const TextBox* box) { return box->BackColor == FarbeMehrfachwahl; });
    auto* heading =
        new QLabel(group.heading + (several ? tr(" (mehrere möglich)") : QString()), this);
    heading->setFont(theme::font(theme::Size::Small, QFont::DemiBold));
    heading->setContentsMargins(0, 4, 0, 0);
    bind().follow([heading, box = group.boxes.front()] { heading->setVisible(box->Visible); });
    column.addWidget(heading);
    int number = group.firstNumber;
    for (TextBox* box : group.boxes)
        column.addLayout(boxRow(editor, group, *box, editor.IstRot(*box) ? 0 : number++));
}

// A red box is one that the program sets by itself; it has no number.
QLayout* EditorViewYears::boxRow(const Bausteineditor& editor, const BoxGroup& group, TextBox& box,
                                 int number) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    const bool red = editor.IstRot(box);
    auto* mark = new QLabel(red ? QStringLiteral("»") : QString::number(number), this);
    mark->setFixedWidth(mark->fontMetrics().horizontalAdvance(QStringLiteral("99")) + 2);
    spoken::silence(*mark); // the box tells it
    mark->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const auto place = std::ranges::find(group.boxes, &box) - group.boxes.begin() + 1;
    TextEditor* widget = bind().module(
        box, red ? tr("%1 %2, vom Programm gesetzt").arg(group.heading, QString::number(place))
                 : tr("%1, Text %2").arg(group.heading).arg(number));
    if (red) {
        widget->setProperty("preset", true);
        widget->setToolTip(
            box.Locked ? tr("Diesen Text setzt das Programm von selbst ein.")
            : editor.WirdVerworfen(box)
                ? tr("Diesen Text setzt das Programm davor. Änderungen werden nicht gespeichert.")
                : tr("Diesen Text setzt das Programm von selbst ein. Änderungen werden "
                     "gespeichert."));
    }
    bind().follow([mark, &box] { mark->setVisible(box.Visible); });
    row->addWidget(mark);
    row->addWidget(widget, 1);
    return row;
}

} // namespace zeugnis
