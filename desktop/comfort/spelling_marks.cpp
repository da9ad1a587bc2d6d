#include "desktop/comfort/spelling_marks.h"

#include "desktop/theme.h"
#include "toolkit/qt_text.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

#include <algorithm>

namespace zeugnis {

SpellingMarks::SpellingMarks(TextEditor& editor, Spelling& spelling, Spelling::Purpose purpose)
    : QObject(&editor), m_editor(editor), m_spelling(spelling), m_purpose(purpose) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(Rest);
    connect(&m_timer, &QTimer::timeout, this, &SpellingMarks::lookUp);
    connect(&editor, &QPlainTextEdit::textChanged, this, [this] {
        m_due = true;
        m_timer.start();
    });
    connect(&editor, &QPlainTextEdit::cursorPositionChanged, this, &SpellingMarks::underline);
    connect(&spelling, &Spelling::changed, this, [this] {
        m_due = true;
        m_timer.start(0);
    });
    editor.installEventFilter(this);
    editor.viewport()->installEventFilter(this);
}

// What is not in sight is looked up when it comes to be.
void SpellingMarks::lookUp() {
    if (!m_due || !m_editor.isVisible())
        return;
    m_due = false;
    const QString text = m_editor.documentText();
    if (!m_spelling.isOn() || text.isEmpty())
        return learnt(text, {});
    m_spelling.lookUp(text, m_purpose, this,
                      [this, text](const Spelling::Marks& marks) { learnt(text, marks); });
}

void SpellingMarks::learnt(const QString& text, const Spelling::Marks& marks) {
    if (text != m_editor.documentText())
        return; // the next answer is on its way
    m_lookedUp = text;
    m_marks = marks;
    underline();
}

void SpellingMarks::underline() {
    if (m_due || (m_marks.empty() && m_editor.extraSelections().isEmpty()))
        return;
    QList<QTextEdit::ExtraSelection> selections;
    const int caret = m_editor.hasFocus() ? m_editor.textCursor().position() : -1;
    for (const Spelling::Mark& mark : m_marks) {
        if (mark.at + mark.length == caret)
            continue;
        QTextCursor cursor(m_editor.document());
        cursor.setPosition(mark.at);
        cursor.setPosition(mark.at + mark.length, QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
        format.setUnderlineColor(theme::colours().Danger);
        selections.push_back({cursor, format});
    }
    m_editor.setExtraSelections(selections);
}

bool SpellingMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        showMenu(*static_cast<QContextMenuEvent*>(event));
        return true;
    }
    if (watched == &m_editor && event->type() == QEvent::Show)
        m_timer.start();
    if (watched == &m_editor && event->type() == QEvent::FocusOut)
        QMetaObject::invokeMethod(this, &SpellingMarks::underline, Qt::QueuedConnection);
    if (watched == &m_editor && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_F7 && key->modifiers() == Qt::ShiftModifier)
            return goToNext();
    }
    return QObject::eventFilter(watched, event);
}

const Spelling::Mark* SpellingMarks::markAt(int position) const {
    if (m_due)
        return nullptr;
    const auto mark = std::find_if(m_marks.begin(), m_marks.end(), [&](const Spelling::Mark& one) {
        return position >= one.at && position <= one.at + one.length;
    });
    return mark == m_marks.end() ? nullptr : &*mark;
}

QString SpellingMarks::wordOf(const Spelling::Mark& mark) const {
    return m_lookedUp.mid(mark.at, mark.length);
}

// Round the text, and shows what is offered there.
bool SpellingMarks::goToNext() {
    if (m_due || m_marks.empty())
        return false;
    const int caret = m_editor.textCursor().selectionEnd();
    auto next = std::find_if(m_marks.begin(), m_marks.end(),
                             [&](const Spelling::Mark& one) { return one.at >= caret; });
    if (next == m_marks.end())
        next = m_marks.begin();
    QTextCursor cursor = m_editor.textCursor();
    cursor.setPosition(next->at);
    cursor.setPosition(next->at + next->length, QTextCursor::KeepAnchor);
    m_editor.setTextCursor(cursor);
    showMenu(m_editor.viewport()->mapToGlobal(m_editor.cursorRect().bottomLeft()), next->at);
    return true;
}

void SpellingMarks::showMenu(const QContextMenuEvent& event) {
    if (event.reason() == QContextMenuEvent::Mouse)
        return showMenu(event.globalPos(), m_editor.cursorForPosition(event.pos()).position());
    showMenu(m_editor.viewport()->mapToGlobal(m_editor.cursorRect().bottomLeft()),
             m_editor.textCursor().position());
}

void SpellingMarks::showMenu(const QPoint& at, int position) {
    QMenu* menu = m_editor.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (const Spelling::Mark* mark = markAt(position))
        offer(*menu, *mark);
    menu->addSeparator();
    QAction* next = menu->addAction(tr("&Nächstes unbekanntes Wort\tUmschalt+F7"));
    next->setEnabled(!m_due && !m_marks.empty());
    connect(next, &QAction::triggered, this, &SpellingMarks::goToNext);
    QAction* on = menu->addAction(tr("&Rechtschreibung prüfen"));
    on->setCheckable(true);
    on->setChecked(m_spelling.isOn());
    connect(on, &QAction::triggered, &m_spelling, &Spelling::switchOn);
    menu->popup(at);
}

void SpellingMarks::offer(QMenu& menu, const Spelling::Mark& mark) {
    const QString word = wordOf(mark);
    QAction* first = menu.actions().front();
    if (!m_editor.isReadOnly()) {
        auto* wait = new QAction(tr("Vorschläge werden gesucht …"), &menu);
        wait->setEnabled(false);
        menu.insertAction(first, wait);
        offerSuggestions(menu, *wait, mark);
    }
    auto* learn = new QAction(tr("„%1“ &merken").arg(word), &menu);
    menu.insertAction(first, learn);
    connect(learn, &QAction::triggered, &m_spelling, [this, word] { m_spelling.learn(word); });
    menu.insertSeparator(first);
}

void SpellingMarks::offerSuggestions(QMenu& menu, QAction& rest, const Spelling::Mark& mark) {
    const QString word = wordOf(mark);
    m_spelling.suggest(word, &menu,
                       [this, &menu, &rest, mark, word](const QStringList& suggestions) {
                           for (const QString& one : suggestions) {
                               auto* action = new QAction(one, &menu);
                               action->setFont(theme::font(theme::Size::Body, QFont::DemiBold));
                               connect(action, &QAction::triggered, this,
                                       [this, mark, word, one] { replace(mark, word, one); });
                               menu.insertAction(&rest, action);
                           }
                           rest.setText(tr("Kein Vorschlag"));
                           rest.setVisible(suggestions.isEmpty());
                       });
}

void SpellingMarks::replace(const Spelling::Mark& mark, const QString& word, const QString& by) {
    if (m_editor.documentText().mid(mark.at, mark.length) == word)
        m_editor.replace(mark.at, mark.at + mark.length, fromQString(by));
}

} // namespace zeugnis
