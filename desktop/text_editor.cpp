#include "desktop/text_editor.h"

#include "controls/user_actions.h"
#include "desktop/text_line_ends.h"
#include "desktop/window_host.h"
#include "toolkit/qt_text.h"

#include <QClipboard>
#include <QDrag>
#include <QDragLeaveEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QtMath>

#include <algorithm>
#include <utility>

namespace zeugnis {
namespace {

constexpr char16_t Backspace = 8;
constexpr char16_t Enter = 13;

struct Difference {
    int start;
    int removed;
    QString inserted;
};

Difference differenceBetween(const QString& from, const QString& to) {
    const qsizetype shorter = std::min(from.size(), to.size());
    qsizetype start = 0;
    while (start < shorter && from[start] == to[start])
        ++start;
    qsizetype tail = 0;
    while (tail < shorter - start && from[from.size() - 1 - tail] == to[to.size() - 1 - tail])
        ++tail;
    return {static_cast<int>(start), static_cast<int>(from.size() - start - tail),
            to.mid(start, to.size() - start - tail)};
}

bool isTyped(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers =
        event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool altGr = modifiers == (Qt::ControlModifier | Qt::AltModifier) ||
                       modifiers == Qt::GroupSwitchModifier;
    return !event.text().isEmpty() && event.text()[0].isPrint() &&
           (modifiers == Qt::NoModifier || altGr);
}

// Alt with a letter brings a button. Where that is disabled, the letter is not meant for the text.
bool isForAButton(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    Q_UNUSED(event) // there it writes special characters
    return false;
#else
    return (event.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier && !event.text().isEmpty() &&
           event.text()[0].isPrint();
#endif
}

} // namespace

TextEditor::TextEditor(TextBox& box, WindowHost& host, QWidget* parent, Lines lines)
    : QPlainTextEdit(parent), m_box(box), m_host(host), m_lines(lines) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (oneLine())
        keepToOneLine();
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        growIfNeeded();
        takeNativeChange();
    });
}

void TextEditor::keepToOneLine() {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (m_lines == Lines::One)
        setLineWrapMode(QPlainTextEdit::NoWrap);
    else
        document()->setDocumentMargin(2);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setProperty("oneLine", true);
}

QSize TextEditor::sizeHint() const {
    return oneLine() ? QSize(200, minimumSizeHint().height()) : QPlainTextEdit::sizeHint();
}

QSize TextEditor::minimumSizeHint() const {
    if (!oneLine())
        return QPlainTextEdit::minimumSizeHint();
    constexpr int BorderAndPadding = 4; // as the style sheet gives it to a single line
    const auto margins = static_cast<int>(2 * document()->documentMargin());
    return {60, textHeight() + margins + BorderAndPadding};
}

int TextEditor::textHeight() const {
    const int line = fontMetrics().lineSpacing();
    if (m_lines != Lines::Grows)
        return line;
    return std::max(line, qCeil(blockBoundingRect(document()->firstBlock()).height()));
}

void TextEditor::growIfNeeded() {
    if (m_lines != Lines::Grows)
        return;
    if (const int height = textHeight(); std::exchange(m_grownTo, height) != height)
        updateGeometry();
}

void TextEditor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    growIfNeeded();
}

// A line end in a box of one line is shown as a blank; places count the same.
QString TextEditor::boxText() const {
    QString text = zeugnis::documentText(m_box.text());
    return oneLine() ? text.replace(u'\n', u' ') : text;
}

// toPlainText() would turn the non-breaking spaces into blanks.
QString TextEditor::documentText() const {
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

// A cell that is copied from a table ends with a line end that nobody means.
Text TextEditor::incoming(const QString& text) const {
    return fromQString(oneLine() ? inOneLine(text) : text);
}

void TextEditor::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (oneLine() && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                      reason == Qt::ShortcutFocusReason))
        selectAll();
}

void TextEditor::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (oneLine())
        horizontalScrollBar()->setValue(0);
}

void TextEditor::wheelEvent(QWheelEvent* event) {
    if (oneLine())
        event->ignore();
    else
        QPlainTextEdit::wheelEvent(event);
}

void TextEditor::refresh() {
    setReadOnly(m_box.Locked);
    const QString text = boxText();
    const bool isNew = text != documentText();
    if (!isNew && !m_followsBox)
        return;
    const QScopedValueRollback refreshing(m_refreshing, true);
    if (!isNew)
        return takeSelectionFromBox();
    showText(text);
    takeSelectionFromBox();
    if (oneLine() && !hasFocus())
        horizontalScrollBar()->setValue(0);
}

void TextEditor::takeSelectionFromBox() {
    QTextCursor cursor = textCursor();
    cursor.setPosition(documentPosition(m_box.text(), m_box.selectionStart()));
    cursor.setPosition(documentPosition(m_box.text(), m_box.selectionEnd()),
                       QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TextEditor::showText(const QString& text) {
    if (m_ownAction)
        return replaceDifference(text);
    m_going.at = -1;
    setPlainText(text);
}

void TextEditor::replaceDifference(const QString& text) {
    const QString before = documentText();
    const Difference change = differenceBetween(before, text);
    QTextCursor cursor(document());
    if (goesOn(change.start, change.removed, change.inserted))
        cursor.joinPreviousEditBlock();
    else
        cursor.beginEditBlock();
    cursor.setPosition(change.start);
    cursor.setPosition(change.start + change.removed, QTextCursor::KeepAnchor);
    cursor.insertText(change.inserted);
    cursor.endEditBlock();
    const QString changed = change.inserted + before.mid(change.start, change.removed);
    m_going = {.at = changed.size() == 1 ? change.start + static_cast<int>(change.inserted.size())
                                         : -1,
               .removing = change.removed > 0,
               .wasSpace = changed.size() == 1 && changed[0].isSpace()};
}

// A word and the blank in front of it are undone together.
bool TextEditor::goesOn(int start, int removed, const QString& inserted) const {
    if (m_going.at < 0 || removed + inserted.size() != 1 || m_going.removing != (removed == 1) ||
        m_going.at != start + removed)
        return false;
    const QChar key = removed == 1 ? documentText()[start] : inserted[0];
    return m_going.removing ? key.isSpace() || !m_going.wasSpace
                            : !key.isSpace() || m_going.wasSpace;
}

void TextEditor::replaceAll(const Text& text) {
    replace(0, document()->characterCount() - 1, text);
}

void TextEditor::replace(int from, int to, const Text& text) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ownAction([this, &text] {
        user::paste(m_box, text);
        user::click(m_box);
    });
}

void TextEditor::forgetHistory() {
    document()->clearUndoRedoStacks();
    m_going.at = -1;
}

void TextEditor::selectInBox() {
    const QTextCursor cursor = textCursor();
    m_box.select(boxPosition(m_box.text(), cursor.selectionStart()),
                 boxPosition(m_box.text(), cursor.selectionEnd()));
}

void TextEditor::ownAction(const std::function<void()>& action) {
    const QScopedValueRollback own(m_ownAction, true);
    const QScopedValueRollback follow(m_followsBox, true);
    selectInBox();
    m_host.run(action);
}

void TextEditor::enter() {
    ownAction([this] { user::keySeen(m_box, Enter); });
    focusNextPrevChild(true);
}

void TextEditor::pasteAsItStands() {
    const Text text = fromQString(QGuiApplication::clipboard()->text());
    ownAction([this, &text] { user::paste(m_box, text); });
}

void TextEditor::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Undo) && !document()->isUndoAvailable())
        emit nothingToUndo();
    else if (plain && event->key() == Qt::Key_Backspace)
        ownAction([this] { user::key(m_box, Backspace); });
    else if (plain && isEnter && oneLine() && !shift)
        enter();
    else if (plain && isEnter)
        ownAction([this] { user::key(m_box, Enter); });
    else if (control && shift && event->key() == Qt::Key_V)
        pasteAsItStands();
    else if (isEnter && control)
        ownAction([this] { user::doubleClick(m_box); });
    else if (isTyped(*event))
        ownAction([this, text = fromQString(event->text())] { user::type(m_box, text); });
    else if (isForAButton(*event))
        event->ignore();
    else
        QPlainTextEdit::keyPressEvent(event);
}

// What an input method or a dead key has finished is typed; the rest is still being composed.
void TextEditor::inputMethodEvent(QInputMethodEvent* event) {
    const QString finished = event->commitString();
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    {
        const QScopedValueRollback quiet(m_refreshing, true);
        QPlainTextEdit::inputMethodEvent(&composing);
    }
    if (!finished.isEmpty())
        ownAction([this, text = incoming(finished)] { user::type(m_box, text); });
    event->accept();
}

// As it stands, where Qt would turn non-breaking spaces into blanks.
QMimeData* TextEditor::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(
        textCursor().selectedText().replace(QChar::ParagraphSeparator, QStringLiteral("\n")));
    return copied;
}

// What is dragged within the box is taken out and put in as one change. Qt would do it in two, and
// the text that the box says in between would bring back what was taken out.
void TextEditor::dropEvent(QDropEvent* event) {
    const bool isOwn = viewport()->findChild<QDrag*>() != nullptr;
    if (!isOwn)
        return QPlainTextEdit::dropEvent(event);
    const int to = cursorForPosition(event->position().toPoint()).position();
    const bool copy = event->dropAction() == Qt::CopyAction;
    QDragLeaveEvent over;
    QPlainTextEdit::dragLeaveEvent(&over);
    event->acceptProposedAction();
    if (!isReadOnly())
        moveSelection(to, copy);
}

void TextEditor::moveSelection(int to, bool copy) {
    const int start = textCursor().selectionStart();
    const int end = textCursor().selectionEnd();
    if (to >= start && to <= end)
        return;
    const Text moved = textBetween(start, end);
    const Text changed = copy         ? moved
                         : to < start ? moved + textBetween(to, start)
                                      : textBetween(end, to) + moved;
    QTextCursor cursor = textCursor();
    cursor.setPosition(copy ? to : std::min(start, to));
    cursor.setPosition(copy ? to : std::max(end, to), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ownAction([&] { user::paste(m_box, changed); });
}

Text TextEditor::textBetween(int from, int to) const {
    const size_t start = boxPosition(m_box.text(), from);
    return m_box.text().substr(start, boxPosition(m_box.text(), to) - start);
}

void TextEditor::insertFromMimeData(const QMimeData* source) {
    if (source->hasText())
        ownAction([this, text = incoming(source->text())] { user::paste(m_box, text); });
}

void TextEditor::takeNativeChange() {
    if (m_refreshing)
        return;
    const QString before = boxText();
    const Difference change = differenceBetween(before, documentText());
    if (change.removed == 0 && change.inserted.isEmpty())
        return;
    m_going.at = -1;
    const QScopedValueRollback own(m_ownAction, true);
    m_box.select(boxPosition(m_box.text(), change.start),
                 boxPosition(m_box.text(), change.start + change.removed));
    m_host.run([this, text = fromQString(change.inserted)] { user::paste(m_box, text); });
}

void TextEditor::mouseReleaseEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && !std::exchange(m_secondRelease, false))
        ownAction([this] { user::click(m_box); });
}

void TextEditor::mouseDoubleClickEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_secondRelease = true;
    ownAction([this] { user::secondClick(m_box); });
}

} // namespace zeugnis
