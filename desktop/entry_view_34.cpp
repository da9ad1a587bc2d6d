#include "desktop/entry_view_34.h"

#include "desktop/entry_parts.h"
#include "desktop/theme.h"
#include "toolkit/flow_row.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"
#include "years34/colours.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

struct Badge {
    const char* picture;
    const char* name;
};
constexpr std::array<Badge, 7> Badges = {{
    {":/seepferdchen.png", QT_TRANSLATE_NOOP("EntryView34", "Seepferdchen")},
    {":/schwimmen_bronze.png", QT_TRANSLATE_NOOP("EntryView34", "Schwimmabzeichen Bronze")},
    {":/schwimmen_silber.png", QT_TRANSLATE_NOOP("EntryView34", "Schwimmabzeichen Silber")},
    {":/schwimmen_gold.png", QT_TRANSLATE_NOOP("EntryView34", "Schwimmabzeichen Gold")},
    {":/sport_bronze.png", QT_TRANSLATE_NOOP("EntryView34", "Sportabzeichen Bronze")},
    {":/sport_silber.png", QT_TRANSLATE_NOOP("EntryView34", "Sportabzeichen Silber")},
    {":/radfahren.png", QT_TRANSLATE_NOOP("EntryView34", "Radfahrprüfung")},
}};
// The first and the last badge behind each heading.
constexpr std::array<std::pair<int, int>, 3> BadgeGroups = {{{0, 3}, {4, 5}, {6, 6}}};

QVBoxLayout* column() {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(1);
    return layout;
}

QFrame* line(QFrame::Shape shape) {
    auto* frame = new QFrame;
    frame->setFrameShape(shape);
    frame->setForegroundRole(QPalette::Mid);
    spoken::silence(*frame);
    return frame;
}

// Stands where a sentence goes on to the right.
QLabel* readOn() {
    auto* arrow = new QLabel(QStringLiteral("›"));
    arrow->setFont(theme::font(theme::Size::Title));
    QPalette palette;
    palette.setColor(QPalette::WindowText, theme::colours().OutlineStrong);
    arrow->setPalette(palette);
    spoken::silence(*arrow);
    return arrow;
}

} // namespace

EntryView34::EntryView34(GSAGFI& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_entry(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 10, 20, 10);
    layout->setSpacing(7);
    layout->addLayout(entryparts::head(
        bind(),
        {m_entry.Picture1, m_entry.Label1, m_entry.Label5, m_entry.Command8, m_entry.Combo1},
        {{m_entry.Command2(0), u'F'}, {m_entry.Command2(1), u'I'}, {m_entry.Command2(2), u'm'}}));
    m_entry.Command2.each([this](Button& button) {
        auto* widget = dynamic_cast<TintedButton*>(bind().widgetOf(button));
        bind().follow([this, widget, page = *button.index()] {
            widget->setMarked(m_entry.Rahmen.at(static_cast<size_t>(page))->Visible);
            spoken::describe(*widget,
                             !widget->isEnabled() ? QString()
                             : m_entry.Textfelder.at(static_cast<size_t>(page))->text().empty()
                                 ? tr("noch leer")
                                 : tr("hat einen Text"));
        });
    });
    bind().oneStop(controlsOf(m_entry.Command2));
    layout->addWidget(entryparts::nextStep(bind(), m_entry.Label2));
    layout->addWidget(pages());
    layout->addLayout(texts(), 1);
    layout->addLayout(entryparts::actions(bind(), {.Reset = {m_entry.Command1(2), u'n'},
                                                   .ShowPhrases = {m_entry.Command7(0), u'z'},
                                                   .HidePhrases = {m_entry.Command7(1), u'v'},
                                                   .Save = {m_entry.Command1(0), u'T'},
                                                   .Leave = {m_entry.Command1(1), u'b'}}));
    warnBeforeClosing(entryparts::lostSinceSaving());
    bind().placeOfTexts([this] { return std::vector{m_entry.AktuellerSchueler, m_entry.Seite}; });
    wishSize({1220, 760});
}

// The lock sign lies above the pages, in the corner where they end.
QWidget* EntryView34::pages() {
    auto* area = new PageArea(this);
    area->add(*support());
    area->add(*interests());
    area->add(*remarks());
    area->add(*entryparts::lockSign(bind(), m_entry.Picture2), Qt::AlignRight | Qt::AlignBottom);
    return area;
}

QVBoxLayout* EntryView34::beginPage(Frame& frame, Label* hint) {
    auto* layout = new QVBoxLayout(bind().frame(frame));
    layout->setContentsMargins(14, 8, 14, 10);
    layout->setSpacing(8);
    auto* top = new QHBoxLayout;
    auto* caption = new QLabel(qString(frame.Caption));
    caption->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
    top->addWidget(caption);
    if (hint != nullptr) {
        QLabel* widget = bind().label(*hint);
        widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        widget->setFont(theme::font(theme::Size::Small));
        top->addWidget(widget, 1);
    } else {
        top->addStretch();
    }
    layout->addLayout(top);
    return layout;
}

QLabel* EntryView34::heading(Label& label) {
    QLabel* widget = bind().label(label);
    widget->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    return widget;
}

// Words of a sentence that are set by the program; they wear the colour of a choice.
QLabel* EntryView34::sentencePart(Label& label) {
    QLabel* widget = bind().label(label);
    widget->setMargin(5);
    widget->setIndent(6);
    return widget;
}

// The colour is the choice; the mark shows only the last press.
ChoiceRow* EntryView34::choice(OptionButton& option) {
    ChoiceRow* row = bind().option(option);
    bind().follow(
        [row, &option] { row->setChosen(option.BackColor == jahrgang34::farben::Aktiv); });
    return row;
}

// One below the other, in the middle of their place.
QBoxLayout* EntryView34::rows(const ControlArray<OptionButton>& options) {
    QVBoxLayout* layout = column();
    layout->addStretch();
    options.each([&](OptionButton& option) { layout->addWidget(choice(option)); });
    bind().oneStop(controlsOf(options));
    layout->addStretch();
    return layout;
}

QBoxLayout* EntryView34::rows(const ControlArray<CheckBox>& boxes) {
    QVBoxLayout* layout = column();
    boxes.each([&](CheckBox& box) { layout->addWidget(bind().check(box)); });
    return layout;
}

// Read down the left column, then down the right one.
QGridLayout* EntryView34::twoColumns(const ControlArray<OptionButton>& options) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(1);
    const int half = (options.last() + 1) / 2;
    for (int i = 0; i <= options.last(); ++i)
        grid->addWidget(choice(options(i)), i % half, i / half);
    bind().oneStop(controlsOf(options));
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QWidget* EntryView34::support() {
    QVBoxLayout* layout = beginPage(m_entry.Frame1, &m_entry.Label8);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(18);
    halves->addLayout(supportSentence(), 1);
    halves->addWidget(line(QFrame::VLine));
    halves->addLayout(groups(), 1);
    layout->addLayout(halves);
    layout->addStretch();
    return layout->parentWidget();
}

QBoxLayout* EntryView34::supportSentence() {
    QVBoxLayout* left = column();
    left->addWidget(heading(m_entry.Label3));
    left->addSpacing(4);
    left->addWidget(sentencePart(m_entry.Label7(0)));
    QBoxLayout* kinds = rows(m_entry.Check1);
    // Its module is empty, and a click on it would end the program.
    m_entry.Check1.each([this](const CheckBox& kind) {
        bind().holdBack(kind, [&kind] { return kind.Caption.empty(); });
        if (QWidget* row = bind().widgetOf(kind); kind.Caption.empty())
            row->setToolTip(tr("Dieser Textbaustein ist leer. In der Werkzeugkiste können Sie ihn "
                               "wieder mit Text füllen."));
    });
    kinds->setContentsMargins(24, 3, 0, 3);
    left->addLayout(kinds);
    left->addWidget(sentencePart(m_entry.Label7(1)));
    left->addStretch();
    return left;
}

QBoxLayout* EntryView34::groups() {
    QVBoxLayout* right = column();
    right->addWidget(heading(m_entry.Label4));
    right->addSpacing(4);
    right->addLayout(rows(m_entry.Option6));
    right->addStretch();
    return right;
}

QWidget* EntryView34::interests() {
    QVBoxLayout* layout = beginPage(m_entry.Frame2, nullptr);
    layout->addLayout(twoColumns(m_entry.Option1));
    layout->addWidget(line(QFrame::HLine));
    layout->addLayout(badges());
    layout->addStretch();
    return layout->parentWidget();
}

QLayout* EntryView34::badges() {
    auto* row = new FlowRow(24);
    row->alignRightFrom(static_cast<int>(BadgeGroups.size()));
    for (size_t group = 0; group < BadgeGroups.size(); ++group) {
        QVBoxLayout* part = column();
        QLabel* name = heading(m_entry.Label16(static_cast<int>(group)));
        name->setWordWrap(false);
        part->addWidget(name);
        auto* pictures = new QHBoxLayout;
        pictures->setSpacing(4);
        for (int i = BadgeGroups.at(group).first; i <= BadgeGroups.at(group).second; ++i) {
            const Badge& badge = Badges.at(static_cast<size_t>(i));
            pictures->addWidget(bind().pictureCheck(
                m_entry.Check3(i), QPixmap(QString::fromLatin1(badge.picture)), tr(badge.name)));
        }
        pictures->addStretch();
        part->addLayout(pictures);
        row->add(*part);
    }
    return row;
}

QWidget* EntryView34::remarks() {
    QVBoxLayout* layout = beginPage(m_entry.Frame3, &m_entry.Label10);
    layout->addLayout(markSentence());
    layout->addWidget(line(QFrame::HLine));
    layout->addLayout(learningSentence());
    layout->addWidget(line(QFrame::HLine));
    layout->addLayout(twoColumns(m_entry.Option4));
    layout->addStretch();
    return layout->parentWidget();
}

// Both sentences are read from left to right.
QBoxLayout* EntryView34::markSentence() {
    auto* row = new QHBoxLayout;
    row->addWidget(sentencePart(m_entry.Label9(0)), 3);
    row->addWidget(readOn());
    m_entry.Check2.each([&](CheckBox& box) {
        ChoiceRow* subject = bind().check(box);
        bind().follow(
            [this, subject] { spoken::describe(*subject, qString(m_entry.Label9(0).Caption)); });
        row->addWidget(subject, 4);
    });
    row->addWidget(readOn());
    row->addWidget(sentencePart(m_entry.Label9(1)), 8);
    return row;
}

QBoxLayout* EntryView34::learningSentence() {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(rows(m_entry.Option2), 6);
    row->addWidget(readOn());
    row->addLayout(rows(m_entry.Check5), 4);
    row->addWidget(readOn());
    row->addLayout(rows(m_entry.Option3), 6);
    row->addWidget(readOn());
    row->addWidget(sentencePart(m_entry.Label6), 5);
    return row;
}

// One at a time is shown.
QLayout* EntryView34::texts() {
    auto* place = new QGridLayout;
    const QString names[] = {tr("Zeugnistext zu Förderteilnahme und Arbeitsgemeinschaften"),
                             tr("Zeugnistext zu den Interessen"),
                             tr("Zeugnistext zu den Bemerkungen")};
    for (size_t i = 0; i < m_entry.Textfelder.size(); ++i)
        place->addLayout(entryparts::reportText(bind(), *m_entry.Textfelder.at(i), names[i],
                                                m_entry.Command1(2)),
                         0, 0);
    return place;
}

} // namespace zeugnis
