#include "desktop/comfort/choice_keeper.h"

#include "controls/screen.h"
#include "desktop/choice_row.h"
#include "desktop/screen_window.h"
#include "desktop/spoken.h"
#include "desktop/theme.h"
#include "desktop/tinted_button.h"
#include "desktop/window_host.h"
#include "toolkit/qt_text.h"

#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace zeugnis {
namespace {

// The number of the line behind a category's button in "Command3(1) Option1(4)".
QString lineOf(const std::vector<Text>& lines, const Text& category) {
    for (const Text& line : lines)
        if (line.starts_with(category + u" "))
            return qString(line.substr(line.rfind(u'(') + 1)).chopped(1);
    return {};
}

} // namespace

ChoiceKeeper::ChoiceKeeper(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry)
    : QObject(&window),
      m_window(window),
      m_host(host),
      m_entry(entry),
      m_memory(entry),
      m_screenName(entry.Bildschirm->name()),
      m_keptIn(host.beside.programFolder),
      m_link(new QPushButton(tr("Auswahl wiederholen (F7)"), &window)) {
    if (!m_keptIn.empty())
        m_memory.Uebernehmen(m_setDown = AuswahlLesen(m_keptIn, m_screenName));
    m_link->setObjectName(QStringLiteral("link"));
    m_link->setFont(theme::font(theme::Size::Small));
    m_link->setCursor(Qt::PointingHandCursor);
    m_link->setToolTip(tr("Wählt die Zeilen noch einmal, aus denen der gelöschte Text bestand. Was "
                          "Sie schon neu gewählt haben, bleibt."));
    connect(m_link, &QPushButton::clicked, this, &ChoiceKeeper::repeat);
    connect(new QShortcut(Qt::Key_F7, &window), &QShortcut::activated, this, &ChoiceKeeper::repeat);
    m_timer.setSingleShot(true);
    m_timer.setInterval(Pause);
    connect(&m_timer, &QTimer::timeout, this, &ChoiceKeeper::setDown);
    window.follow([this] { follow(); });
}

ChoiceKeeper::~ChoiceKeeper() { setDown(); }

void ChoiceKeeper::follow() {
    m_memory.ansehen();
    const std::vector<Text> former = m_memory.Fruehere();
    const int category = m_entry.Kategorie();
    const Text prefix =
        category < 0 ? Text()
                     : m_entry.Kategorien.at(static_cast<size_t>(category))->fullName() + u" ";
    for (const Button* button : m_entry.Kategorien)
        if (auto* widget = qobject_cast<TintedButton*>(m_window.widgetOf(*button)))
            widget->setFormerBadge(lineOf(former, button->fullName()));
    for (const Control* control : m_entry.Bildschirm->controls())
        if (auto* row = qobject_cast<ChoiceRow*>(m_window.widgetOf(*control)))
            row->setFormer(!row->isChecked() &&
                           std::find(former.begin(), former.end(), prefix + control->fullName()) !=
                               former.end());
    if (const bool can = m_memory.KannWiederholen(); can == m_link->isHidden()) {
        m_link->setVisible(can);
        if (can)
            spoken::announce(*m_link, m_link->text());
    }
    if (!m_timer.isActive())
        m_timer.start();
}

void ChoiceKeeper::repeat() {
    m_host.run([this] { m_memory.Wiederholen(); });
}

void ChoiceKeeper::setDown() {
    if (m_keptIn.empty())
        return;
    std::vector<safety::Typed> all = m_memory.Aufzuheben();
    // What cannot be kept is missing at the next start and nowhere else.
    if (all != m_setDown && AuswahlSchreiben(m_keptIn, m_screenName, all) == 0)
        m_setDown = std::move(all);
}

} // namespace zeugnis
