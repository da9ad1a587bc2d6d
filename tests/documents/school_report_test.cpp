#include "common/word_launch.h"
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
Arbeitsverhalten
Zoé arbeitet gern.
Sie liest viel.
Sozialverhalten
Zoé hilft allen.
Leistungen in den Fächern
Deutsch
Mathematik
Sachunterricht
Englisch
Religion / Werte und Normen
sehr gut (1)
gut (2)
befriedigend (3)
ausreichend (4)
mangelhaft (5)
Musik
Kunst
Textiles Gestalten
Gestaltendes Werken
Sport
ungenügend (6)
–
gut (2)
gut (2)
gut (2)
Förderunterricht und Arbeitsgemeinschaften
Zoé singt im Chor.
Besondere Interessen
Zoé liebt Tiere.
Bemerkungen
Zoé wird versetzt.
Noten: 1 = sehr gut, 2 = gut, 3 = befriedigend, 4 = ausreichend, 5 = mangelhaft, 6 = ungenügend
Konferenz vom 22.06.2027
Süderfehn, den 07.07.2027
Klassenlehrkraft
Gesehen:
Erziehungsberechtigte/r
(Siegel)
Schulleitung
)");
}

TEST(SchoolReport, WhatIsMissingLeavesADashOrNoLine) {
    ReportInstallation installation;
    installation.Schule = {};
    installation.Schule.Halbjahr = u"1";
    installation.write({{{}, u"", u" \r\n"}}, u"2a");
    EXPECT_EQ(shown(documentOf(installation).sections.at(0)), R"(–
Zeugnis
Schuljahr –, 1. Halbjahr
–
Klasse 2a
Versäumte Unterrichtstage: –, davon unentschuldigt: –
Arbeitsverhalten
–
Sozialverhalten
–
Interessen und Fertigkeiten
–
Sprechen und Zuhören
–
Lesen und mit Texten umgehen
–
Schreiben, Texte verfassen
–
Zahlen und Operationen
–
Größen und Messen
–
Raum und Form
–
Bemerkungen
–
Konferenz vom –
–, den –
Klassenlehrkraft
Gesehen:
Erziehungsberechtigte/r
(Siegel)
Schulleitung
)");
}

TEST(SchoolReport, ShowsTheEightAreasOfYearsOneAndTwo) {
    ReportInstallation installation;
    installation.write(
        {{Zoe, u"AV.", u"SV.", {u"t0", u"t1", u"t2", u"t3", u"t4", u"t5", u"t6", u"t7"}}}, u"2b");
    const std::string text = shown(documentOf(installation).sections.at(0));
    const size_t first = text.find("Interessen und");
    EXPECT_EQ(text.substr(first, text.find("Konferenz") - first), R"(Interessen und Fertigkeiten
t0
Sprechen und Zuhören
t1
Lesen und mit Texten umgehen
t2
Schreiben, Texte verfassen
t3
Zahlen und Operationen
t4
Größen und Messen
t5
Raum und Form
t6
Bemerkungen
t7
)");
}

TEST(SchoolReport, HasTheNameThatTheStartPageOpens) {
    struct Case {
        Text Klasse;
        Text Halbjahr;
        Text Stamm;
    };
    for (const Case& one :
         {Case{u"3a", u"2", u"3aZeugnisse32"}, Case{u"2b", u"1", u"2bZeugnisse21"},
          Case{u"1a", u"1", u"1aZeugnisse12"}}) {
        ReportInstallation installation;
        installation.Schule.Halbjahr = one.Halbjahr;
        installation.write({{Zoe, u"", u""}}, one.Klasse);
        Arbeitsverzeichnis verzeichnis(installation.path());
        const Stammdaten stamm = StammdatenLesen(verzeichnis);
        EXPECT_EQ(utf8FromText(Klassenstamm(stamm, u"Zeugnisse")), utf8FromText(one.Stamm));
        EXPECT_EQ(
            word::Klassendokument(stamm.Liste.Klasse, u"Zeugnisse", stamm.Jahrgang, stamm.Halbjahr),
            u"Winword.exe " + one.Stamm + u".doc");
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
