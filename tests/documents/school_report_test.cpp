#include "common/word_launch.h"
#include "documents/content/paper_text.h"
#include "documents/content/school_report.h"
#include "tests/documents/report_installation.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

using test::failureOf;
using test::ReportInstallation;

const Schueler Zoe = test::schueler(u"Zoé", u"Weiß", u"02.11.2017", u"Köln");

// All text of a section in reading order, one line per paragraph.
std::string shown(const Section& section) {
    Text text;
    const auto add = [&](const Paragraph& paragraph) { text += textOf(paragraph) + u"\n"; };
    for (const Block& block : section.blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block))
            add(*paragraph);
        else if (const auto* table = std::get_if<Table>(&block))
            for (const Row& row : table->rows)
                for (const Cell& cell : row)
                    for (const Paragraph& one : cell.paragraphs)
                        if (!textOf(one).empty())
                            add(one);
    }
    return utf8FromText(text);
}

Document documentOf(const ReportInstallation& installation) {
    Arbeitsverzeichnis verzeichnis(installation.path());
    return ZeugnisseBilden(ZeugnisdatenLesen(verzeichnis));
}

TEST(SchoolReport, ShowsHeadTextsAndEndOfTheFormInOrder) {
    ReportInstallation installation;
    installation.write({{Zoe,
                         u"Zoé arbeitet gern.\r\nSie liest viel.",
                         u"Zoé hilft allen.",
                         {u"Zoé singt im Chor.", u"Zoé liebt Tiere.", u"Zoé wird versetzt."}}});
    installation.write(u"3aZeugnisliste32.txt",
                       u"7,\"3a\",\"Weiß\",\"Zoé\",5,0,1,2,3,4,5,6,-1,2,2,2\r\n");
    const Document document = documentOf(installation);
    ASSERT_EQ(document.sections.size(), 1U);
    EXPECT_EQ(utf8FromText(document.title),
              "Zeugnisse der Klasse 3a, Schuljahr 2026/2027, 2. Halbjahr");
    EXPECT_EQ(utf8FromText(document.sections[0].footer), "Zoé Weiß, Klasse 3a");
    EXPECT_EQ(shown(document.sections[0]), R"(Lindenschule
Grundschule Süderfehn
Am Anger 1, 26999 Süderfehn
Zeugnis
Schuljahr 2026/2027, 2. Halbjahr
Zoé Weiß
geboren am 02.11.2017 in Köln
Klasse 3a
Versäumte Unterrichtstage: 5, davon unentschuldigt: 0
Leistungen in den Fächern
Deutsch
sehr gut (1)
Musik
ungenügend (6)
Mathematik
gut (2)
Kunst
–
Sachunterricht
befriedigend (3)
Textiles Gestalten
gut (2)
Englisch
ausreichend (4)
Gestaltendes Werken
gut (2)
Religion / Werte und Normen
mangelhaft (5)
Sport
gut (2)
Noten: 1 = sehr gut, 2 = gut, 3 = befriedigend, 4 = ausreichend, 5 = mangelhaft, 6 = ungenügend; – = nicht erteilt
Förderunterricht und Arbeitsgemeinschaften
Zoé singt im Chor.
Besondere Interessen und Fähigkeiten
Zoé liebt Tiere.
Arbeitsverhalten
Zoé arbeitet gern.
Sie liest viel.
Sozialverhalten
Zoé hilft allen.
Bemerkungen
Zoé wird versetzt.

Konferenzbeschluss vom 22.06.2027
Süderfehn, den 07.07.2027
Grete Großmann
Klassenlehrkraft
(Siegel)
Schulleitung
Zur Kenntnis genommen:
Datum
Erziehungsberechtigte/r
)");
}

TEST(SchoolReport, ShowsTheAreasOfYearsOneAndTwoAndADashOrNoLineForWhatIsMissing) {
    ReportInstallation installation;
    installation.Schule = {};
    installation.Schule.Halbjahr = u"1";
    installation.write(
        {{{}, u"", u" \r\n", {u"t0", u"t1", u"", u"t3", u"t4", u"t5", u"t6", u"t7"}}}, u"2a");
    EXPECT_EQ(shown(documentOf(installation).sections.at(0)), R"(–
Halbjahreszeugnis
Schuljahr –, 1. Halbjahr
–
Klasse 2a
Versäumte Unterrichtstage: –, davon unentschuldigt: –
Interessen, Fähigkeiten und Fertigkeiten
t0
Deutsch
Sprechen und Zuhören
t1
Lesen und mit Texten umgehen
–
Schreiben, Texte verfassen
t3
Mathematik
Zahlen und Operationen
t4
Größen und Messen
t5
Raum und Form
t6
Arbeitsverhalten
–
Sozialverhalten
–
Bemerkungen
t7

Konferenzbeschluss vom –
–, den –
Klassenlehrkraft
(Siegel)
Schulleitung
Zur Kenntnis genommen:
Datum
Erziehungsberechtigte/r
)");
}

TEST(SchoolReport, FollowsTheLayoutOfTheSchool) {
    ReportInstallation installation;
    installation.write({{Zoe,
                         u"AV.",
                         u"SV.",
                         {u"", u"",
                          u"Zoé wird nicht in den 4. Schuljahrgang "
                          u"versetzt."}}});
    installation.write(u"Zeugnisaufbau.txt",
                       u"\"Arbeits- und Sozialverhalten\",\"zuerst\"\r\n"
                       u"\"Religionsfach\",\"Religion\"\r\n\"Kenntnisnahme\",\"keine\"\r\n"
                       u"\"Namen unter den Unterschriften\",\"nein\"\r\n"
                       u"\"Unbekanntes\",\"bleibt\"\r\n"
                       u"\"Unterrichtsbeginn\",\"Der Unterricht beginnt am 5. August.\"\r\n"
                       u"\"Rechtsbehelf\",\"Widerspruch ist möglich.\"\r\n");
    const std::string text = shown(documentOf(installation).sections.at(0));
    EXPECT_LT(text.find("Arbeitsverhalten"), text.find("Leistungen"));
    EXPECT_NE(text.find("\nReligion\n"), std::string::npos);
    const std::string end = text.substr(text.find("Bemerkungen"));
    EXPECT_EQ(end, "Bemerkungen\nZoé wird nicht in den 4. Schuljahrgang versetzt.\n\n"
                   "Widerspruch ist möglich.\nDer Unterricht beginnt am 5. August.\n"
                   "Konferenzbeschluss vom 22.06.2027\nSüderfehn, den 07.07.2027\n"
                   "Klassenlehrkraft\n(Siegel)\nSchulleitung\n");
}

TEST(SchoolReport, SetsQuotesAndLinesAsOnPaper) {
    const std::vector<std::pair<const char16_t*, const char*>> cases = {
        {u"Sie mag 'Chor' und ''Werken''.", "Sie mag „Chor“ und „Werken“."},
        {u"Mats' Heft und Lars' Buch.", "Mats’ Heft und Lars’ Buch."},
        {u"('gut')\r\n\r\n \r\nO'Neil sagt \"ja\".", "(„gut“)\nO’Neil sagt „ja“."},
        {u" \r\n'offen\t\u0001\u009Dbleibt\roffen \r\n", "’offen bleibt\noffen"},
        {u"Bis 20. Sie lernt im 4. Schuljahrgang.", "Bis 20. Sie lernt im 4. Schuljahrgang."},
    };
    for (const auto& [text, paper] : cases)
        EXPECT_EQ(utf8FromText(AufPapier(text)), paper);
}

TEST(SchoolReport, HasTheNameThatTheStartPageOpens) {
    for (const auto& [klasse, halbjahr, dokument] : {std::tuple{u"3a", u"2", u"3aZeugnisse32"},
                                                     {u"2b", u"1", u"2bZeugnisse21"},
                                                     {u"1a", u"1", u"1aZeugnisse12"}}) {
        ReportInstallation installation;
        installation.Schule.Halbjahr = halbjahr;
        installation.write({{Zoe, u"", u""}}, klasse);
        Arbeitsverzeichnis verzeichnis(installation.path());
        const Stammdaten stamm = StammdatenLesen(verzeichnis);
        EXPECT_EQ(utf8FromText(Klassenstamm(stamm, u"Zeugnisse")), utf8FromText(dokument));
        EXPECT_EQ(
            word::Klassendokument(stamm.Liste.Klasse, u"Zeugnisse", stamm.Jahrgang, stamm.Halbjahr),
            u"Winword.exe " + Text(dokument) + u".doc");
    }
}

TEST(SchoolReport, RefusesTextsOfAnotherClassListAndAnEmptyOne) {
    ReportInstallation installation;
    installation.write({{Zoe, u"Zoé lacht.", u""}});
    Text namen = installation.read(u"Daten/Namen.Txt");
    namen.replace(namen.find(u"Weiß"), 4, u"Schwarz");
    installation.write(u"Daten/Namen.Txt", namen);
    EXPECT_EQ(failureOf([&] { documentOf(installation); }), "invalid-call");
    // Here the store of the year group alone is another's; it goes by place and names nobody.
    Text avsv = installation.read(u"Daten/AVSVspeicher.txt");
    avsv.replace(avsv.find(u"Weiß"), 4, u"Schwarz");
    installation.write(u"Daten/AVSVspeicher.txt", avsv);
    Text wahl = installation.read(u"Daten/AVSVWahl.txt");
    wahl.replace(wahl.find(u"Weiß"), 4, u"Schwarz");
    installation.write(u"Daten/AVSVWahl.txt", wahl);
    EXPECT_EQ(failureOf([&] { documentOf(installation); }), "invalid-call");

    installation.write(u"Daten/Namen.Txt",
                       u"0,\"3a\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(failureOf([&] { documentOf(installation); }), "invalid-call");
}

} // namespace
} // namespace zeugnis::dokumente
