#include "desktop/rescue/net.h"

#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "desktop/desktop_machine.h"
#include "desktop/rescue/former_states_window.h"
#include "desktop/rescue/offer_window.h"
#include "desktop/screen_window.h"
#include "desktop/window_host.h"
#include "masterdata/master_data_screen.h"
#include "tests/support/test_programm.h"
#include "years34/entry_screen.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace zeugnis::test {
namespace {

// The windows with the net below them, as main() ties them.
struct Running {
    explicit Running(const TestInstallation& installation)
        : guard(installation.path()),
          programm({dialogs, clipboard, calendar, pictures, launcher}, installation.path()),
          host(programm),
          net((programm.directory().watchWrites(&guard), host), dialogs, guard,
              installation.path()) {
        BildschirmeAnmelden(programm);
        dialogs.parent = [this] { return host.dialogParent(); };
        net.examineStart();
        show(bildschirme::GsStart);
    }

    void show(TextView screen) {
        host.run([&] { programm.show(screen); });
    }

    template <typename S>
    S& screen(TextView name) {
        return dynamic_cast<S&>(*programm.find(name));
    }

    void press(Control& control) {
        QTest::mouseClick(host.windowOf(&control.screen())->widgetOf(control), Qt::LeftButton);
    }

    DesktopDialogs dialogs;
    PlainClipboard clipboard;
    FixedCalendar calendar{u"15.03.2027"};
    JpegMarkPictures pictures;
    RecordingLauncher launcher;
    safety::Guard guard;
    Programm programm;
    WindowHost host;
    Net net;
};

class NetTest : public testing::Test {
  protected:
    // Presses the buttons of the boxes to come, and keeps what they said.
    void answer(QStringList buttons) {
        if (buttons.isEmpty())
            return;
        QTimer::singleShot(20, [this, buttons]() mutable {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            if (const QString folder = qEnvironmentVariable("ZEUGNIS_PICTURES"); !folder.isEmpty())
                box->grab().save(QDir(folder).filePath(QStringLiteral("box%1.png").arg(m_boxes++)));
            for (const QLabel* label : box->findChildren<QLabel*>())
                said += label->text();
            const QString wanted = buttons.takeFirst();
            answer(buttons);
            for (QPushButton* button : box->findChildren<QPushButton*>())
                if (button->text().remove(u'&').contains(wanted))
                    return button->click();
            ADD_FAILURE() << "no button " << wanted.toStdString();
        });
    }

    [[nodiscard]] std::string file(TextView name) const {
        return utf8FromText(installation.read(name));
    }

    // Has the first child's text in the box, and in no file.
    static GsArbeitsverhalten& write(Running& running, const Text& text) {
        running.show(bildschirme::GsArbeitsverhalten);
        auto& screen = running.screen<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
        running.host.run([&] {
            user::pick(screen.Combo1, 0);
            user::click(screen.Command1);
        });
        running.host.run([&] {
            user::click(screen.Text1(0));
            user::paste(screen.Text1(0), text);
        });
        return screen;
    }

    TestInstallation installation;
    QString said;
    int m_boxes = 0;
};

TEST_F(NetTest, WhatIsTypedIsThereAgainTwoSecondsLater) {
    {
        Running killed(installation);
        write(killed, u"Tom hört zu.");
        QTest::qWait(1500);
    }
    Running next(installation);
    next.net.tellAtStart();
    auto windows = next.host.windowOf(next.programm.startScreen())->findChildren<OfferWindow*>();
    ASSERT_EQ(windows.size(), 1);
    for (QPushButton* button : windows.front()->findChildren<QPushButton*>())
        if (button->isDefault())
            button->click();
    EXPECT_EQ(next.screen<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten).Text1(0).text(),
              u"Tom hört zu.");
}

TEST_F(NetTest, QuotesAreMendedBeforeASave) {
    Running running(installation);
    running.show(bildschirme::GSAGFI);
    auto& screen = running.screen<GSAGFI>(bildschirme::GSAGFI);
    running.host.run([&] {
        user::pick(screen.Combo1, 0);
        user::click(screen.Command2(1));
        user::click(screen.Text2);
        user::paste(screen.Text2, u"Tom mag \"Ronja\".");
    });
    answer({QStringLiteral("ersetzen")});
    running.press(screen.Command1(0));
    EXPECT_NE(file(u"Daten/34Speicher.txt").find("Tom mag „Ronja“."), std::string::npos);
    EXPECT_TRUE(said.contains(QStringLiteral("Ahlers, Tom: Interessen")));
}

TEST_F(NetTest, AFailureTellsWhatIsKept) {
    Running running(installation);
    auto& screen = write(running, u"Tom hört zu.");
    installation.remove(u"Daten/Sicherheit");
    installation.write(u"Daten/Sicherheit", u"eine Datei");
    QTimer::singleShot(0, &running.host, [&] {
        answer({QStringLiteral("OK")});
        running.press(screen.Command4);
    });
    EXPECT_EQ(QCoreApplication::exec(), 1);
    EXPECT_TRUE(said.contains(QStringLiteral("Ahlers, Tom: Arbeitsverhalten")))
        << said.toStdString();
}

TEST_F(NetTest, DamageIsMendedBeforeItIsReadAndAMissingFolderIsMade) {
    {
        Running before(installation);
        before.net.tellAtStart();
    }
    // The start page reads the one, and nothing else yet.
    for (const TextView name : {u"Daten/Basisdaten.txt", u"Daten/AVSVspeicher.txt"}) {
        const std::string good = file(name);
        installation.write(name, u"");
        installation.remove(u"Daten/Sicherheit");
        answer(
            {QStringLiteral("Ansehen"), QStringLiteral("Zurück"), QStringLiteral("guten Stand")});
        Running after(installation);
        after.net.tellAtStart();
        EXPECT_EQ(file(name), good);
        EXPECT_TRUE(installation.has(u"Daten/Sicherheit"));
        EXPECT_EQ(after.programm.screens().size(), 1U);
    }
}

TEST_F(NetTest, AFullClassGrowsOnlyIfThatIsSaidTwice) {
    Text names;
    for (int i = 1; i <= SchuelerHoechstens; ++i)
        names += textFromNumber(i) + u",\"3a\",\"Ahlers\",\"Tom\",\"m\",\"01.02.2018\",\"\",\"\"," +
                 u"\"\",\"\",\"Ort\"\r\n";
    namespace fs = std::filesystem;
    fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / "install", installation.path(),
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    Running running(installation);
    installation.write(u"Daten/Namen.Txt", names);
    running.show(bildschirme::GsBasis);
    auto& screen = running.screen<GsBasis>(bildschirme::GsBasis);
    answer({QStringLiteral("Ja")});
    running.host.run([&] { user::click(screen.Command5); });
    answer({QStringLiteral("Nicht")});
    running.press(screen.Command4(2));
    answer({QStringLiteral("Trotzdem"), QStringLiteral("Nicht")});
    running.press(screen.Command4(2));
    EXPECT_EQ(screen.Liste.Schuelerzahl, SchuelerHoechstens);
    EXPECT_TRUE(said.contains(QStringLiteral("Die Klasse hat schon 33 Kinder")));
    EXPECT_TRUE(said.contains(QStringLiteral("Alle Texte der Klasse werden dabei geleert")));
}

TEST_F(NetTest, AFormerStateComesBackWithTwoClicks) {
    Running running(installation);
    running.press(write(running, u"Tom hört zu.").Command4);
    running.host.run([&] { running.programm.unload(bildschirme::GsArbeitsverhalten); });
    ASSERT_NE(file(u"Daten/AVSVspeicher.txt").find("Tom hört zu."), std::string::npos);
    answer({QStringLiteral("Alles"), QStringLiteral("Schließen")});
    running.host.beside.showFormerStates();
    EXPECT_EQ(file(u"Daten/AVSVspeicher.txt").find("Tom hört zu."), std::string::npos);
}

} // namespace
} // namespace zeugnis::test
