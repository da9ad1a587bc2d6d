#include "documents/app/report_files.h"
#include "documents/window/layout_dialog.h"
#include "documents/window/report_window.h"
#include "tests/documents/report_installation.h"
#include "toolkit/entry_call.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

class ReportWindowTest : public testing::Test {
  protected:
    ReportWindowTest() : verzeichnis(installation.path()) {
        const Schueler zoe = test::schueler(u"Zoé", u"Weiß", u"02.11.2017");
        installation.write(
            {{zoe, u"AV.", u"SV.", {}},
             {test::schueler(u"Kim", u"O'Neil: jr."), u"", u""},
             {zoe, u"", u"", {u"", u"", u"Zoé wiederholt laut Konferenzbeschluss vom 1. Juli."}}});
        std::filesystem::create_directory(installation.path() / "Bild");
        for (const char16_t* name : {u"Bild/ZeugnKOPF.jpg", u"Bild/Weiß_Zoé_02112017.jpg",
                                     u"Bild/SMILI.jpg", u"Bild/Liste.txt"})
            installation.write(name, u"");
    }

    test::ReportInstallation installation;
    Arbeitsverzeichnis verzeichnis;
};

QString textOfPages(const std::filesystem::path& pdf) {
    const PdfPages pages(pdf);
    QString text;
    for (int page = 0; page < pages.count(); ++page)
        text += pages.text(page);
    return text;
}

TEST_F(ReportWindowTest, WritesAFileForEachChildAndOneOfAll) {
    const std::filesystem::path folder = EinzelneZeugnisseSchreiben(verzeichnis);
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(folder.filename(), "3aZeugnisse32");
    EXPECT_EQ(names, (std::vector<std::string>{"3aZeugnisse32.pdf", "O'Neil- jr., Kim (3a).pdf",
                                               "Weiß, Zoé (3a) 3.pdf", "Weiß, Zoé (3a).pdf"}));
    EXPECT_TRUE(textOfPages(folder / "Weiß, Zoé (3a).pdf").contains(QStringLiteral("AV.")));
}

TEST_F(ReportWindowTest, AFormWithAPictureInItsHeadTakesNoFurtherPage) {
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(
        QString::fromStdString((installation.path() / "Bild" / "ZeugnKOPF.jpg").string())));
    const auto pagesOfForm = [&] {
        const auto files = DokumentBereitstellen(
            verzeichnis, {.Dokument = u"Leerformular.doc", .Makro = u"Leerformular"});
        return PdfPages(files.Pdf).count();
    };
    for (const auto& [klasse, pages] : {std::pair(u"3a", 2), {u"2b", 3}}) {
        installation.write({{test::schueler(u"Zoé", u"Weiß"), u"", u""}}, klasse);
        ZeugnisaufbauSchreiben(verzeichnis, {});
        EXPECT_EQ(pagesOfForm(), pages);
        ZeugnisaufbauSchreiben(verzeichnis, {.Schulleitung = {},
                                             .Kopfbild = u"ZeugnKOPF.jpg",
                                             .Unterricht = {},
                                             .Rechtsbehelf = {}});
        EXPECT_EQ(pagesOfForm(), pages);
    }
}

TEST_F(ReportWindowTest, TheLayoutShowsEachChoiceOnThePagesAndKeepsIt) {
    QString shown;
    const test::TemporaryFolder folder;
    EXPECT_EQ(Kopfbilder(verzeichnis), (std::vector<Text>{u"ZeugnKOPF.jpg"}));
    LayoutDialog dialog({}, Kopfbilder(verzeichnis), [&](const Zeugnisaufbau& aufbau) {
        auto pdf = ProbezeugnisSchreiben(verzeichnis, aufbau, folder.path());
        shown = textOfPages(pdf);
        return pdf;
    });
    dialog.QDialog::show();
    const auto combos = dialog.findChildren<QComboBox*>();
    const auto lines = dialog.findChildren<QLineEdit*>();
    ASSERT_EQ(combos.size(), 4);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_GT(shown.indexOf(QStringLiteral("Arbeitsverhalten")),
              shown.indexOf(QStringLiteral("Leistungen")));
    QTest::keyClick(combos[0], Qt::Key_Down);
    QTest::keyClick(combos[2], Qt::Key_End);
    EXPECT_LT(shown.indexOf(QStringLiteral("Arbeitsverhalten")),
              shown.indexOf(QStringLiteral("Leistungen")));
    EXPECT_FALSE(shown.contains(QStringLiteral("Zur Kenntnis")));
    lines[0]->setText(QStringLiteral("Inga Ło"));
    QTest::keyClicks(lines[0], QStringLiteral("s"));
    lines[2]->setText(QStringLiteral("Widerspruch ist \"so\" mö"));
    QTest::keyClicks(lines[2], QStringLiteral("glich."));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return shown.contains(QStringLiteral("Inga Los")) &&
               shown.contains(QStringLiteral("Widerspruch ist „so“ möglich."));
    }));

    ZeugnisaufbauSchreiben(verzeichnis, dialog.chosen());
    Zeugnisaufbau expected = dialog.chosen();
    expected.Rechtsbehelf = u"Widerspruch ist 'so' möglich.";
    EXPECT_TRUE(ZeugnisaufbauLesen(verzeichnis) == expected);
    if (const char* keep = std::getenv("KEEP_CLASSES"))
        dialog.grab().save(QString::fromUtf8(keep) + QStringLiteral("/layout.png"));
}

TEST_F(ReportWindowTest, AHintLeadsToItsTextInTheProgramThatIsOpen) {
    // The other program; it answers while this one waits.
    QThread thread;
    auto* other = new QObject;
    other->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, other, &QObject::deleteLater);
    thread.start();
    std::vector<EntryPlace> asked;
    QMetaObject::invokeMethod(
        other,
        [&] {
            auto* server = new EntryCallServer(installation.path(), [&](const EntryPlace& place) {
                asked.push_back(place);
                return true;
            });
            server->setParent(other);
        },
        Qt::BlockingQueuedConnection);

    const Aufruf call{.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"};
    const Dokumentdateien files = DokumentBereitstellen(verzeichnis, call);
    ReportWindow window(
        verzeichnis, [&] { return AnzeigeFinden(files, [](const auto&) { return std::nullopt; }); },
        [] {}, [] {});
    window.showChecks({.Pruefen =
                           [] {
                               return std::vector<Befund>{
                                   {.Satz = u"Die Zeugnisliste ist noch nicht angelegt."},
                                   {.Platz = 1, .Abschnitt = u"Sozialverhalten", .Satz = u"leer"}};
                           },
                       .Gesehen = [](const Befund&) {},
                       .Lernen = [](const Befund&) {}});
    window.show();
    auto* list = window.findChild<ChecksPanel*>()->findChild<QListWidget*>();
    const auto isOffered = [&](int row) {
        list->setCurrentRow(row);
        for (QPushButton* button : window.findChildren<QPushButton*>())
            if (button->text() == QStringLiteral("&Zum Text") && button->isEnabled()) {
                button->click();
                return true;
            }
        return false;
    };
    EXPECT_FALSE(isOffered(0)) << "no text";
    EXPECT_TRUE(isOffered(list->count() - 1));
    thread.quit();
    thread.wait();
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].child, 1);
    EXPECT_TRUE(asked[0].isBehaviour);
    EXPECT_EQ(asked[0].page, 1);
}

TEST_F(ReportWindowTest, ANewLayoutIsWrittenAndShownAndAnEditedDocumentIsNotLostUnasked) {
    const Aufruf call{.Dokument = u"ZeugnisseSchreiben.doc", .Makro = u"ZeugnisseSchreiben"};
    const Dokumentdateien files = DokumentBereitstellen(verzeichnis, call);
    ReportWindow window(
        verzeichnis, [&] { return AnzeigeFinden(files, [](const auto&) { return std::nullopt; }); },
        [&] { DokumentBereitstellen(verzeichnis, call); }, [] {});
    window.show();
    QPushButton* change = nullptr;
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->text() == QStringLiteral("&Aufbau …"))
            change = button;
    ASSERT_NE(change, nullptr);
    const auto choose = [&](const char* answer) {
        QTimer::singleShot(0, &window, [&, answer] {
            auto* dialog = window.findChild<LayoutDialog*>();
            QTest::keyClick(dialog->findChildren<QComboBox*>()[0], Qt::Key_Down);
            QTimer::singleShot(0, &window, [answer] {
                for (QWidget* top : QApplication::topLevelWidgets())
                    for (QPushButton* button : top->findChildren<QPushButton*>())
                        if (top->inherits("QMessageBox") &&
                            button->text() == QString::fromUtf8(answer))
                            button->click();
            });
            dialog->accept();
        });
        QTest::mouseClick(change, Qt::LeftButton);
    };
    installation.edit("3aZeugnisse32.doc");
    choose("Abbrechen");
    EXPECT_FALSE(installation.has(u"Zeugnisaufbau.txt"));
    EXPECT_TRUE(IstBearbeitet(files));
    choose("Fortfahren");
    EXPECT_EQ(ZeugnisaufbauLesen(verzeichnis).Reihenfolge, Zeugnisaufbau::Verhalten::Zuerst);
    EXPECT_FALSE(IstBearbeitet(files));
    const QString text = textOfPages(files.Pdf);
    EXPECT_LT(text.indexOf(QStringLiteral("Arbeitsverhalten")),
              text.indexOf(QStringLiteral("Leistungen")));
    if (const char* keep = std::getenv("KEEP_CLASSES"))
        window.grab().save(QString::fromUtf8(keep) + QStringLiteral("/window.png"));
}

} // namespace
} // namespace zeugnis::dokumente
