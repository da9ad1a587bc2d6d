#include "desktop/comfort/last_term_window.h"

#include "controls/list_controls.h"
#include "controls/program.h"
#include "desktop/place_beside.h"
#include "desktop/screen_window.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"
#include "files/section_stores.h"
#include "toolkit/qt_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace zeugnis {

LastTermWindow::LastTermWindow(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry)
    : QWidget(&window, Qt::Tool),
      m_window(window),
      m_host(host),
      m_entry(entry),
      m_head(new QLabel(this)),
      m_text(new QTextEdit(this)) {
    setWindowTitle(tr("Letztes Halbjahr"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 12);
    m_head->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
    m_head->setWordWrap(true);
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setAccessibleName(tr("Text vom letzten Halbjahr"));
    column->addWidget(m_head);
    column->addWidget(m_text, 1);
    window.follow([this] { follow(); });
}

void LastTermWindow::toggle() {
    if (isVisible()) {
        hide();
        return;
    }
    m_term.emplace(m_host.program().directory().programFolder());
    constexpr QSize Wished(430, 300);
    constexpr QSize Least(300, 180);
    const QSize frame(0, 30);
    setGeometry(
        placeBeside(m_window, Wished, Least, frame, m_window.screen()->availableGeometry()));
    show();
    follow();
    activateWindow();
    m_text->setFocus();
}

bool LastTermWindow::isOfPage(const rescue::LastTerm::Section& section) const {
    const bool behaviour = section.file.ends_with(utf8FromText(dateien::AVSVspeicher));
    const bool young = section.file.ends_with(utf8FromText(dateien::Speicher12));
    return section.number == static_cast<size_t>(m_entry.Seite()) &&
           (behaviour ? !m_entry.Kategorien.empty()
                      : m_entry.Kategorien.empty() &&
                            (m_entry.Seiten.size() == size_t(Abschnitte12)) == young);
}

// The text of the page on display comes first.
void LastTermWindow::follow() {
    if (!isVisible())
        return;
    const int index = m_entry.Kinder->listIndex();
    if (!m_term->isKnown() || index < 0) {
        m_head->setText(m_term->isKnown() ? qString(m_term->name()) : tr("Nichts aufgehoben"));
        m_text->setPlainText(
            m_term->isKnown()
                ? tr("Wählen Sie ein Kind aus.")
                : tr("Vom letzten Halbjahr gibt es keine Texte. Aufgehoben werden sie beim Wechsel "
                     "des Halbjahrs in den Stammdaten; dort bietet das Programm es an."));
        return;
    }
    const Schueler& child = m_entry.Liste->Kinder[index];
    std::vector<rescue::LastTerm::Section> sections = m_term->of(child);
    std::stable_partition(sections.begin(), sections.end(),
                          [this](const auto& one) { return isOfPage(one); });
    QString html;
    for (const auto& section : sections)
        html += QStringLiteral("<p><b>%1</b><br>%2</p>")
                    .arg(qString(section.heading).toHtmlEscaped(),
                         qString(section.text)
                             .toHtmlEscaped()
                             .replace(QStringLiteral("\r\n"), QStringLiteral("<br>")));
    if (sections.empty())
        html = tr("Zu diesem Kind gibt es keine Texte.").toHtmlEscaped();
    const QString head =
        QStringLiteral("%1 %2 – %3")
            .arg(qString(child.Vorname), qString(child.Nachname), qString(m_term->name()));
    if (m_head->text() == head && m_text->property("shown").toString() == html)
        return;
    m_head->setText(head);
    m_text->setHtml(html);
    m_text->setProperty("shown", html);
}

void LastTermWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F5) {
        hide();
        m_window.activateWindow();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace zeugnis
