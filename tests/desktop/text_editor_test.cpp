#include "tests/desktop/entry_window_test.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QPushButton>

namespace zeugnis::test {
namespace {

class TextEditorTest : public EntryWindowTest {
  protected:
    // Of the text on work behaviour, the first.
    QPushButton* offer() {
        return editor->window()->findChildren<QPushButton*>(QStringLiteral("link")).front();
    }
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

TEST_F(TextEditorTest, UndoesWordByWord) {
    setText(u"Tom lacht");
    placeCaret(9);
    QTest::keyClicks(editor, " laut mit");
    QTest::keyClick(editor, Qt::Key_Home);
    QTest::keyClick(editor, Qt::Key_Delete);
    placeCaret(17);
    for (int i = 0; i < 7; ++i)
        QTest::keyClick(editor, Qt::Key_Backspace);
    const char* const steps[] = {"om lacht l",         "om lacht laut",  "om lacht laut mit",
                                 "Tom lacht laut mit", "Tom lacht laut", "Tom lacht"};
    for (const char* const step : steps) {
        EXPECT_EQ(boxText(), step);
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    }
}

// Neither by undo nor by the offer, although the boxes of both are empty.
TEST_F(TextEditorTest, NothingComesBackAtAnotherChild) {
    QTest::keyClicks(editor, "Lena lacht");
    QTest::mouseClick(editor->viewport(), Qt::LeftButton);
    QTest::mouseClick(button("Aktuelle Eingaben neu"), Qt::LeftButton);
    selectChild(0);
    QTest::mouseClick(button("Arbeitsverhalten"), Qt::LeftButton);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(boxText(), "");
    EXPECT_FALSE(offer()->isVisible());
}

TEST_F(TextEditorTest, WhatAResetHasDeletedComesBackWithItsLock) {
    for (const bool byUndo : {false, true}) {
        QTest::keyClicks(editor, "Lena lacht");
        QTest::mouseClick(editor->viewport(), Qt::LeftButton);
        QTest::mouseClick(button("Aktuelle Eingaben neu"), Qt::LeftButton);
        EXPECT_EQ(screen->Speicher.AV.Gesperrt[1], 0);
        ASSERT_TRUE(offer()->isVisible());
        if (byUndo)
            QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
        else
            QTest::mouseClick(offer(), Qt::LeftButton);
        EXPECT_EQ(boxText(), "Lena lacht");
        EXPECT_EQ(screen->Speicher.AV.Gesperrt[1], 1);
        EXPECT_FALSE(offer()->isVisible());
        QTest::mouseClick(button("Aktuelle Eingaben neu"), Qt::LeftButton);
    }
}

} // namespace
} // namespace zeugnis::test
