#include "desktop/comfort/class_rail.h"

#include "comfort/entry_flow.h"
#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "desktop/comfort/check_thread.h"
#include "desktop/comfort/rail_row.h"
#include "desktop/comfort/text_hints.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "files/file_catalogue.h"
#include "files/pupil_list.h"
#include "toolkit/entry_combo.h"
#include "toolkit/qt_text.h"
#include "toolkit/twin_window.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
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
                     stateWord(state.Seiten[page].Stand);
    QString words = qString(state.Name) + QStringLiteral(". ") + pages.join(QStringLiteral(", "));
    for (const Seitenblick& page : state.Seiten)
        for (const Text& hint : page.Hinweise)
            words += QStringLiteral("\n") + qString(hint);
    return words;
}

// A tool tip that breaks its lines.
QString asTip(const QString& words) {
    return QStringLiteral("<p>%1</p>")
        .arg(words.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>• ")));
}

} // namespace

ClassRail::ClassRail(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry)
    : QWidget(&window),
      m_window(window),
      m_host(host),
      m_entry(entry),
      m_hints(new TextHints(CheckThread::of(host), entry, this)),
      m_overview(entry),
      m_sentence(new QLabel(this)),
      m_hintButton(new QPushButton(&window)),
      m_list(new QListWidget(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    m_sentence->setFont(theme::font(theme::Size::Small, QFont::DemiBold));
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
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QWidget::customContextMenuRequested, this, &ClassRail::showMenu);
    m_hintButton->setObjectName(QStringLiteral("link"));
    m_hintButton->setFont(theme::font(theme::Size::Small));
    m_hintButton->setCursor(Qt::PointingHandCursor);
    m_hintButton->setToolTip(tr("Zeigen, was an den Texten dieses Kindes auffällt (F3)"));
    m_hintButton->hide();
    connect(m_hintButton, &QPushButton::clicked, this, &ClassRail::openHints);
    auto* shortcut = new QShortcut(Qt::Key_F3, &window);
    connect(shortcut, &QShortcut::activated, this, &ClassRail::openHints);
    connect(&CheckThread::of(host), &CheckThread::wordsLearnt, m_hints,
            &TextHints::knowledgeChanged);
    connect(m_hints, &TextHints::found, &host, [&host] { host.refresh(); });
    window.installEventFilter(this);
    window.follow([this] { follow(); });
    // Not before the window has come up.
    QTimer::singleShot(0, this, [this] {
        m_overview = Klassenuebersicht(
            m_entry, [this](const Textfrage& question) { return m_hints->of(question); });
        m_host.refresh();
    });
}

void ClassRail::follow() {
    m_states = m_overview.Staende();
    m_sentence->setText(qString(Klassenuebersicht::Satz(m_states)));
    showStates(m_states);
    markPupils(m_states);
    showHintCount();
}

QWidget* ClassRail::hintButton() const { return m_hintButton; }

void ClassRail::showHintCount() {
    const int child = m_entry.Kinder->listIndex();
    qsizetype count = 0;
    if (child >= 0 && child < static_cast<int>(m_states.size()))
        for (const Seitenblick& page : m_states[static_cast<size_t>(child)].Seiten)
            count += static_cast<qsizetype>(page.Hinweise.size());
    m_hintButton->setText(count == 1 ? tr("1 Hinweis (F3)") : tr("%1 Hinweise (F3)").arg(count));
    m_hintButton->setVisible(count > 0);
}

void ClassRail::openHints() {
    if (!m_hintButton->isVisible())
        return;
    QMenu menu(m_hintButton);
    addHints(menu, m_entry.Kinder->listIndex());
    const QSize size = menu.sizeHint();
    menu.exec(
        m_hintButton->mapToGlobal(QPoint(m_hintButton->width() - size.width(), -size.height())));
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
            item.setToolTip(asTip(words));
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
        const Kinderstand& state = states[static_cast<size_t>(row)];
        const QString tip = isHidden() ? asTip(told(state, m_entry)) : QString();
        // Each change of an entry lets the list measure all of them.
        if (pupils->itemData(row, Qt::ToolTipRole).toString() == tip)
            continue;
        pupils->setItemIcon(row, isHidden() ? RailRow::sign(state) : QIcon());
        pupils->setItemData(row, tip, Qt::ToolTipRole);
    }
}

void ClassRail::choose(int row) {
    if (row == m_entry.Kinder->listIndex() || !m_host.mayAct(*m_entry.Kinder)) {
        m_list->setCurrentRow(m_entry.Kinder->listIndex());
        return;
    }
    m_host.run([&] { user::pick(*m_entry.Kinder, row); });
}

void ClassRail::giveWay(bool away) {
    m_givesWay = away;
    foldIfNarrow();
}

void ClassRail::foldIfNarrow() {
    const bool narrow =
        m_givesWay || m_window.width() < NarrowestWindow * fontMetrics().height() / 20;
    if (narrow == isHidden())
        return;
    setVisible(!narrow);
    markPupils(m_states);
}

void ClassRail::showMenu(const QPoint& place) {
    const QListWidgetItem* item = m_list->itemAt(place);
    const int child = item != nullptr ? m_list->row(item) : m_list->currentRow();
    if (child < 0 || child >= static_cast<int>(m_states.size()))
        return;
    QMenu menu(this);
    addHints(menu, child);
    menu.exec(m_list->viewport()->mapToGlobal(place));
}

void ClassRail::addHints(QMenu& menu, int child) {
    const std::vector<Seitenblick>& pages = m_states.at(static_cast<size_t>(child)).Seiten;
    for (size_t i = 0; i < pages.size(); ++i) {
        const int page = static_cast<int>(i);
        for (const Text& hint : pages[i].Hinweise)
            menu.addAction(qString(hint).replace(u'&', QStringLiteral("&&")), this,
                           [this, child, page] { lead(child, page); });
        for (const Zwilling& twin : pages[i].Zwillinge)
            menu.addAction(
                tr("Neben den Text von %1 stellen …")
                    .arg(qString(m_states.at(static_cast<size_t>(twin.Platz)).Name)),
                this, [this, page, child, other = twin.Platz] { showTwins(page, child, other); });
    }
    if (menu.isEmpty())
        menu.addAction(tr("Kein Hinweis"))->setEnabled(false);
}

void ClassRail::lead(int child, int page) {
    if (child != m_entry.Kinder->listIndex() && !m_host.mayAct(*m_entry.Kinder))
        return;
    m_host.run([&] { Eingabefluss(m_entry).Hinfuehren(child, page); });
}

void ClassRail::showTwins(int page, int child, int other) {
    const auto side = [&](int one) {
        return TwinWindow::Side{.name = qString(m_states.at(static_cast<size_t>(one)).Name),
                                .text = m_entry.TextVon(page, one),
                                .way = tr("Zu diesem Text"),
                                .lead = [this, one, page] { lead(one, page); }};
    };
    TwinWindow twins(pageName(*m_entry.Seiten[static_cast<size_t>(page)]), side(child),
                     {side(other)}, &m_window);
    twins.exec();
}

bool ClassRail::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        foldIfNarrow();
    // In the report window words may have been learnt, and hints been marked as seen.
    if (event->type() == QEvent::WindowActivate) {
        CheckThread::of(m_host).readAnew();
        m_hints->knowledgeChanged();
        m_overview.NeuPruefen();
        QMetaObject::invokeMethod(m_hints, &TextHints::found, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zeugnis
