#include "checks/hunspell_spelling.h"
#include "desktop/comfort/spelling.h"
#include "tests/desktop/entry_window_test.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace zeugnis::test {
namespace {

class SpellingTest : public EntryWindowTest {
  protected:
    void SetUp() override {
        if (!DeutscheRechtschreibung())
            GTEST_SKIP() << "no German dictionary";
    }

    [[nodiscard]] QStringList underlined() const {
        QStringList words;
        for (const QTextEdit::ExtraSelection& one : editor->extraSelections())
            words << one.cursor.selectedText();
        return words;
    }
    bool comesTo(const QStringList& words) {
        return QTest::qWaitFor([&] { return underlined() == words; }, 10'000);
    }
    QMenu* menuAt(int position) {
        placeCaret(position);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(editor, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    // Waits for it, and closes the menu.
    static bool choose(QMenu& menu, const QString& entry) {
        QAction* chosen = nullptr;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                for (QAction* action : menu.actions())
                    if (QString(action->text()).remove(u'&') == entry)
                        chosen = action;
                return chosen != nullptr;
            },
            10'000));
        if (chosen != nullptr)
            chosen->trigger();
        menu.close();
        return chosen != nullptr;
    }
};

TEST_F(SpellingTest, AWordIsUnderlinedAndReplacedAsByHand) {
    setText(u"Lena Muster arbeited gern mit Größen.");
    ASSERT_TRUE(comesTo({QStringLiteral("arbeited")}));
    ASSERT_TRUE(choose(*menuAt(15), QStringLiteral("arbeitet")));
    EXPECT_EQ(boxText(), "Lena Muster arbeitet gern mit Größen.");
    EXPECT_TRUE(screen->Picture4.Visible) << "what is changed by hand is locked";
    EXPECT_TRUE(comesTo({}));
}

TEST_F(SpellingTest, TheWordThatIsBeingTypedIsLeftAlone) {
    setText({});
    editor->activateWindow();
    editor->setFocus();
    QTest::keyClicks(editor, "gern lachd");
    QTest::qWait(600);
    EXPECT_EQ(underlined(), QStringList());
    QTest::keyClicks(editor, " viel");
    EXPECT_TRUE(comesTo({QStringLiteral("lachd")}));
}

TEST_F(SpellingTest, WhatIsLearntIsKnownInAllTextsAndAllIsOffWithOneClick) {
    setText(u"Das Zwurbeln und das Knorfen.");
    ASSERT_TRUE(comesTo({QStringLiteral("Zwurbeln"), QStringLiteral("Knorfen")}));
    ASSERT_TRUE(choose(*menuAt(5), QStringLiteral("„Zwurbeln“ merken")));
    EXPECT_TRUE(comesTo({QStringLiteral("Knorfen")}));
    ASSERT_TRUE(choose(*menuAt(0), QStringLiteral("Rechtschreibung prüfen")));
    EXPECT_TRUE(comesTo({}));
}

} // namespace
} // namespace zeugnis::test
