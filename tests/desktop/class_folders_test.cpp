#include "desktop/comfort/spelling.h"
#include "desktop/folders/class_fields.h"
#include "desktop/folders/first_start_window.h"
#include "desktop/folders/module_update_window.h"
#include "desktop/folders/moving_up_window.h"
#include "desktop/folders/new_class_window.h"
#include "desktop/folders/recent_classes.h"
#include "desktop/folders/take_along_window.h"
#include "desktop/user_settings.h"
#include "desktop/window_host.h"
#include "folders/new_class.h"
#include "tests/support/test_programm.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTableWidget>
#include <QTimer>

namespace zeugnis::test {
namespace {

namespace fs = std::filesystem;

const fs::path Vorlage = fs::path(ZEUGNIS_SOURCE_FOLDER) / "install";

// Home and settings lie in a folder of the test's own.
class ClassFolders : public testing::Test {
  protected:
    ClassFolders() {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qPath(root.path()));
        qputenv("HOME", qPath(root.path()).toUtf8());
        qputenv("XDG_CONFIG_HOME", qPath(root.path()).toUtf8());
    }
    ~ClassFolders() override { qputenv("HOME", m_home); }

    [[nodiscard]] fs::path place(TextView name) const { return root.path() / pathFromText(name); }

    static void press(const QWidget& window, const QString& text) {
        for (auto* button : window.findChildren<QPushButton*>())
            if (button->text().remove(u'&').startsWith(text) && button->isEnabled())
                return button->click();
        ADD_FAILURE() << "no button " << text.toStdString();
    }

    static void write(const QWidget& window, const QString& label, const QString& text) {
        for (const auto* one : window.findChildren<QLabel*>())
            if (one->isVisibleTo(&window) && one->text().remove(u'&') == label)
                return qobject_cast<QLineEdit*>(one->buddy())->setText(text);
        ADD_FAILURE() << "no field " << label.toStdString();
    }

    static QString said(const QWidget& window) {
        QString all;
        for (const auto* one : window.findChildren<QLabel*>())
            if (one->isVisibleTo(&window))
                all += one->text() + u'\n';
        return all;
    }

    // Answers the next box with this button, and keeps what it said.
    void answer(const QString& button) {
        QTimer::singleShot(20, [this, button] {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            told = said(*box);
            press(*box, button);
        });
    }

    TemporaryFolder root;
    QString told;

  private:
    QByteArray m_home = qgetenv("HOME");
};

TEST_F(ClassFolders, ANewClassLeadsFromTheSchoolToTheFirstChild) {
    NewClassWindow window(Vorlage, nullptr);
    write(window, QStringLiteral("Name der Schule:"), QStringLiteral("Schule „Am Łan“"));
    press(window, QStringLiteral("Weiter"));
    write(window, QStringLiteral("Klasse:"), QStringLiteral("5a"));
    press(window, QStringLiteral("Weiter"));
    EXPECT_TRUE(said(window).contains(QStringLiteral("Schuljahrgang, 1 bis 4"))) << "stays";
    write(window, QStringLiteral("Klasse:"), QStringLiteral("3b"));
    write(window, QStringLiteral("Schuljahr:"), QStringLiteral("2026/2027"));
    window.findChildren<QRadioButton*>().at(1)->click();
    press(window, QStringLiteral("Weiter"));
    write(window, QStringLiteral("Klassenleitung:"), QStringLiteral("wird übersprungen"));
    press(window, QStringLiteral("Überspringen"));
    EXPECT_TRUE(window.folder() == classesFolder() / "3b 2026-27-2") << window.folder();
    press(window, QStringLiteral("Zurück"));
    press(window, QStringLiteral("Weiter"));
    press(window, QStringLiteral("Weiter"));
    write(window, QStringLiteral("Nachname:"), QStringLiteral("Yılmaz"));
    write(window, QStringLiteral("Vorname:"), QStringLiteral("Ayşe"));
    write(window, QStringLiteral("geboren am:"), QStringLiteral("3.4.2018"));
    press(window, QStringLiteral("Klasse anlegen"));
    EXPECT_EQ(window.result(), QDialog::Rejected) << "boy or girl is open";
    window.findChildren<QRadioButton*>().back()->setChecked(true);
    press(window, QStringLiteral("Klasse anlegen"));
    ASSERT_EQ(window.result(), QDialog::Accepted) << said(window).toStdString();

    const fs::path daten = fs::relative(window.folder(), root.path()) / "Daten";
    EXPECT_EQ(root.read(textFromPath(daten / "Namen.Txt")),
              u"1,\"3b\",\"Yilmaz\",\"Ayse\",\"w\",\"03.04.2018\",\"\",\"\",\"\",\"\",\"\"\r\n");
    const Text school = root.read(textFromPath(daten / "Basisdaten.txt"));
    EXPECT_TRUE(school.starts_with(u"\"Schule „Am Lan“\"")) << utf8FromText(school);
    EXPECT_EQ(school.find(u"wird"), Text::npos);
}

TEST_F(ClassFolders, TheHalfYearFollowsClassAndDayUntilOneIsChosen) {
    const std::tuple<QDate, QString, TextView> cases[] = {
        {{2026, 11, 23}, QStringLiteral("3a"), u"1"}, {{2027, 1, 20}, QStringLiteral("2a"), u"1"},
        {{2027, 2, 1}, QStringLiteral("3a"), u"2"},   {{2026, 8, 1}, QStringLiteral("4c"), u"1"},
        {{2026, 11, 23}, QStringLiteral("1a"), u"2"}, {{2026, 7, 31}, QStringLiteral("4c"), u"2"}};
    for (const auto& [day, name, half] : cases) {
        ClassFields fields(nullptr);
        fields.guessHalf(day);
        fields.findChildren<QLineEdit*>().front()->setText(name);
        Klassenangaben now;
        fields.read(now);
        EXPECT_EQ(now.Schule.Halbjahr, half) << name.toStdString();
        fields.findChildren<QRadioButton*>().at(half == u"1" ? 1 : 0)->click();
        fields.findChildren<QLineEdit*>().front()->setText(QStringLiteral("3z"));
        fields.read(now);
        EXPECT_NE(now.Schule.Halbjahr, half) << "chosen by hand";
    }
}

TEST_F(ClassFolders, EachKeyLeadsToOnePlace) {
    const auto check = [](const QWidget& window) {
        QStringList keys;
        for (const auto* button : window.findChildren<QAbstractButton*>())
            if (button->isVisibleTo(&window))
                keys << button->shortcut().toString();
        for (const auto* label : window.findChildren<QLabel*>())
            if (label->isVisibleTo(&window) && label->buddy() != nullptr)
                keys << QKeySequence::mnemonic(label->text()).toString();
        keys.removeAll(QString());
        EXPECT_EQ(keys.removeDuplicates(), 0) << said(window).toStdString();
    };
    check(FirstStartWindow(Vorlage, {}));
    check(TakeAlongWindow(nullptr));
    check(MovingUpWindow(Vorlage, Vorlage, nullptr));
    NewClassWindow steps(Vorlage, nullptr);
    for (int step = 0; step < 5; ++step) {
        check(steps);
        if (step < 4)
            press(steps, QStringLiteral("Weiter"));
    }
}

TEST_F(ClassFolders, AClassWithoutAnyEntryCanBeOpened) {
    FirstStartWindow first(Vorlage, {});
    QTimer::singleShot(0, [&] {
        QWidget* window = QApplication::activeModalWidget();
        for (int i = 0; i < 5; ++i)
            press(*window, QStringLiteral("Überspringen"));
    });
    press(first, QStringLiteral("Neue Klasse"));
    EXPECT_EQ(first.result(), QDialog::Accepted);
    const TakenClass taken = first.takeAway();
    ASSERT_NE(taken.lock, nullptr);
    EXPECT_EQ(recentclasses::list(), std::vector<fs::path>{taken.folder});
    EmptyProgramm machine(taken.folder);
    BildschirmeAnmelden(machine.programm);
    EXPECT_NO_THROW(machine.programm.show(u"GsStart"));
}

TEST_F(ClassFolders, WhatAUserHasSwitchedStaysSwitchedInTheNextRun) {
    for (const bool isFirst : {true, false}) {
        EmptyProgramm machine(root.path());
        WindowHost host(machine.programm);
        const RememberedComfort remembered(host);
        EXPECT_EQ(host.reportBeside, !isFirst);
        EXPECT_EQ(Spelling::of(host).isOn(), isFirst);
        host.reportBeside = true;
        Spelling::of(host).switchOn(false);
    }
}

TEST_F(ClassFolders, WhatCannotBeOpenedIsToldAndTheWindowStays) {
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"offen")), u"");
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"geschützt")), u"");
    root.write(u"geschützt/Notsicherung", u"no folder can be made here");
    fs::create_directory(place(u"leer"));
    safety::FolderLock other(place(u"offen"), {u"Rechner", u"kollegin", safety::now(), 1});
    ASSERT_EQ(other.take().outcome, safety::FolderLock::Outcome::Ours);
    const std::tuple<TextView, QString, QString> cases[] = {
        {u"leer", QStringLiteral("Aus der Liste"), QStringLiteral("nicht erreichbar")},
        {u"offen", QStringLiteral("Zurück"), QStringLiteral("kollegin")},
        {u"geschützt", QStringLiteral("Zurück"), QStringLiteral("nichts schreiben")}};
    for (const auto& [folder, button, sentence] : cases) {
        recentclasses::remember(place(folder));
        FirstStartWindow window(Vorlage, {});
        answer(button);
        press(window, QStringLiteral("Klasse öffnen"));
        EXPECT_EQ(window.result(), QDialog::Rejected);
        EXPECT_TRUE(told.contains(sentence)) << told.toStdString();
    }
    EXPECT_EQ(recentclasses::list(), (std::vector<fs::path>{place(u"geschützt"), place(u"offen")}));
}

TEST_F(ClassFolders, AClassOnAStickIsCopiedWithoutTheLockOfWhoHasItOpen) {
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"Stick/3a")), u"");
    safety::FolderLock open(place(u"Stick/3a"), {u"Rechner", u"kollegin", safety::now(), 1});
    ASSERT_EQ(open.take().outcome, safety::FolderLock::Outcome::Ours);
    TakeAlongWindow window(nullptr);
    window.setSource(place(u"Stick"));
    EXPECT_TRUE(said(window).contains(QStringLiteral("liegt keine Klasse")));
    window.setSource(place(u"Stick/3a/Daten"));
    press(window, QStringLiteral("Kopieren"));
    ASSERT_EQ(window.result(), QDialog::Accepted) << said(window).toStdString();
    EXPECT_EQ(window.folder(), classesFolder() / "3a");
    EXPECT_TRUE(fs::exists(window.folder() / "Daten" / "Namen.Txt"));
    EXPECT_FALSE(fs::exists(window.folder() / "Notsicherung" / "Offen.txt"));
}

TEST_F(ClassFolders, MovingUpSuggestsTheNextSectionBesideTheOldFolder) {
    ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(u"Zeugnisse/3a")), u"");
    MovingUpWindow window(place(u"Zeugnisse/3a"), Vorlage, nullptr);
    EXPECT_EQ(window.newFolder(), place(u"Zeugnisse/4a 2027-28-1"));
    write(window, QStringLiteral("Klasse:"), QStringLiteral("7"));
    press(window, QStringLiteral("Klasse übernehmen"));
    EXPECT_TRUE(said(window).contains(QStringLiteral("Schuljahrgang, 1 bis 4")));
    write(window, QStringLiteral("Klasse:"), QStringLiteral("4b"));
    press(window, QStringLiteral("Klasse übernehmen"));
    EXPECT_EQ(window.result(), QDialog::Accepted) << said(window).toStdString();
    EXPECT_TRUE(root.has(u"Zeugnisse/4b 2027-28-1/Daten/Namen.Txt"));
}

TEST_F(ClassFolders, NewModulesAreTakenRowByRowAndOnlyOnce) {
    for (const TextView folder : {u"neu", u"Klasse"})
        ASSERT_EQ(BeispielklasseAnlegen(Vorlage, place(folder)), u"");
    const auto deliver = [&](TextView folder, TextView content) {
        root.write(Text(folder) + u"/Daten/AG.Txt", content);
        root.write(Text(folder) + u"/Daten/Standard/AGStandard.Txt", content);
    };
    deliver(u"Klasse", u"1,\"alt\"\r\n2,\"alt\"\r\n3,\"alt\"\r\n");
    root.write(u"Klasse/Daten/AG.Txt", u"1,\"alt\"\r\n2,\"eigen\"\r\n3,\"eigen\"\r\n");
    deliver(u"neu", u"1,\"neu\"\r\n2,\"neu\"\r\n3,\"neu\"\r\n");
    Text obstacle = u"Das Fenster ist noch offen.";
    const auto open = [&] {
        return std::make_unique<ModuleUpdateWindow>(
            Arbeitsverzeichnis(place(u"Klasse")), Arbeitsverzeichnis(place(u"neu")),
            [&] { return obstacle; }, nullptr);
    };
    const auto window = open();
    ASSERT_EQ(window->texts().size(), 3U);
    window->table().item(2, 0)->setCheckState(Qt::Checked);
    answer(QStringLiteral("OK"));
    press(*window, QStringLiteral("Übernehmen"));
    EXPECT_TRUE(told.contains(QStringLiteral("noch offen")));
    obstacle.clear();
    press(*window, QStringLiteral("Übernehmen"));
    EXPECT_EQ(root.read(u"Klasse/Daten/AG.Txt"), u"1,\"neu\"\r\n2,\"eigen\"\r\n3,\"neu\"\r\n");
    EXPECT_TRUE(open()->texts().empty());
}

} // namespace
} // namespace zeugnis::test
