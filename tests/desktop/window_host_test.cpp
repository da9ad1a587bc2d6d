#include "tests/desktop/entry_window_test.h"

#include "desktop/dialog_box.h"
#include "safety/guard.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

namespace zeugnis::test {
namespace {

class WindowHostTest : public EntryWindowTest {
  protected:
    QWidget* window() { return editor->window(); }

    // Presses a button of the next dialog box.
    static void answerNext(QDialogButtonBox::StandardButton answer) {
        QTimer::singleShot(0, [answer] {
            auto* box = qobject_cast<DialogBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            box->findChild<QDialogButtonBox*>()->button(answer)->click();
        });
    }

    [[nodiscard]] bool loaded() {
        return machine.programm.find(bildschirme::GsArbeitsverhalten) != nullptr;
    }
};

TEST_F(WindowHostTest, AsksBeforeACloseBoxDropsAnEntryScreen) {
    window()->setWindowModified(true);
    answerNext(QDialogButtonBox::No);
    window()->close();
    EXPECT_TRUE(loaded());
    EXPECT_TRUE(window()->isVisible());
    answerNext(QDialogButtonBox::Yes);
    window()->close();
    EXPECT_FALSE(loaded());
}

TEST_F(WindowHostTest, OutlivesAScreenThatUnloadsItselfFromItsOwnButton) {
    machine.dialogs.answers = {Antwort::Nein};
    QTest::mouseClick(button("Abbrechen"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(loaded());
    QTest::mouseClick(button("Listen und Formulare erstellen und drucken"), Qt::LeftButton);
    EXPECT_NE(button("Strichliste"), nullptr);
}

TEST_F(WindowHostTest, KeepsItsWindowsAboveTheStartPage) {
    const QWidget* start = button("Programm beenden")->window();
    EXPECT_EQ(window()->windowHandle()->transientParent(), start->windowHandle());
    window()->activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(host.dialogParent(), window());
}

TEST_F(WindowHostTest, ShowsAFailureAndEndsWithOne) {
    installation.remove(u"Daten/Sicherheit");
    QTimer::singleShot(0, [this] {
        answerNext(QDialogButtonBox::Ok);
        QTest::mouseClick(button("Alle Texte speichern"), Qt::LeftButton);
    });
    EXPECT_EQ(QCoreApplication::exec(), 1);
}

TEST_F(WindowHostTest, ThePointerTellsThatFilesAreWrittenAndRestsAfterwards) {
    struct : safety::Guard {
        using Guard::Guard;
        void afterWrite(const std::filesystem::path& file, std::string_view bytes,
                        bool done) noexcept override {
            wasBusy = QApplication::overrideCursor() != nullptr;
            Guard::afterWrite(file, bytes, done);
        }
        bool wasBusy = false;
    } guard(installation.path());
    BusyWrites watcher(host.busyPointer(), guard);
    machine.programm.directory().watchWrites(&watcher);
    QTest::mouseClick(button("Alle Texte speichern"), Qt::LeftButton);
    EXPECT_TRUE(guard.wasBusy);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    machine.programm.directory().watchWrites(nullptr);
}

TEST_F(WindowHostTest, EndsWithTheProgram) {
    QTimer::singleShot(0,
                       [this] { QTest::mouseClick(button("Programm beenden"), Qt::LeftButton); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(WindowHostTest, AnswersOfADialogBox) {
    DialogBox question(QStringLiteral("Titel"), QStringLiteral("Text"), nullptr);
    question.setButtons(Tasten::JaNein, Antwort::Nein);
    QTimer::singleShot(0, [&] {
        QTest::keyClick(&question, Qt::Key_Escape);
        EXPECT_TRUE(question.isVisible());
        QTest::keyClick(&question, Qt::Key_Return);
    });
    EXPECT_EQ(question.ask(), Antwort::Nein);

    DialogBox cancellable(QStringLiteral("Titel"), QStringLiteral("Text"), nullptr);
    cancellable.setButtons(Tasten::JaNeinAbbrechen, Antwort::Ja);
    QTimer::singleShot(0, [&] { QTest::keyClick(&cancellable, Qt::Key_Escape); });
    EXPECT_EQ(cancellable.ask(), Antwort::Abbrechen);
}

} // namespace
} // namespace zeugnis::test
