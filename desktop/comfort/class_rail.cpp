#include "desktop/comfort/class_rail.h"

#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "desktop/comfort/rail_row.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "files/file_catalogue.h"
#include "files/pupil_list.h"
#include "toolkit/entry_combo.h"
#include "toolkit/qt_text.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace zeugnis {
namespace {

constexpr int WidthInLetters = 24;

QString stateWord(Seitenstand state) {
    switch (state) {
    case Seitenstand::Leer:
        return ClassRail::tr("leer");
    case Seitenstand::MitText:
        return ClassRail::tr("Text");
    case Seitenstand::MitHinweis:
        return ClassRail::tr("Text mit Hinweis");
    }
    return {};
}

// What a page is called: its button's inscription without line ends.
QString pageName(const Button& button) { return qString(button.Caption).simplified(); }

QString told(const Kinderstand& state, const Eingabeschirm& entry) {
    QStringList pages;
    for (size_t page = 0; page < state.Seiten.size(); ++page)
        pages << pageName(*entry.Seiten[page]) + QStringLiteral(": ") +
                     stateWord(state.Seiten[page]);
    return qString(state.Name) + QStringLiteral(". ") + pages.join(QStringLiteral(", "));
}

} // namespace

ClassRail::ClassRail(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry)
    : QWidget(&window),
      m_window(window),
      m_host(host),
      m_entry(entry),
      m_overview(entry),
      m_sentence(new QLabel(this)),
      m_list(new QListWidget(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    m_sentence->setFont(theme::scaledFont(0.92, QFont::DemiBold));
    m_sentence->setWordWrap(true);
    column->addWidget(m_sentence);
    column->addWidget(m_list, 1);
    m_list->setObjectName(QStringLiteral("classRail"));
    m_list->setAccessibleName(tr("Kinder der Klasse"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setItemDelegate(new RailRow(m_host.program().directory(), m_list));
    setFixedWidth(WidthInLetters * fontMetrics().averageCharWidth());
    connect(m_list, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { choose(m_list->row(item)); });
    connect(m_list, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { choose(m_list->row(item)); });
    window.installEventFilter(this);
    window.follow([this] { follow(); });
}

void ClassRail::follow() {
    const std::vector<Kinderstand> states = m_overview.Staende();
    m_sentence->setText(qString(Klassenuebersicht::Satz(states)));
    showStates(states);
    markPupils(states);
}

void ClassRail::showStates(const std::vector<Kinderstand>& states) {
    const QSignalBlocker quiet(m_list);
    const int count = static_cast<int>(states.size());
    while (m_list->count() > count)
        delete m_list->takeItem(count);
    for (int row = 0; row < count; ++row) {
        if (row == m_list->count())
            m_list->addItem(new QListWidgetItem);
        const Kinderstand& state = states[static_cast<size_t>(row)];
        QListWidgetItem& item = *m_list->item(row);
        RailRow::set(item, state, BildnameVon(m_entry.Liste->Kinder[row]) + u".jpg");
        const QString words = told(state, m_entry);
        if (item.data(Qt::AccessibleTextRole) != words) {
            item.setData(Qt::AccessibleTextRole, words);
            item.setToolTip(words);
        }
    }
    m_list->setCurrentRow(m_entry.Kinder->listIndex());
}

// Folded away, the list of pupils tells it.
void ClassRail::markPupils(const std::vector<Kinderstand>& states) {
    auto* pupils = qobject_cast<EntryCombo*>(m_window.widgetOf(*m_entry.Kinder));
    if (pupils == nullptr)
        return;
    for (int row = 0; row < std::min(pupils->count(), static_cast<int>(states.size())); ++row) {
        pupils->setItemIcon(row,
                            isHidden() ? RailRow::sign(states[static_cast<size_t>(row)]) : QIcon());
        pupils->setItemData(
            row, isHidden() ? told(states[static_cast<size_t>(row)], m_entry) : QString(),
            Qt::ToolTipRole);
    }
}

void ClassRail::choose(int row) {
    if (row == m_entry.Kinder->listIndex() || !m_host.mayAct(*m_entry.Kinder)) {
        m_list->setCurrentRow(m_entry.Kinder->listIndex());
        return;
    }
    m_host.run([&] { user::pick(*m_entry.Kinder, row); });
}

void ClassRail::foldIfNarrow() {
    const bool narrow = m_window.width() < NarrowestWindow * fontMetrics().height() / 20;
    if (narrow == isHidden())
        return;
    setVisible(!narrow);
    markPupils(m_overview.Staende());
}

bool ClassRail::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        foldIfNarrow();
    return QWidget::eventFilter(watched, event);
}

} // namespace zeugnis
