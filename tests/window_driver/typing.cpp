#include "tests/window_driver/typing.h"

#include "toolkit/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QTest>

namespace zeugnis::windowdriver::keyboard {

void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QString text;
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        text = modifiers.testFlag(Qt::ControlModifier) ? QString(QChar(key - Qt::Key_A + 1))
                                                       : QString(QChar(key)).toLower();
    else if (key >= Qt::Key_Space && key <= Qt::Key_At)
        text = QChar(key);
    if (QWidget* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                                 : QApplication::activeWindow())
        QTest::sendKeyEvent(QTest::Click, target, key, text, modifiers);
}

void type(char16_t character) {
    QWidget* target = QApplication::focusWidget();
    if (target == nullptr)
        return;
    const QChar letter(character);
    if (letter.isPrint()) {
        const QChar key = letter.toUpper();
        const Qt::KeyboardModifiers shift =
            letter.isUpper() ? Qt::ShiftModifier : Qt::KeyboardModifiers();
        QTest::sendKeyEvent(QTest::Click, target, static_cast<Qt::Key>(key.unicode()),
                            QString(letter), shift);
        return;
    }
    QInputMethodEvent finished;
    finished.setCommitString(QString(letter));
    QCoreApplication::sendEvent(target, &finished);
}

void paste(TextView text, Qt::KeyboardModifiers modifiers) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    const QString former = clipboard->text();
    clipboard->setText(qString(text));
    press(Qt::Key_V, modifiers);
    clipboard->setText(former);
}

void select(QPlainTextEdit& box, int start, int end) {
    const QTextCursor cursor = box.textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end)
        return;
    const int length = box.document()->characterCount() - 1;
    if (start <= length - start) {
        press(Qt::Key_Home, Qt::ControlModifier);
        for (int i = 0; i < start; ++i)
            press(Qt::Key_Right);
    } else {
        press(Qt::Key_End, Qt::ControlModifier);
        for (int i = length; i > start; --i)
            press(Qt::Key_Left);
    }
    if (end - start > length - end) {
        press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
        for (int i = length; i > end; --i)
            press(Qt::Key_Left, Qt::ShiftModifier);
    } else {
        for (int i = start; i < end; ++i)
            press(Qt::Key_Right, Qt::ShiftModifier);
    }
}

} // namespace zeugnis::windowdriver::keyboard
