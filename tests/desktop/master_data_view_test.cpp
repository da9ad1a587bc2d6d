#include "desktop/master_data_view.h"

#include "desktop/text_editor.h"
#include "desktop/window_host.h"
#include "tests/masterdata/master_data_test.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMimeData>
#include <QTest>

namespace zeugnis::test {
namespace {

/// The window on a class of three, unlocked.
class MasterDataViewTest : public MasterDataTest {
  protected:
    MasterDataViewTest() {
        prepare(3);
        machine = std::make_unique<TestProgramm>(installation);
        machine->dialogs.answers = {Antwort::Ja};
        host = std::make_unique<WindowHost>(machine->programm);
        host->run([this] {
            machine->programm.show(bildschirme::GsStart);
            machine->programm.show(bildschirme::GsBasis);
        });
        screen = dynamic_cast<GsBasis*>(machine->programm.find(bildschirme::GsBasis));
        for (QWidget* one : QApplication::topLevelWidgets())
            if (auto* view = dynamic_cast<MasterDataView*>(one);
                view != nullptr && one->isVisible())
                window = view;
        // The start page's window may still be about to become the active one.
        QCoreApplication::processEvents();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        host->run([this] { user::click(screen->Command5); });
        QCoreApplication::processEvents();
    }
    ~MasterDataViewTest() override { host.reset(); }

    template <typename W>
    W* widget(const char* accessibleName) {
        for (W* one : window->findChildren<W*>())
            if (one->accessibleName() == QString::fromUtf8(accessibleName))
                return one;
        ADD_FAILURE() << "no widget named " << accessibleName;
        return nullptr;
    }

    void keys(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::unique_ptr<WindowHost> host;
    GsBasis* screen = nullptr;
    MasterDataView* window = nullptr;
};

TEST_F(MasterDataViewTest, TypesPupilAfterPupilWithoutTheMouse) {
    widget<QListWidget>("Namensliste")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), widget<TextEditor>("Nachname"));
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_Y, QStringLiteral("y"),
                        Qt::AltModifier);
    EXPECT_EQ(widget<TextEditor>("Nachname")->toPlainText(), QStringLiteral("N1"));
    press(Qt::Key_G, Qt::AltModifier); // what deletes has no key of its own
    EXPECT_EQ(widget<TextEditor>("Nachname")->toPlainText(), QStringLiteral("N1"));
    window->widgetOf(screen->Command4(0))->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    for (const char* const child : {"Ehlers", "Groth"}) {
        if (QLatin1String(child) == QLatin1String("Groth"))
            press(Qt::Key_H, Qt::AltModifier);
        keys(QString::fromUtf8(child));
        press(Qt::Key_Tab);
        keys(QStringLiteral("Ida"));
        press(Qt::Key_Return);
        press(Qt::Key_W);
        press(Qt::Key_Tab);
        keys(QStringLiteral("26.01.2018"));
        press(Qt::Key_Tab);
        keys(QStringLiteral("Peine"));
        for (const char* const group : {"A", "", "\"C", "D"}) {
            press(Qt::Key_Return);
            keys(QString::fromUtf8(group));
        }
    }
    press(Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(
        utf8FromText(names()),
        "1,\"3a\",\"Ehlers\",\"Ida\",\"w\",\"26.01.2018\",\"A\",\"\",\"'C\",\"D\",\"Peine\"\r\n"
        "2,\"3a\",\"Groth\",\"Ida\",\"w\",\"26.01.2018\",\"A\",\"\",\"'C\",\"D\",\"Peine\"\r\n");
}

TEST_F(MasterDataViewTest, PicksPupilsByTheArrowKeysAndNamesThem) {
    auto* pupils = widget<QListWidget>("Namensliste");
    pupils->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(screen->AktuellerSchueler, 1);
    EXPECT_EQ(pupils->currentItem()->text(), QStringLiteral("02   N2, V2"));
    EXPECT_EQ(widget<TextEditor>("Vorname")->toPlainText(), QStringLiteral("V2"));
    press(Qt::Key_Tab);
    keys(QStringLiteral("Neu"));
    press(Qt::Key_Tab);
    EXPECT_EQ(pupils->currentItem()->text(), QStringLiteral("02   Neu, V2"));
}

TEST_F(MasterDataViewTest, KeepsABoxOfOneLineToOneLine) {
    auto* editor = widget<TextEditor>("Anschrift");
    editor->setFocus();
    editor->selectAll();
    QMimeData cells;
    cells.setText(QStringLiteral("Am Weg 1\r\n\"Ort\"\n"));
    QApplication::clipboard()->setText(cells.text());
    editor->paste();
    EXPECT_EQ(screen->Text1(2).text(), u"Am Weg 1 'Ort'");
    host->run([this] { screen->Text1(2).setText(u"eins\r\nzwei"); });
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("eins zwei"));
    press(Qt::Key_End);
    keys(QStringLiteral("!"));
    EXPECT_EQ(screen->Text1(2).text(), u"eins\r\nzwei!");
}

TEST_F(MasterDataViewTest, InsertsAWorkingGroupByDoubleClickOrItsKey) {
    widget<QListWidget>("Arbeitsgemeinschaften")->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(screen->GewaehlteAG, u"Chor");
    auto* second = widget<TextEditor>("Arbeitsgemeinschaft 2");
    QTest::mouseDClick(second->viewport(), Qt::LeftButton);
    widget<TextEditor>("Arbeitsgemeinschaft 3")->setFocus();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(screen->Liste.Kinder[0].AG, (std::array<Text, 4>{u"", u"Chor", u"Chor", u""}));
}

TEST_F(MasterDataViewTest, NamesEveryWidgetThatTakesTheKeyboard) {
    for (const QWidget* one : window->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(one);
        EXPECT_FALSE(one->focusPolicy() != Qt::NoFocus && one->isVisible() &&
                     one->accessibleName().isEmpty() &&
                     (button == nullptr || button->text().isEmpty()))
            << one->metaObject()->className();
    }
}

} // namespace
} // namespace zeugnis::test
