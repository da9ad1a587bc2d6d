#include "toolkit/twin_window.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

namespace zeugnis::test {
namespace {

class TwinWindowTest : public testing::Test {
  protected:
    TwinWindow::Side side(const QString& name, const Text& text) {
        return {name, text, QStringLiteral("Zu diesem Text"), [this, name] { led = name; }};
    }
    static void choose(TwinWindow& window, int other) {
        auto* choice = window.findChild<QComboBox*>();
        choice->setCurrentIndex(other);
        emit choice->activated(other);
    }
    static QStringList told(const TwinWindow& window) {
        QStringList all;
        for (const auto* text : window.findChildren<QTextEdit*>())
            all << QStringLiteral("%1: %2").arg(text->accessibleName(),
                                                text->accessibleDescription());
        return all;
    }

    QString led;
};

TEST_F(TwinWindowTest, MarksOnBothSidesWhatDiffersFromTheChosenOne) {
    TwinWindow window(QStringLiteral("Bemerkungen"),
                      side(QStringLiteral("Mats"), u"Er liest sehr gern."),
                      {side(QStringLiteral("Ida"), u"Er liest gern."),
                       side(QStringLiteral("Ben"), u"Er rechnet sehr gern.")},
                      nullptr);
    EXPECT_EQ(told(window), QStringList({QStringLiteral("Text von Mats: anders: sehr"),
                                         QStringLiteral("Text von Ida: ohne Unterschied")}));
    choose(window, 1);
    EXPECT_EQ(told(window), QStringList({QStringLiteral("Text von Mats: anders: liest"),
                                         QStringLiteral("Text von Ben: anders: rechnet")}));
    choose(window, 0);
    EXPECT_EQ(told(window).back(), QStringLiteral("Text von Ida: ohne Unterschied"));
}

TEST_F(TwinWindowTest, LeadsToTheTextThatIsShown) {
    TwinWindow window(
        QStringLiteral("Bemerkungen"), side(QStringLiteral("Mats"), u"Er liest."),
        {side(QStringLiteral("Ida"), u"Sie liest."), side(QStringLiteral("Ben"), u"Er liest.")},
        nullptr);
    choose(window, 1);
    for (auto* button : window.findChildren<QPushButton*>())
        if (button->accessibleName() == u"Zum Text von Ben")
            button->click();
    EXPECT_EQ(led, QStringLiteral("Ben"));
    EXPECT_EQ(window.result(), QDialog::Accepted);
}

TEST_F(TwinWindowTest, OffersNoChoiceBetweenTwo) {
    const TwinWindow window(QStringLiteral("Bemerkungen"), side(QStringLiteral("Mats"), u"Er."),
                            {side(QStringLiteral("Ida"), u"Sie.")}, nullptr);
    EXPECT_EQ(window.findChild<QComboBox*>(), nullptr);
}

} // namespace
} // namespace zeugnis::test
