#include "desktop/master_data_view.h"

#include "desktop/comfort/class_list_window.h"
#include "desktop/elided_label.h"
#include "desktop/entry_list.h"
#include "desktop/even_rows.h"
#include "desktop/text_editor.h"
#include "desktop/theme.h"
#include "toolkit/flow_row.h"
#include "toolkit/page_area.h"
#include "toolkit/qt_text.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include <optional>
#include <utility>

namespace zeugnis {
namespace {

constexpr int FieldSpacing = 12;
constexpr int ApartFromTheRest = 14; // of what deletes
constexpr int RowLetters = 17;       // of the list of pupils

QFrame* area(const QString& name, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setAccessibleName(name);
    frame->setObjectName(QStringLiteral("area"));
    return frame;
}

QLabel* faintLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(theme::font(theme::Size::Small));
    label->setStyleSheet(QStringLiteral("color: %1").arg(theme::colours().InkFaint.name()));
    return label;
}

// Two or more fields in one row, each with its share of the width.
QBoxLayout* side(std::initializer_list<std::pair<QBoxLayout*, int>> fields) {
    auto* row = new QHBoxLayout;
    row->setSpacing(FieldSpacing);
    for (const auto& [field, share] : fields)
        row->addLayout(field, share);
    return row;
}

} // namespace

MasterDataView::MasterDataView(GsBasis& screen, WindowHost& host, QWidget* below)
    : ScreenWindow(screen, host, below), m_basis(screen) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 14);
    layout->setSpacing(10);
    layout->addLayout(head());
    auto* areas = new QHBoxLayout;
    areas->setSpacing(14);
    areas->addWidget(schoolArea(), 34);
    areas->addWidget(pupilArea(), 66);
    layout->addLayout(areas, 1);
    layout->addLayout(actions());
    orderByUse();
    bind().follow([this] {
        warnBeforeClosing(m_basis.Ungesichert()
                              ? tr("Das Fenster wird geschlossen, ohne zu speichern. Was Sie seit "
                                   "dem letzten Speichern eingegeben haben, geht verloren.\n\n"
                                   "Soll es trotzdem geschlossen werden?")
                              : QString());
    });
    bind().widgetOf(m_basis.Combo1)->setFocus();
    bind().placeOfTexts([this] { return std::vector{m_basis.AktuellerSchueler}; });
    wishSize({1240, 740});
}

QBoxLayout* MasterDataView::head() {
    auto* row = new QHBoxLayout;
    auto* title = new QLabel(qString(m_basis.Frame1.Caption), this);
    title->setFont(theme::font(theme::Size::Heading, QFont::DemiBold));
    row->addWidget(title);
    row->addStretch();
    auto* list = new TintedButton(TintedButton::Role::Quiet, this);
    list->setText(tr("Klassen&liste einlesen …"));
    connect(list, &QAbstractButton::clicked, this,
            [this] { readClassList(m_basis, host(), *this); });
    row->addWidget(list);
    row->addWidget(bind().signButton(m_basis.Command8, QStringLiteral("?"), tr("Hilfe"),
                                     QKeySequence::HelpContents));
    return row;
}

QLayout* MasterDataView::areaHead(const QString& title, const Control& lockedWith,
                                  std::initializer_list<TintedButton*> buttons) {
    constexpr int FirstButton = 2;
    auto* row = new FlowRow(10);
    row->alignRightFrom(FirstButton);
    auto* label = new QLabel(title, this);
    label->setFont(theme::font(theme::Size::Lead, QFont::DemiBold));
    row->addWidget(label);
    auto* lock = new QLabel(tr("gesperrt"), this);
    lock->setObjectName(QStringLiteral("lock"));
    lock->setFont(theme::font(theme::Size::Small));
    bind().follow([lock, title, &lockedWith, told = std::optional<bool>()]() mutable {
        const bool locked = !lockedWith.Enabled;
        lock->setVisible(locked);
        if (std::exchange(told, locked) != locked)
            spoken::announce(*lock, locked ? tr("%1 sind gesperrt.").arg(title)
                                           : tr("%1 sind freigegeben.").arg(title));
    });
    row->addWidget(lock);
    for (TintedButton* button : buttons) {
        if (button->role() == TintedButton::Role::Danger)
            row->setSpaceBefore(row->count(), ApartFromTheRest);
        row->addWidget(button);
    }
    return row;
}

QBoxLayout* MasterDataView::captioned(TextBox& box, const QString& name,
                                      const QString& spokenName) {
    TextEditor* editor =
        bind().line(box, spokenName.isEmpty() ? QString(name).remove(u':') : spokenName);
    QLabel* caption = faintLabel(name, this);
    caption->setBuddy(editor);
    auto* column = new QVBoxLayout;
    column->setSpacing(1);
    column->addWidget(caption);
    column->addWidget(editor);
    return column;
}

QBoxLayout* MasterDataView::schoolField(int index) {
    return captioned(m_basis.Text1(index),
                     qString(Schulfelder.at(static_cast<size_t>(index)).Beschriftung));
}

QBoxLayout* MasterDataView::schoolYear() {
    constexpr int SchoolYear = 3;
    constexpr int BesideText = 22; // frame, space and caret
    QBoxLayout* field = schoolField(SchoolYear);
    QWidget* box = field->itemAt(1)->widget();
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("2026/2027")) +
                         BesideText);
    return field;
}

QBoxLayout* MasterDataView::pupilField(int index) {
    const Schuelerfeld& field = Schuelerfelder.at(static_cast<size_t>(index));
    const bool isBirthplace = field.Wert == &Schueler::Geburtsort;
    return captioned(m_basis.Text2(index), qString(field.Beschriftung),
                     isBirthplace ? tr("geboren in") : QString());
}

QWidget* MasterDataView::schoolArea() {
    QFrame* frame = area(tr("Schuldaten"), this);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(7);
    column->addLayout(areaHead(frame->accessibleName(), m_basis.Text1(0),
                               {bind().button(m_basis.Command3, u'u')}));
    column->addWidget(scrolled(*schoolForm()), 1);
    return frame;
}

QBoxLayout* MasterDataView::schoolForm() {
    auto* column = new QVBoxLayout;
    column->setSpacing(7);
    for (const int field : {0, 1, 2, 10})
        column->addLayout(schoolField(field));
    column->addLayout(side({{schoolField(5), 3}, {schoolYear(), 5}, {schoolField(4), 3}}));
    auto* days = new EvenRows(FieldSpacing);
    for (const int field : {8, 7})
        days->add(*schoolField(field));
    column->addLayout(days);
    column->addLayout(schoolField(9));
    column->addStretch();
    column->addLayout(schoolField(6));
    column->addLayout(pathRow());
    return column;
}

QWidget* MasterDataView::scrolled(QLayout& form) {
    auto* area = new PageArea(this);
    area->fillRoom();
    area->add(form);
    return area;
}

QLayout* MasterDataView::pathRow() {
    auto* row = new FlowRow(8);
    row->alignRightFrom(1);
    QLabel* purpose = bind().label(m_basis.Label5);
    purpose->setFont(theme::font(theme::Size::Small));
    purpose->setWordWrap(false);
    row->addWidget(purpose);
    row->addWidget(bind().button(m_basis.Command7(0), u'P', TintedButton::Role::Quiet));
    row->addWidget(bind().button(m_basis.Command7(1), u'w', TintedButton::Role::Quiet));
    return row;
}

QWidget* MasterDataView::pupilArea() {
    QFrame* frame = area(tr("Schülerdaten"), this);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(7);
    column->addLayout(
        areaHead(frame->accessibleName(), m_basis.Text2(1),
                 {bind().button(m_basis.Command5, u'r'),
                  bind().button(m_basis.Command6, u'o', TintedButton::Role::Quiet),
                  bind().button(m_basis.Command4(0), {}, TintedButton::Role::Danger)}));
    auto* row = new QHBoxLayout;
    row->setSpacing(18);
    row->addLayout(pupilColumn(), 3);
    row->addWidget(scrolled(*pupilForm()), 5);
    column->addLayout(row, 1);
    return frame;
}

QBoxLayout* MasterDataView::pupilColumn() {
    auto* column = new QVBoxLayout;
    column->setSpacing(5);
    EntryList* pupils = bind().wordedList(m_basis.Combo1, tr("Namensliste"),
                                          [this](int index) { return pupilRow(index); });
    pupils->setObjectName(QStringLiteral("compact"));
    pupils->setMinimumWidth(RowLetters * pupils->fontMetrics().averageCharWidth());
    showWhole(*pupils);
    QLabel* caption = faintLabel(tr("&Nummer:"), this);
    caption->setBuddy(pupils);
    column->addWidget(caption);
    column->addWidget(pupils, 1);
    column->addWidget(bind().button(m_basis.Command4(2), u'h'));
    column->addSpacing(ApartFromTheRest);
    column->addWidget(bind().button(m_basis.Command4(1), {}, TintedButton::Role::Danger));
    return column;
}

// What has no room in its row is told by the tool tip.
void MasterDataView::showWhole(EntryList& list) {
    list.setTextElideMode(Qt::ElideRight);
    bind().follow([&list] {
        for (int row = 0; row < list.count(); ++row)
            if (QListWidgetItem& item = *list.item(row); item.toolTip() != item.text())
                item.setToolTip(item.text());
    });
}

QBoxLayout* MasterDataView::pupilForm() {
    auto* column = new QVBoxLayout;
    column->setSpacing(7);
    auto* heading = new ElidedLabel(this);
    heading->setFont(theme::font(theme::Size::Heading, QFont::DemiBold));
    bind().follow([this, heading] { heading->setText(pupilHeading()); });
    column->addWidget(heading);
    column->addLayout(side({{pupilField(1), 1}, {pupilField(2), 1}}));
    column->addWidget(genderRow());
    column->addLayout(side({{pupilField(3), 1}, {pupilField(4), 1}}));
    column->addSpacing(6);
    column->addLayout(workingGroups(), 1);
    const auto group = [this](int index) {
        return captioned(m_basis.Text3(index), tr("AG %1:").arg(index + 1),
                         tr("Arbeitsgemeinschaft %1").arg(index + 1));
    };
    column->addLayout(side({{group(0), 1}, {group(1), 1}}));
    column->addLayout(side({{group(2), 1}, {group(3), 1}}));
    return column;
}

// One stop of the Tab key: m and w choose, as the letters in front of the inscriptions say.
QWidget* MasterDataView::genderRow() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(FieldSpacing);
    constexpr std::array Keys = {Qt::Key_M, Qt::Key_W};
    constexpr std::array Arrows = {Qt::Key_Left, Qt::Key_Right};
    m_basis.Option1.each([&](OptionButton& option) {
        const auto index = static_cast<size_t>(*option.index());
        ChoiceRow* choice = bind().option(option);
        choice->setKeyHint(QKeySequence(Keys.at(index)).toString().toLower());
        layout->addWidget(choice, 1);
        for (const Qt::Key key : {Keys.at(index), Arrows.at(index)}) {
            auto* shortcut = new QShortcut(QKeySequence(key), row);
            shortcut->setContext(Qt::WidgetWithChildrenShortcut);
            connect(shortcut, &QShortcut::activated, choice, &ChoiceRow::click);
        }
        bind().follow([this, choice, &option] {
            const bool isStop =
                option.value() || (*option.index() == 0 && !m_basis.Option1(1).value());
            choice->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
        });
    });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* onwards = new QShortcut(QKeySequence(key), row);
        onwards->setContext(Qt::WidgetWithChildrenShortcut);
        connect(onwards, &QShortcut::activated, this, [this] { focusNextChild(); });
    }
    return row;
}

QBoxLayout* MasterDataView::workingGroups() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    QLabel* title = bind().label(m_basis.Label3(6));
    title->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    column->addWidget(title);
    QLabel* purpose = bind().label(m_basis.Label4);
    purpose->setFont(theme::font(theme::Size::Small));
    column->addWidget(purpose);
    auto* row = new QHBoxLayout;
    row->setSpacing(FieldSpacing);
    EntryList* groups =
        bind().wordedList(m_basis.List1, tr("Arbeitsgemeinschaften"), [this](int index) {
            return qString(m_basis.List1.entries().at(static_cast<size_t>(index)));
        });
    groups->setObjectName(QStringLiteral("compact"));
    showWhole(*groups);
    groups->setMinimumHeight(4 * groups->fontMetrics().lineSpacing() + 20);
    row->addWidget(groups, 1);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(bind().button(m_basis.Command2(0), u'A', TintedButton::Role::Quiet));
    buttons->addSpacing(ApartFromTheRest);
    buttons->addWidget(bind().button(m_basis.Command2(1), {}, TintedButton::Role::Danger));
    buttons->addStretch();
    row->addLayout(buttons, 1);
    column->addLayout(row, 1);
    return column;
}

QBoxLayout* MasterDataView::actions() {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    auto* text = new QLabel(this);
    text->setWordWrap(true);
    bind().follow([this, text] { text->setText(notice()); });
    row->addWidget(text, 1);
    const std::array mnemonics = {QChar(u'B'), QChar(u'E')};
    m_basis.Command1.each([&](Button& button) {
        TintedButton* widget =
            bind().button(button, mnemonics.at(static_cast<size_t>(*button.index())));
        widget->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
        widget->setMinimumSize(110, 40);
        row->addWidget(widget);
    });
    return row;
}

// A pupil after the other first, then what is done once.
void MasterDataView::orderByUse() {
    std::vector<const Control*> order = {&m_basis.Combo1};
    const auto add = [&order](const Control& control) { order.push_back(&control); };
    for (const int index : {1, 2})
        add(m_basis.Text2(index));
    m_basis.Option1.each(add);
    for (const int index : {3, 4})
        add(m_basis.Text2(index));
    m_basis.Text3.each(add);
    for (const Control* control : std::initializer_list<const Control*>{
             &m_basis.Command4(2), &m_basis.Command4(1), &m_basis.Command6, &m_basis.Command4(0),
             &m_basis.Command5, &m_basis.List1, &m_basis.Command2(0), &m_basis.Command2(1),
             &m_basis.Command3})
        order.push_back(control);
    for (const int index : {0, 1, 2, 10, 5, 3, 4, 8, 7, 9, 6})
        add(m_basis.Text1(index));
    m_basis.Command7.each(add);
    m_basis.Command1.each(add);
    add(m_basis.Command8);
    for (size_t i = 1; i < order.size(); ++i)
        setTabOrder(bind().widgetOf(*order[i - 1]), bind().widgetOf(*order[i]));
}

QString MasterDataView::pupilRow(int index) const {
    const Schueler& pupil = m_basis.Liste.Kinder[index];
    QString row = qString(m_basis.Combo1.entries().at(static_cast<size_t>(index)));
    if (!pupil.Nachname.empty() || !pupil.Vorname.empty())
        row += QStringLiteral("   %1, %2").arg(qString(pupil.Nachname), qString(pupil.Vorname));
    return row;
}

QString MasterDataView::pupilHeading() const {
    const QString name =
        qString(m_basis.Text2(2).text() + u" " + m_basis.Text2(1).text()).simplified();
    return QStringLiteral("%1   %2").arg(qString(m_basis.Combo1.Inscription), name);
}

QString MasterDataView::notice() const {
    if (!m_basis.Command3.Enabled)
        return tr("Die Zeugnistexte aller Kinder sind geleert.");
    if (m_basis.SpeicherLoeschen)
        return tr("Speichern, Hinzufügen, Löschen und eine neue Liste leeren die Zeugnistexte "
                  "aller Kinder.");
    return tr("Schuldaten und Schülerdaten sind gesperrt.");
}

} // namespace zeugnis
