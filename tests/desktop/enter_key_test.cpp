#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

TEST(EnterKey, PressesTheButtonThatHasTheKeyboardAndNoOther) {
    QStringList pressed;
    const auto fill = [&pressed](QWidget& window) {
        for (const QString& name : {QStringLiteral("Zurück"), QStringLiteral("Weiter")}) {
            auto* button = new QPushButton(name, &window);
            button->setAutoDefault(false);
            button->setDefault(name == QStringLiteral("Weiter"));
            QObject::connect(button, &QPushButton::clicked, [&pressed, name] { pressed << name; });
        }
        window.show();
        window.findChild<QPushButton*>()->setFocus();
        QTest::keyClick(window.findChild<QPushButton*>(), Qt::Key_Return);
    };
    QDialog dialog;
    fill(dialog);
    QWidget window;
    fill(window);
    EXPECT_EQ(pressed, (QStringList{QStringLiteral("Zurück"), QStringLiteral("Zurück")}));
}

TEST(EnterKey, MayTakeTheWindowWithIt) {
    const QPointer<QWidget> window = new QWidget;
    auto* button = new QPushButton(window);
    QObject::connect(button, &QPushButton::clicked, [&window] { delete window; });
    window->show();
    QTest::keyClick(button, Qt::Key_Enter);
    EXPECT_EQ(window, nullptr);
}

} // namespace
} // namespace zeugnis::test
