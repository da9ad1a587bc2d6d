#include "tests/desktop/entry_window_test.h"

#include <QFrame>

namespace zeugnis::test {
namespace {

using BinderTest = EntryWindowTest;

TEST_F(BinderTest, ShowsWhatTheControlsSay) {
    QAbstractButton* save = button("Alle Texte speichern");
    EXPECT_TRUE(save->isEnabled());
    EXPECT_FALSE(button("Aktuelle Eingaben neu")->isEnabled());
    host.run([&] {
        screen->Command4.Caption = u"Sichern & mehr";
        screen->Command4.Enabled = false;
        screen->Command1.Visible = false;
    });
    EXPECT_EQ(save->text().count(u"&&"), 1);
    EXPECT_FALSE(save->isEnabled());
    EXPECT_FALSE(widget<QComboBox>("Namensliste") == nullptr);
}

TEST_F(BinderTest, ForwardsAClickOnALineAndShowsItsOutcome) {
    auto* line = qobject_cast<ChoiceRow*>(button("a04"));
    QTest::mouseClick(line, Qt::LeftButton);
    EXPECT_TRUE(line->isChecked());
    EXPECT_EQ(boxText(), "Lena a04.");
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("Lena a04."));
    // A second click on the same option changes nothing, also not its mark.
    QTest::mouseClick(line, Qt::LeftButton);
    EXPECT_TRUE(line->isChecked());
}

TEST_F(BinderTest, TakesNoChoiceWhileTheFrameIsLocked) {
    QTest::mouseClick(button("a04"), Qt::LeftButton);
    QTest::mouseClick(editor->viewport(), Qt::LeftButton);
    QAbstractButton* other = button("a07");
    EXPECT_FALSE(other->isEnabled());
    EXPECT_NE(widget<QWidget>("Der Text ist gesperrt"), nullptr);
    QTest::mouseClick(other, Qt::LeftButton);
    EXPECT_EQ(boxText(), "Lena a04.");
}

TEST_F(BinderTest, StoresATextWhenTheKeyboardLeavesIt) {
    QTest::keyClicks(editor, "von Hand");
    EXPECT_EQ(utf8FromText(screen->Speicher.AV.Texte[1]), "");
    QTest::mouseClick(button("Alle Texte speichern"), Qt::LeftButton);
    EXPECT_EQ(utf8FromText(screen->Speicher.AV.Texte[1]), "von Hand");
    EXPECT_NE(installation.read(u"Daten/AVSVspeicher.txt").find(u"\"von Hand\""), Text::npos);
}

TEST_F(BinderTest, LeavesNoWidgetWithoutAName) {
    for (QWidget* window : QApplication::topLevelWidgets())
        for (QWidget* one : window->findChildren<QWidget*>()) {
            if (one->focusPolicy() == Qt::NoFocus || !one->isVisible())
                continue;
            const auto* labelled = qobject_cast<QAbstractButton*>(one);
            EXPECT_FALSE(one->accessibleName().isEmpty() &&
                         (labelled == nullptr || labelled->text().isEmpty()))
                << one->metaObject()->className();
        }
}

} // namespace
} // namespace zeugnis::test
