#include "desktop/entry_view_12.h"

#include "desktop/entry_parts.h"
#include "desktop/even_rows.h"
#include "desktop/picture_view.h"
#include "desktop/theme.h"
#include "toolkit/entry_combo.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

using jahrgang12::bereich;
using jahrgang12::Bereichszahl;
using jahrgang12::gruppe;
using jahrgang12::gruppeNamens;
using jahrgang12::Gruppenzahl;
using jahrgang12::SeiteBemerkungen;
using jahrgang12::SeiteInteressen;

constexpr QChar PageKeys[] = {u'I', u'S', u'L', u'c', u'Z', u'G', u'R', u'm'};

// The column of each group of a page, in the order of the groups: read from left to right, and
// row by row.
constexpr std::array<const char*, Bereichszahl> Columns = {"",        "012",   "012012", "012012",
                                                           "0112012", "01201", "012012", ""};

struct Badge {
    const char* picture;
    const char* name;
};
constexpr std::array<Badge, 4> Badges = {{
    {":/seepferdchen.png", QT_TRANSLATE_NOOP("EntryView12", "Seepferdchen")},
    {":/schwimmen_bronze.png", QT_TRANSLATE_NOOP("EntryView12", "Schwimmabzeichen Bronze")},
    {":/sport_bronze.png", QT_TRANSLATE_NOOP("EntryView12", "Sportabzeichen Bronze")},
    {":/sport_silber.png", QT_TRANSLATE_NOOP("EntryView12", "Sportabzeichen Silber")},
}};

QVBoxLayout* column() {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(1);
    return layout;
}

constexpr Farbwert Marked = jahrgang12::farbe(jahrgang12::farben::Markiert);

// A page with so many options that their rows have to stand close.
bool isDense(int page) {
    int options = 0;
    for (const jahrgang12::Gruppe& one : jahrgang12::Gruppen)
        if (one.Seite == page)
            options += one.LetzterKnopf - one.ErsterKnopf + 1;
    return options > 24;
}

QFont rowFont() { return theme::font(theme::Size::Small); }

} // namespace

EntryView12::EntryView12(Kompetenzen& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_entry(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 8, 14, 8);
    layout->setSpacing(6);
    layout->addLayout(head());
    layout->addWidget(entryparts::nextStep(bind(), m_entry.Label7), 1);
    layout->addWidget(pages());
    layout->addLayout(texts(), 1);
    layout->addLayout(actions());
    jumpBetweenPageAndText();
    warnBeforeClosing(entryparts::lostSinceSaving());
    bind().placeOfTexts([this] { return std::vector{m_entry.aktSchueler, m_entry.aktSeite}; });
    wishSize({1270, 760});
}

// Two rows, so that the pages have the room that they need.
QBoxLayout* EntryView12::head() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(bind().picture(m_entry.Picture1, {72, 96}, tr("Bild des Kindes")));
    auto* rows = new QVBoxLayout;
    rows->setSpacing(6);
    rows->addLayout(titleRow());
    rows->addLayout(pageButtons());
    row->addLayout(rows, 1);
    return row;
}

QBoxLayout* EntryView12::titleRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(entryparts::pupilList(bind(), m_entry.Combo1), 1);
    entryparts::addTitle(*row, bind(), m_entry.Label1, m_entry.Label2, theme::Size::Small);
    row->addWidget(bind().signButton(m_entry.Command8, QStringLiteral("?"), tr("Hilfe"),
                                     QKeySequence::HelpContents));
    return row;
}

QLayout* EntryView12::pageButtons() {
    auto* row = new EvenRows(6);
    m_entry.Command1.each([&](Button& button) {
        const int page = *button.index();
        TintedButton* widget = bind().button(button, PageKeys[page]);
        widget->setFont(theme::font(theme::Size::Small));
        bind().follow([this, widget, page] {
            widget->setMarked(m_entry.Frame1(page).Visible);
            widget->setContent(!m_entry.NameGewaehlt ? TintedButton::Content::Unknown
                               : m_entry.Text1(page).text().empty()
                                   ? TintedButton::Content::Empty
                                   : TintedButton::Content::Filled);
        });
        row->addWidget(widget);
    });
    bind().oneStop(controlsOf(m_entry.Command1));
    return row;
}

QWidget* EntryView12::pages() {
    auto* area = new PageArea(this);
    area->add(*interests());
    for (int page = SeiteInteressen + 1; page < SeiteBemerkungen; ++page)
        area->add(*competences(page, Columns.at(static_cast<size_t>(page))));
    area->add(*remarks());
    area->add(*entryparts::lockSign(bind(), m_entry.Picture2), Qt::AlignCenter);
    return area;
}

QVBoxLayout* EntryView12::beginPage(int page) {
    QFrame* frame = bind().frame(m_entry.Frame1(page));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(10, 9, 10, 9);
    layout->setSpacing(4);
    return layout;
}

void EntryView12::addOpening(QBoxLayout& column, int label) {
    QLabel* widget = bind().label(m_entry.label(label));
    widget->setFont(theme::font(theme::Size::Small, QFont::DemiBold));
    widget->setMargin(2);
    widget->setIndent(8);
    column.addWidget(widget);
}

void EntryView12::addOptions(QBoxLayout& column, int group, int first, int last) {
    for (int i = first; i <= last; ++i) {
        OptionButton& option = m_entry.options(group)(i);
        ChoiceRow* row = bind().option(option);
        row->setFont(rowFont());
        if (isDense(gruppe(group).Seite))
            row->setCompact();
        // What colour and place tell, a screen reader has to say.
        bind().follow([this, row, &option, opening = gruppe(group).Oeffnung] {
            row->setChosen(option.BackColor == Marked);
            if (opening != 0)
                spoken::describe(*row, qString(m_entry.label(opening).Caption));
        });
        column.addWidget(row);
    }
}

void EntryView12::oneStop(int group) {
    std::vector<const Control*> rows;
    for (int i = gruppe(group).ErsterKnopf; i <= gruppe(group).LetzterKnopf; ++i)
        rows.push_back(&m_entry.options(group)(i));
    bind().oneStop(rows);
}

void EntryView12::addBox(QBoxLayout& column, CheckBox& box) {
    ChoiceRow* row = bind().check(box);
    row->setFont(rowFont());
    column.addWidget(row);
}

void EntryView12::addGroup(QBoxLayout& column, int group) {
    const int opening = gruppe(group).Oeffnung;
    const bool goesOn = group > 0 && opening == gruppe(group - 1).Oeffnung;
    if (opening != 0 && !goesOn)
        addOpening(column, opening);
    addOptions(column, group, gruppe(group).ErsterKnopf, gruppe(group).LetzterKnopf);
    oneStop(group);
}

QWidget* EntryView12::competences(int page, const char* columns) {
    QVBoxLayout* layout = beginPage(page);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(9);
    int row = 0;
    int last = -1;
    QVBoxLayout* cell = nullptr;
    for (int group = 0; group < Gruppenzahl; ++group) {
        if (gruppe(group).Seite != page)
            continue;
        const int place = *columns++ - '0';
        if (place < last)
            ++row;
        if (place != last) {
            if (cell != nullptr)
                cell->addStretch();
            cell = column();
            grid->addLayout(cell, row, place);
        } else {
            cell->addSpacing(6);
        }
        last = place;
        addGroup(*cell, group);
    }
    cell->addStretch();
    for (const int place : {0, 1, 2})
        grid->setColumnStretch(place, 1);
    layout->addLayout(grid);
    return layout->parentWidget();
}

QWidget* EntryView12::interests() {
    QVBoxLayout* layout = beginPage(SeiteInteressen);
    auto* columns = new QGridLayout;
    columns->setHorizontalSpacing(12);
    columns->setVerticalSpacing(1);
    QVBoxLayout* name = column();
    addOpening(*name, 3);
    columns->addLayout(name, 0, 0, 1, 2);
    constexpr int Interests = gruppeNamens(u"Option1");
    for (const int half : {0, 1}) {
        QVBoxLayout* options = column();
        addOptions(*options, Interests, half * 8, half * 8 + 7);
        options->addStretch();
        columns->addLayout(options, 1, half);
    }
    oneStop(Interests);
    columns->addLayout(badges(), 0, 2, 2, 1);
    for (const int place : {0, 1, 2})
        columns->setColumnStretch(place, 1);
    layout->addLayout(columns);
    return layout->parentWidget();
}

QBoxLayout* EntryView12::badges() {
    QVBoxLayout* part = column();
    for (const auto& [label, first] : {std::pair(16, 0), std::pair(28, 2)}) {
        addOpening(*part, label);
        auto* pictures = new QHBoxLayout;
        pictures->setSpacing(8);
        for (int i = first; i <= first + 1; ++i) {
            const Badge& badge = Badges.at(static_cast<size_t>(i));
            pictures->addWidget(bind().pictureCheck(
                m_entry.Check1(i), QPixmap(QString::fromLatin1(badge.picture)), tr(badge.name)));
        }
        pictures->addStretch();
        part->addLayout(pictures);
        part->addSpacing(10);
    }
    part->addStretch();
    return part;
}

QWidget* EntryView12::remarks() {
    QVBoxLayout* layout = beginPage(SeiteBemerkungen);
    auto* fixed = new QHBoxLayout;
    fixed->setSpacing(12);
    m_entry.Check2.each([&](CheckBox& box) {
        QVBoxLayout* half = column();
        addBox(*half, box);
        fixed->addLayout(half, 1);
    });
    layout->addLayout(fixed);
    layout->addSpacing(6);
    layout->addLayout(subjects());
    layout->addSpacing(6);
    constexpr int Promotion = gruppeNamens(u"Option21");
    auto* promotion = new QHBoxLayout;
    promotion->setSpacing(12);
    for (const auto& [first, last] : {std::pair(0, 1), std::pair(2, 3)}) {
        QVBoxLayout* half = column();
        addOptions(*half, Promotion, first, last);
        promotion->addLayout(half, 1);
    }
    oneStop(Promotion);
    layout->addLayout(promotion);
    return layout->parentWidget();
}

// One sentence, read from left to right: its opening, the subjects, its tail.
QGridLayout* EntryView12::subjects() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    QVBoxLayout* opening = column();
    addOpening(*opening, jahrgang12::LabelFaecher);
    opening->addStretch();
    QLabel* hint = bind().label(m_entry.label(6));
    hint->setFont(theme::font(theme::Size::Small));
    hint->setMargin(4);
    opening->addWidget(hint);
    QVBoxLayout* boxes = column();
    m_entry.Check3.each([&](CheckBox& box) { addBox(*boxes, box); });
    QVBoxLayout* tails = column();
    constexpr int Tails = gruppeNamens(u"Option23");
    addOptions(*tails, Tails, gruppe(Tails).ErsterKnopf, gruppe(Tails).LetzterKnopf);
    oneStop(Tails);
    tails->addStretch();
    grid->addLayout(opening, 0, 0);
    grid->addLayout(boxes, 0, 1);
    grid->addLayout(tails, 0, 2);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 6);
    return grid;
}

QBoxLayout* EntryView12::texts() {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    m_entry.Text1.each([&](TextBox& box) {
        const int page = *box.index();
        auto* place = new QWidget(this);
        place->setLayout(
            entryparts::reportText(bind(), box, qString(bereich(page).Name), m_entry.Command4));
        place->layout()->setContentsMargins(0, 0, 0, 0);
        row->addWidget(place);
        // The text that is worked on has more room than its neighbours.
        bind().follow([row, place, &box] {
            place->setVisible(box.Visible);
            row->setStretchFactor(place, box.Enabled ? 2 : 1);
        });
        QWidget* editor = bind().widgetOf(box);
        editor->setFont(theme::font(theme::Size::Body));
        editor->setMinimumHeight(3 * editor->fontMetrics().lineSpacing() + 12);
        editor->setAccessibleName(tr("Zeugnistext: %1").arg(qString(bereich(page).Name)));
    });
    return row;
}

QBoxLayout* EntryView12::actions() {
    return entryparts::actions(bind(), {.Reset = {m_entry.Command4, u'n'},
                                        .ShowPhrases = {m_entry.Command7(0), u'f'},
                                        .HidePhrases = {m_entry.Command7(1), u'h'},
                                        .Save = {m_entry.Command2, u'T'},
                                        .Leave = {m_entry.Command3, u'b'}});
}

// From the choices, which are many, to their text and back.
void EntryView12::jumpBetweenPageAndText() {
    auto* shortcut = new QShortcut(Qt::Key_F6, this);
    connect(shortcut, &QShortcut::activated, this, [this] {
        QWidget* text = bind().widgetOf(m_entry.Text1(m_entry.aktSeite));
        if (text->isVisible() && focusWidget() != text)
            text->setFocus(Qt::ShortcutFocusReason);
        else
            bind().widgetOf(m_entry.Command1(m_entry.aktSeite))->setFocus(Qt::ShortcutFocusReason);
    });
}

} // namespace zeugnis
