#include "desktop/entry_view_avsv.h"

#include "desktop/entry_parts.h"
#include "desktop/theme.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr int CategoryLetters = 27;

} // namespace

EntryViewAVSV::EntryViewAVSV(GsArbeitsverhalten& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_entry(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 10, 20, 10);
    layout->setSpacing(6);
    layout->addLayout(entryparts::head(
        bind(),
        {m_entry.Picture1, m_entry.Label1, m_entry.Label2, m_entry.Command8, m_entry.Combo1},
        {{m_entry.Command1, u'A'}, {m_entry.Command2, u'S'}}));
    showSection();
    layout->addWidget(entryparts::nextStep(bind(), m_entry.Label3));
    layout->addWidget(choices());
    layout->addLayout(texts(), 1);
    layout->addLayout(entryparts::actions(bind(), {.Reset = {m_entry.Command6, u'n'},
                                                   .ShowPhrases = {m_entry.Command7(0), u'z'},
                                                   .HidePhrases = {m_entry.Command7(1), u'v'},
                                                   .Save = {m_entry.Command4, u'T'},
                                                   .Leave = {m_entry.Command5, u'b'}}));
    warnBeforeClosing(tr("Das Fenster wird geschlossen, ohne zu speichern. Was Sie seit dem "
                         "letzten Wechsel des Kindes eingegeben haben, geht verloren.\n\n"
                         "Soll es trotzdem geschlossen werden?"));
    bind().placeOfTexts([this] {
        return std::vector{m_entry.Schueler, static_cast<int>(m_entry.Bereich)};
    });
    wishSize({1220, 760});
}

void EntryViewAVSV::showSection() {
    for (const Abschnitt section : Abschnitte) {
        const Button& control = section == Abschnitt::AV ? m_entry.Command1 : m_entry.Command2;
        auto* widget = qobject_cast<TintedButton*>(bind().widgetOf(control));
        bind().follow([this, widget, section] { widget->setMarked(m_entry.Bereich == section); });
    }
    bind().oneStop({&m_entry.Command1, &m_entry.Command2});
}

// The colour of the chosen line, in a digit and in words.
void EntryViewAVSV::showCategory(TintedButton& widget, int category) {
    widget.setMarked(m_entry.Bereich != Abschnitt::Keiner && m_entry.Kategorie == category);
    const int line = m_entry.gezeigteZeile(category);
    widget.setBadge(line == 0 ? QString() : QString::number(line));
    spoken::describe(
        widget, line == 0 ? tr("keine Zeile gewählt")
                          : tr("Zeile %1 gewählt, %2")
                                .arg(QString::number(line),
                                     spoken::colourName(m_entry.Command3(category).BackColor)));
}

QWidget* EntryViewAVSV::choices() {
    auto* area = new PageArea(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    auto* categories = new QVBoxLayout;
    categories->setSpacing(5);
    m_entry.Command3.each([&](Button& button) {
        TintedButton* widget = bind().button(button);
        widget->setFixedWidth(CategoryLetters * widget->fontMetrics().averageCharWidth());
        bind().follow([this, widget, k = *button.index()] { showCategory(*widget, k); });
        categories->addWidget(widget);
    });
    bind().oneStop(controlsOf(m_entry.Command3));
    categories->addStretch();
    row->addLayout(categories);
    row->addWidget(lines(*area), 1);
    // Not in the frame: it tells that the frame is disabled.
    row->addWidget(entryparts::lockSign(bind(), m_entry.Picture4), 0, Qt::AlignVCenter);
    area->add(*row);
    return area;
}

QWidget* EntryViewAVSV::lines(QWidget& area) {
    QFrame* frame = bind().frame(m_entry.Frame1);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(14, 5, 14, 5);
    column->setSpacing(1);
    auto* caption = new QLabel(frame);
    caption->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
    bind().follow([this, caption] { caption->setText(qString(m_entry.Frame1.Caption)); });
    column->addWidget(caption);
    m_entry.Option1.each([&](OptionButton& option) {
        ChoiceRow* row = bind().option(option);
        const QString key = QString::number(*option.index());
        row->setKeyHint(key);
        bind().follow([this, row, &option, line = *option.index()] {
            const int chosen = m_entry.gewaehlteZeile(m_entry.Kategorie);
            row->setChosen(option.value() || (line > 0 && line == chosen));
            if (line > 0)
                spoken::describe(
                    *row, tr("Zeile %1, %2")
                              .arg(QString::number(line), spoken::colourName(option.BackColor)));
        });
        column->addWidget(row);
        auto* shortcut = new QShortcut(QKeySequence(key), &area);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, row, &ChoiceRow::click);
    });
    bind().oneStop(controlsOf(m_entry.Option1));
    column->addStretch();
    return frame;
}

QBoxLayout* EntryViewAVSV::texts() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    const QString names[] = {tr("Zeugnistext zum Arbeitsverhalten"),
                             tr("Zeugnistext zum Sozialverhalten")};
    m_entry.Text1.each([&](TextBox& box) {
        row->addLayout(entryparts::reportText(bind(), box, names[*box.index()], m_entry.Command6),
                       1);
    });
    return row;
}

} // namespace zeugnis
