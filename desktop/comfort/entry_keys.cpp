#include "desktop/comfort/entry_keys.h"
#include "desktop/elided_label.h"

#include "controls/list_controls.h"
#include "desktop/screen_window.h"
#include "desktop/spoken.h"
#include "desktop/text_editor.h"
#include "desktop/theme.h"
#include "desktop/window_host.h"

#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QTimer>

namespace zeugnis {

EntryKeys::EntryKeys(ScreenWindow& window, WindowHost& host, const Eingabeschirm& entry)
    : QObject(&window),
      m_window(window),
      m_host(host),
      m_entry(entry),
      m_flow(entry),
      m_hint(new ElidedLabel(&window)) {
    tellKeys();
    m_hint->setFont(theme::font(theme::Size::Small));
    m_hint->setForegroundRole(QPalette::PlaceholderText);

    using enum Richtung;
    onKey(Qt::Key_PageDown, [this] { return m_flow.Weiter(Vor); });
    onKey(Qt::Key_PageUp, [this] { return m_flow.Weiter(Zurueck); });
    onKey(Qt::CTRL | Qt::Key_PageDown, [this] { return m_flow.SeiteWechseln(Vor); });
    onKey(Qt::CTRL | Qt::Key_PageUp, [this] { return m_flow.SeiteWechseln(Zurueck); });
    onKey(Qt::ALT | Qt::Key_Right, [this] { return mayLeaveChild() && m_flow.KindWechseln(Vor); });
    onKey(Qt::ALT | Qt::Key_Left,
          [this] { return mayLeaveChild() && m_flow.KindWechseln(Zurueck); });
    onKey(Qt::Key_F8, [this] {
        if (!mayLeaveChild())
            return false;
        if (m_flow.KindOhneText())
            return true;
        tell(tr("Hier fehlt keinem Kind mehr ein Text."));
        return false;
    });
    window.installEventFilter(this);
}

// The same question as before a pick in the list.
bool EntryKeys::mayLeaveChild() const { return m_host.mayAct(*m_entry.Kinder); }

QLabel* EntryKeys::hint() const { return m_hint; }

void EntryKeys::tellKeys() {
    if (!m_entry.Kategorien.empty())
        m_hint->setTexts(tr("Bild↓ nächste Kategorie · 0 bis 9 Zeile · Alt+→ nächstes Kind · F8 "
                            "nächstes Kind, dem ein Text fehlt"),
                         {tr("Bild↓ Kategorie · 0–9 Zeile · Alt+→ Kind · F8 Kind ohne Text"),
                          tr("Bild↓ · 0–9 · Alt+→ · F8")});
    else
        m_hint->setTexts(tr("Bild↓ nächste Auswahl · 1 bis 9 Zeile · Strg+Bild↓ nächste Seite · "
                            "Alt+→ nächstes Kind · F8 nächstes Kind, dem ein Text fehlt"),
                         {tr("Bild↓ Auswahl · 1–9 Zeile · Strg+Bild↓ Seite · Alt+→ Kind · F8 Kind "
                             "ohne Text"),
                          tr("Bild↓ · 1–9 · Strg+Bild↓ · Alt+→ · F8")});
}

// Where the keys are told, until it was read.
void EntryKeys::tell(const QString& sentence) {
    constexpr int Reading = 5000;
    m_hint->setTexts(sentence, {});
    spoken::announce(*m_hint, sentence);
    QTimer::singleShot(Reading, m_hint, [this] { tellKeys(); });
}

void EntryKeys::onKey(const QKeySequence& key, std::function<bool()> step) {
    auto* shortcut = new QShortcut(key, &m_window);
    connect(shortcut, &QShortcut::activated, this, [this, step = std::move(step)] { go(step); });
}

void EntryKeys::go(const std::function<bool()>& step) {
    for (const Control* control : m_entry.Bildschirm->controls())
        if (const QWidget* widget = m_window.widgetOf(*control); widget && widget->hasFocus())
            m_flow.StelleMerken(*control);
    bool done = false;
    m_host.run([&] { done = step(); });
    if (done)
        showPlace();
}

// As by Tab, so that the screen is told of it.
void EntryKeys::showPlace() {
    const Control* place = m_flow.Stelle();
    QWidget* widget = place == nullptr ? nullptr : m_window.widgetOf(*place);
    if (widget != nullptr && widget->isEnabled())
        widget->setFocus(Qt::TabFocusReason);
}

// A key comes to the window when nothing that has the keyboard wants it.
bool EntryKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == 0;
    const bool digit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
    if (!plain || !digit || qobject_cast<TextEditor*>(m_window.focusWidget()) != nullptr)
        return QObject::eventFilter(watched, event);
    go([this, value = key.key() - Qt::Key_0] { return m_flow.Ziffer(value); });
    return true;
}

} // namespace zeugnis
