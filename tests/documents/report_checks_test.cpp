#include "checks/hunspell_spelling.h"
#include "documents/content/class_summary.h"
#include "documents/content/report_checks.h"
#include "documents/content/report_marks.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

constexpr const char* Lang = "Der Text ist lang genug, dass ihn zwei Kinder nicht zufällig haben.";

Text vonUtf8(const std::string& text) { return textFromUtf8(text); }

// Anna Sophie, Ben, Anna and another Ben of class 3a, with a text in every section and all that
// belongs into the list; Sport is not taught.
Zeugnisdaten tadellos() {
    Zeugnisdaten daten;
    daten.Stamm.Jahrgang = 3;
    daten.Stamm.Liste.Klasse = u"3a";
    daten.AVSV.resize(AbschnitteAVSV);
    daten.Bereiche.resize(Abschnitte34);
    daten.Liste.emplace();
    const char* namen[] = {"Anna Sophie", "Ben", "Anna", "Ben"};
    for (int platz = 0; platz < 4; ++platz) {
        daten.Stamm.Liste.Kinder[platz].Vorname = vonUtf8(namen[platz]);
        daten.Stamm.Liste.Kinder[platz].Nachname = u"Nr" + textFromNumber(platz + 1);
        daten.Stamm.Liste.Kinder[platz].Geschlecht = platz % 2 == 0 ? u"w" : u"m";
        daten.Stamm.Liste.Kinder[platz].Geburtsdatum = u"01.02.2018";
        daten.Stamm.Liste.Kinder[platz].Geburtsort = u"Köln";
        const Text text = vonUtf8(namen[platz]) + u" liest. Gut.";
        daten.AVSV[0][platz] = text;
        daten.AVSV[1][platz] = text;
        for (Schuelertabelle<Text>& bereich : daten.Bereiche)
            bereich[platz] = text;
        daten.Liste->Eintraege[platz].Werte.fill(1);
        daten.Liste->Eintraege[platz].Werte.back() = LeereZelle;
    }
    daten.Stamm.Liste.Schuelerzahl = 4;
    daten.Stamm.Halbjahr = u"1";
    daten.Stamm.Schule = test::ReportInstallation().Schule;
    return daten;
}

std::string befunde(const Zeugnisdaten& daten) {
    std::string zeilen;
    for (const Befund& befund :
         ZeugnissePruefen(daten, {.Platzhalter = {u"<Vorname>", u"<sie/er>"}}))
        zeilen += std::to_string(befund.Platz) + " " + utf8FromText(befund.Satz) + "\n";
    return zeilen;
}

TEST(ReportChecks, FindsWhatIsWrongInATextAndNothingElse) {
    const struct {
        std::string Text;
        std::string Befund;
    } faelle[] = {
        {"Ben liest Anna-Lenas Buch ... und <b>.", ""},
        {"Bens Buch. Das Benzin, Annas Heft, HAnna.", ""},
        {"", "Ohne Text: „Sozialverhalten“."},
        {"\r\n ", "Ohne Text: „Sozialverhalten“."},
        {"<Vorname> liest, <sie/er> lacht.", "Sozialverhalten: Platzhalter stehen noch im Text: "
                                             "<Vorname> und <sie/er>."},
        {"Ben ?????", "Sozialverhalten: Hier fehlt noch etwas, im Text steht „?????“."},
        {"Mit Anna, Anna.", "Sozialverhalten: Im Text steht der Name eines anderen Kindes: Anna."},
        {"(Anna Sophie.)", "Sozialverhalten: Im Text steht der Name eines anderen Kindes: "
                           "Anna Sophie und Anna."},
        {"Gut..", "Sozialverhalten: doppelter Punkt."},
        {"Sehr  gut.", "Sozialverhalten: doppeltes Leerzeichen."},
        {"Gut.. Sehr  gut.", "Sozialverhalten: doppelter Punkt und doppeltes Leerzeichen."},
    };
    for (const auto& fall : faelle) {
        Zeugnisdaten daten = tadellos();
        daten.AVSV[1][1] = vonUtf8(fall.Text);
        EXPECT_EQ(befunde(daten), fall.Befund.empty() ? "" : "1 " + fall.Befund + "\n");
    }
}

TEST(ReportChecks, TellsOfBrokenSentencesWrongPronounsAndWhatIsMissing) {
    Zeugnisdaten daten = tadellos();
    daten.Stamm.Halbjahr = u"2";
    daten.Stamm.Schule.Konferenzdatum = u" ";
    daten.Stamm.Liste.Kinder[1].Geburtsort.clear();
    daten.Stamm.Liste.Kinder[1].Geschlecht.clear();
    for (const int platz : {0, 1, 2, 3})
        daten.Bereiche[2][platz] += u" Das Kind rückt auf.";
    daten.AVSV[0][0] = u"Anna Sophie liest. gene Texte schreibt er";
    daten.AVSV[1][2] = u"Das Sozialverhalten entspricht den Erwartungen mit Einschränkungen.";
    daten.Bereiche[2][3] = u"Ben liest.";
    EXPECT_EQ(befunde(daten),
              "-1 In den Angaben zur Schule fehlt: Datum der Konferenz.\n"
              "0 Arbeitsverhalten: Ein Satz beginnt klein: „gene Texte schreibt er“.\n"
              "0 Arbeitsverhalten: Der Punkt oder der Rest des Satzes fehlt hinter „er“.\n"
              "0 Arbeitsverhalten: Dieses Fürwort passt nicht zum Kind: „er“.\n"
              "1 In den Stammdaten fehlt: Geburtsort und Geschlecht.\n"
              "2 Sozialverhalten: Die Gesamtbewertung ist eingeschränkt, aber kein Satz sagt, "
              "warum.\n"
              "3 Bemerkungen: Es steht kein Satz zur Versetzung da.\n");
}

TEST(ReportChecks, WhatWasSeenStaysSeenUntilTheTextIsAnotherAndWordsAreLearnt) {
    test::ReportInstallation installation;
    Schueler kind = test::schueler(u"Mats", u"Ahlers", u"01.02.2018", u"Köln");
    kind.Geschlecht = u"m";
    const auto open = [&](const Text& text) {
        installation.write({{kind, text, u"Mats hilft.", {u"Ja.", u"Ja.", u"Mats rückt auf."}}});
        Arbeitsverzeichnis verzeichnis(installation.path());
        std::vector<Befund> found = OffeneBefunde(verzeichnis);
        std::erase_if(found, [](const Befund& one) { return one.Art != Befundart::Text; });
        return found;
    };
    const Arbeitsverzeichnis verzeichnis(installation.path());
    const std::vector<Befund> found = open(u"Mats lacht. kurz");
    ASSERT_EQ(found.size(), 2U);
    AlsGesehenMerken(verzeichnis, found[0]);
    AlsGesehenMerken(verzeichnis, found[1]);
    EXPECT_EQ(open(u"Mats lacht. kurz").size(), 0U);
    EXPECT_EQ(open(u"Mats lacht gern. kurz").size(), 2U);
    if (!DeutscheRechtschreibung())
        GTEST_SKIP() << "no German dictionary";
    const std::vector<Befund> words = open(u"Mats flitzbogelt.");
    ASSERT_EQ(words.size(), 1U);
    EXPECT_EQ(words[0].Woerter, std::vector<Text>{u"flitzbogelt"});
    WoerterLernen(verzeichnis, words[0].Woerter);
    EXPECT_EQ(open(u"Mats flitzbogelt gern.").size(), 0U);
}

TEST(ReportChecks, AChildsOwnNameIsNoneOfAnother) {
    Zeugnisdaten daten = tadellos();
    daten.AVSV[0][0] = u"Anna Sophie liest. Anna Sophies Heft ist ordentlich.";
    EXPECT_EQ(befunde(daten), "");
    daten.AVSV[0][0] = u"Anna liest.";
    EXPECT_EQ(befunde(daten),
              "0 Arbeitsverhalten: Im Text steht der Name eines anderen Kindes: Anna.\n");
}

TEST(ReportChecks, TellsOfTheSameTextOnlyIfItIsLong) {
    Zeugnisdaten daten = tadellos();
    for (const int platz : {0, 1, 2, 3})
        daten.Bereiche[2][platz] = vonUtf8(Lang).substr(0, 59) + u".";
    EXPECT_EQ(befunde(daten), "");
    for (const int platz : {0, 2})
        daten.Bereiche[2][platz] = vonUtf8(Lang);
    EXPECT_EQ(befunde(daten), "0 Bemerkungen: derselbe Text wie bei Anna Nr3.\n"
                              "2 Bemerkungen: derselbe Text wie bei Anna Sophie Nr1.\n");
}

TEST(ReportChecks, TellsOnceWhatIsMissingInTheList) {
    Zeugnisdaten daten = tadellos();
    daten.Liste->Eintraege[0] = Eintrag();
    daten.Liste->Eintraege[1].Werte[SpalteUnentschuldigt] = LeereZelle;
    daten.Liste->Eintraege[2].Werte[ErstesFach] = LeereZelle;
    daten.Liste->Eintraege[2].Werte[ErstesFach + 1] = LeereZelle;
    daten.Liste->OhneKind = {u"Max Weg"};
    EXPECT_EQ(befunde(daten),
              "-1 In der Zeugnisliste stehen Einträge, zu denen es kein Kind gibt: Max Weg.\n"
              "0 Noch keine Versäumnisse eingetragen.\n"
              "0 Noch keine Noten eingetragen.\n"
              "1 Versäumnisse: Es ist nicht eingetragen, wie viele Tage unentschuldigt sind.\n"
              "2 Es fehlt die Note in Deutsch und Mathematik.\n");
    daten.Liste.reset();
    EXPECT_EQ(befunde(daten), "-1 Die Zeugnisliste dieser Klasse ist noch nicht angelegt. In allen "
                              "Zeugnissen stehen bei Versäumnissen und Noten Striche.\n");
}

TEST(ReportChecks, TellsTheClassInOneLine) {
    Zeugnisdaten daten = tadellos();
    const auto line = [&](bool mitHinweisen) {
        const Klassenbild bild = KlassenbildVon(daten, ZeugnissePruefen(daten, {}), mitHinweisen);
        const Klassensatz satz = KlassensatzVon(bild);
        return utf8FromText(satz.Kinder + u" · " + satz.Texte + u" · " + satz.Hinweise + u" · " +
                            satz.Noten);
    };
    EXPECT_EQ(line(true),
              "4 Kinder · Alle Texte vollständig · Kein Hinweis · Alle Noten eingetragen");
    daten.AVSV[1][1].clear();
    daten.Bereiche[2][3] = u" ";
    daten.Bereiche[0][2] = u"Anna liest..";
    daten.Liste->Eintraege[0] = Eintrag();
    EXPECT_EQ(line(true),
              "4 Kinder · Texte vollständig bei 2 · 1 Hinweis · Noten fehlen bei einem");
    const Klassenbild bild = KlassenbildVon(daten, ZeugnissePruefen(daten, {}), true);
    EXPECT_EQ(bild.OhneText, (Fundort{1, true, 1}));
    EXPECT_EQ(bild.ErsterHinweis, (Fundort{2, false, 0}));
    daten.AVSV[0][2].clear();
    daten.Liste.reset();
    EXPECT_EQ(line(false), "4 Kinder · Texte vollständig bei einem ·  · ");
    daten.Stamm.Liste.Schuelerzahl = 1;
    daten.AVSV[0][0].clear();
    EXPECT_EQ(line(true), "1 Kind · Texte noch bei keinem vollständig · Kein Hinweis · ");
    daten.Stamm.Liste.Kinder[0] = {};
    EXPECT_EQ(KlassensatzVon(KlassenbildVon(daten, {}, true)).Kinder, u"Noch keine Kinder");
}

} // namespace
} // namespace zeugnis::dokumente
