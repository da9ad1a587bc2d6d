#include "tests/desktop/entry_window_test.h"

#include <QClipboard>
#include <QInputMethodEvent>

namespace zeugnis::test {
namespace {

class TextEditorTest : public EntryWindowTest {
  protected:
    void commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(editor, &event);
    }
};

TEST_F(TextEditorTest, PassesTypedKeysThroughTheKeyHandler) {
    setText(u"Tom");
    placeCaret(3);
    QTest::keyClicks(editor, "\"s");
    EXPECT_EQ(boxText(), "Tom's");
    ASSERT_EQ(machine.dialogs.shown.size(), 1U);
    EXPECT_EQ(utf8FromText(machine.dialogs.shown[0].titel), "Hinweis");

    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClicks(editor, "X");
    EXPECT_EQ(boxText(), "Tom's\r\nX");
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClick(editor, Qt::Key_Backspace);
    EXPECT_EQ(boxText(), "Tom's");
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("Tom's"));
}

TEST_F(TextEditorTest, TreatsWhatAnInputMethodFinishesAsTyped) {
    commit(QStringLiteral("é\"ł"));
    EXPECT_EQ(boxText(), "é'l");
    EXPECT_EQ(machine.dialogs.shown.size(), 1U);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("é'l"));
}

TEST_F(TextEditorTest, PastesAsOneChange) {
    QApplication::clipboard()->setText(QStringLiteral("\"a\"\n\"b\""));
    editor->paste();
    EXPECT_EQ(boxText(), "'a'\r\n'b'");
    EXPECT_EQ(machine.dialogs.shown.size(), 1U);
}

TEST_F(TextEditorTest, InsertsBehindTheWordThatIsDoubleClicked) {
    setText(u"Zeile eins\r\nZeile zwei");
    machine.clipboard.setText(u"neu");
    placeCaret(13);
    const QPoint secondLine = editor->cursorRect().center();
    QTest::mouseClick(editor->viewport(), Qt::LeftButton, {}, secondLine);
    QTest::mouseDClick(editor->viewport(), Qt::LeftButton, {}, secondLine);
    EXPECT_EQ(boxText(), "Zeile eins\r\nZeile neu zwei");
    EXPECT_EQ(screen->Speicher.AV.Gesperrt[1], 1);
}

TEST_F(TextEditorTest, TakesDeletingAndUndoFromTheEditor) {
    setText(u"Tom lacht");
    placeCaret(9);
    QTest::keyClicks(editor, " laut");
    QTest::keyClick(editor, Qt::Key_Home);
    QTest::keyClick(editor, Qt::Key_Delete);
    EXPECT_EQ(boxText(), "om lacht laut");
    editor->undo();
    EXPECT_EQ(boxText(), "Tom lacht laut");
    for (int i = 0; i < 5; ++i)
        editor->undo();
    EXPECT_EQ(boxText(), "Tom lacht");
}

TEST_F(TextEditorTest, NeverUndoesIntoAnotherChild) {
    QTest::keyClicks(editor, "Lena lacht");
    selectChild(0);
    QTest::mouseClick(button("Arbeitsverhalten"), Qt::LeftButton);
    editor->undo();
    EXPECT_EQ(boxText(), "");
    EXPECT_EQ(utf8FromText(screen->Speicher.AV.Texte[1]), "Lena lacht");
}

} // namespace
} // namespace zeugnis::test
