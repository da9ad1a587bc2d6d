#include "documents/app/document_files.h"
#include "documents/app/review_document.h"
#include "documents/app/word_processor.h"
#include "tests/documents/printed_pages.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QStandardPaths>

#include <array>

namespace zeugnis::dokumente {
namespace {

using test::pageTexts;
using test::reportsIn;

// A class with names of every length, picture names and one picture.
class Lists : public testing::Test {
  protected:
    explicit Lists(int children = 2) {
        std::vector<test::Zeugniskind> all;
        Text pictures;
        for (int i = 0; i < children; ++i) {
            const Schueler kind =
                i % 4 != 1 ? test::schueler(u"Mats", u"Ahlers", u"14.03.2018", u"Süderfehn")
                           : test::schueler(u"Maximilian Leopold", u"Hohenstein-Wiedemann");
            pictures += textFromNumber(i + 1) + u",\"3a\",\"" + kind.Nachname + u"\",\"" +
                        kind.Vorname + u"\",\"" + (i == 1 ? Text() : BildnameVon(kind)) + u"\"\r\n";
            all.push_back({kind, u"", u""});
        }
        installation.write(all);
        installation.write(u"Daten/Bildliststeuer.Txt", pictures);
        std::filesystem::create_directory(installation.path() / "Bild");
        QImage picture(2000, 3000, QImage::Format_RGB32);
        picture.fill(Qt::green);
        EXPECT_TRUE(picture.save(QString::fromStdString(
            (installation.path() / "Bild" / "Ahlers_Mats_14032018.jpg").string())));
    }

    Dokumentdateien make(const char16_t* document, const char16_t* macro) {
        Arbeitsverzeichnis verzeichnis(installation.path());
        return DokumentBereitstellen(verzeichnis, {.Dokument = document, .Makro = macro});
    }

    test::ReportInstallation installation;
};

struct List {
    const char16_t* Document;
    const char16_t* Macro;
    const char16_t* Result;
    int Pages; ///< of a class of 36
    const char* Words;
};
constexpr std::array<List, 5> AllLists = {{
    {u"ZeugnisseAnlagen.doc", u"ZeugnisseAnlagen", u"3aZeugnisanlagen32.doc", 36,
     "Lindenschule Grundschule Süderfehn Am Anger 1, 26999 Süderfehn Anlage zum Zeugnis Schuljahr "
     "2026/2027, 2. Halbjahr Mats Ahlers geboren am 14.03.2018 in Süderfehn Klasse 3a Süderfehn, "
     "den 07.07.2027 Grete Großmann Klassenlehrkraft Schulleitung"},
    {u"KlListe.doc", u"Klassenliste", u"3aKlassenliste32.doc", 1,
     "Klassenliste der Klasse 3a Lindenschule · Schuljahr 2026/2027, 2. Halbjahr Nr. Nachname "
     "Vorname Geburtsdatum Geburtsort 1 Ahlers Mats 14.03.2018 Süderfehn 2 Hohenstein-Wiedemann "
     "Maximilian Leopold"},
    {u"STLISTE.doc", u"strichliste", u"3aStrichliste32.doc", 1,
     "Strichliste der Klasse 3a Lindenschule · Schuljahr 2026/2027, 2. Halbjahr Nr. Name 1 "
     "Ahlers, Mats 2 Hohenstein-Wiedemann, Maximilian Leopold"},
    {u"BldListe.doc", u"Bilderliste", u"3aBilderliste32.doc", 3,
     "Benennung von Bildern der Klasse 3a für die Speicherung im Unterordner 'Bild' Die Bilder "
     "sollten eine Größe von 3,6 x 2,7 cm bei einer Auflösung von 72 dpi haben. Sie müssen im "
     "jpg-Format (~.jpg) gespeichert sein. Dies entspricht dem SibankPlus- Programm. Für die "
     "einzelnen Bilder der Kinder müssen die nachstehenden Dateinamen gewählt werden, damit sie "
     "richtig angezeigt werden können. Wird kein Bild gefunden, so erscheint das Standardbild des "
     "'Smili'. 1 Ahlers_Mats_14032018.jpg = Ahlers, Mats 2 – = Hohenstein-Wiedemann, Maximilian "
     "Leopold Bei gleichgeschlechtlichen Zwillingen mit gleichem Anfangsbuchstaben des Vornamens "
     "sind die Bildbezeichnungen gleich und können nicht richtig geladen werden. Man kann dann "
     "nur ein Bild unter der Bezeichnung eingeben, auf dem beide zu sehen sind. Wo ein Strich "
     "steht, hat das Zeugnisprogramm noch keinen Dateinamen gebildet. Das geschieht bei "
     "„Basisdaten speichern“."},
    {u"Leerformular.doc", u"Leerformular", u"3aLeerformular32.doc", 2,
     "Lindenschule Grundschule Süderfehn Am Anger 1, 26999 Süderfehn Zeugnis Schuljahr 2026/2027, "
     "2. Halbjahr Vor- und Nachname 3a Klasse geboren am, in versäumte Tage, davon unentschuldigt "
     "Leistungen in den Fächern Deutsch Musik Mathematik Kunst "
     "Sachunterricht Textiles Gestalten Englisch Gestaltendes Werken Religion / Werte und Normen "
     "Sport Noten: 1 = sehr gut, 2 = gut, 3 = befriedigend, 4 = ausreichend, 5 = mangelhaft, 6 = "
     "ungenügend; – = nicht erteilt Förderunterricht und Arbeitsgemeinschaften Besondere "
     "Interessen und Fähigkeiten Arbeitsverhalten Sozialverhalten Bemerkungen Konferenzbeschluss "
     "vom 22.06.2027 Süderfehn, den 07.07.2027 Grete Großmann Klassenlehrkraft (Siegel) "
     "Schulleitung Zur Kenntnis genommen: Datum Erziehungsberechtigte/r"},
}};

TEST_F(Lists, BearTheClassInTheirNamesAndSayWhatTheyShould) {
    for (const List& list : AllLists) {
        const Dokumentdateien files = make(list.Document, list.Macro);
        EXPECT_EQ(utf8FromText(files.Name), utf8FromText(list.Result));
        EXPECT_EQ(reportsIn(files.Pdf).at(0).words().join(u' ').toStdString(), list.Words);
        const bool hasPicture = installation.read(list.Result).find(u"pngblip") != Text::npos;
        EXPECT_EQ(hasPicture, TextView(list.Macro) == u"Bilderliste");
    }
}

class WholeClass : public Lists {
  protected:
    WholeClass() : Lists(Schuelerplaetze) {}
};

TEST_F(WholeClass, IsTheSameInBothWriters) {
    if (QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    const test::TemporaryFolder folder;
    const auto compare = [&](const Dokumentdateien& files, int pages) {
        const auto converted = inPdfUmwandeln(files.Doc, folder.path());
        ASSERT_TRUE(converted.has_value());
        const QStringList ours = pageTexts(files.Pdf);
        const QStringList theirs = pageTexts(*converted);
        EXPECT_EQ(ours.size(), pages);
        ASSERT_EQ(theirs.size(), ours.size()) << utf8FromText(files.Name);
        for (qsizetype i = 0; i < ours.size(); ++i)
            EXPECT_EQ(ours[i].simplified().toStdString(), theirs[i].simplified().toStdString());
    };
    for (const List& list : AllLists)
        compare(make(list.Document, list.Macro), list.Pages);
    Text review = u"Lindenschule\r\nKlasse: 3a\r\n" + Text(65, u'_') + u"\r\n";
    for (int i = 0; i < 20; ++i)
        review += u"Ahlers, Mats\r\nArbeitsverhalten:\r\n" + test::saetze(4) +
                  u"\r\n\r\nSozialverhalten:\r\n\r\n" + Text(65, u'_') + u"\r\n";
    compare(AnzeigetextSchreiben(installation.path(), review), 4);
}

} // namespace
} // namespace zeugnis::dokumente
