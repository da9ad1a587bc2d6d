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

TEST_F(TextEditorTest, TreatsWhatAnInputMethodFinishesAsTyped) {
    commit(QStringLiteral("é\"ł"));
    EXPECT_EQ(boxText(), "é'l");
    EXPECT_EQ(machine.dialogs.shown.size(), 1U);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("é'l"));
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
