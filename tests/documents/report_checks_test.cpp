#include "documents/content/report_checks.h"
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
        const Text text = vonUtf8(namen[platz]) + u" liest. Gut.";
        daten.AVSV[0][platz] = text;
        daten.AVSV[1][platz] = text;
        for (Schuelertabelle<Text>& bereich : daten.Bereiche)
            bereich[platz] = text;
        daten.Liste->Eintraege[platz].Werte.fill(1);
        daten.Liste->Eintraege[platz].Werte.back() = LeereZelle;
    }
    daten.Stamm.Liste.Schuelerzahl = 4;
    return daten;
}

std::string befunde(const Zeugnisdaten& daten) {
    std::string zeilen;
    for (const Befund& befund : ZeugnissePruefen(daten, {u"<Vorname>", u"<sie/er>"}))
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
        {"(Anna Sophie)", "Sozialverhalten: Im Text steht der Name eines anderen Kindes: "
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
        daten.Bereiche[2][platz] = vonUtf8(Lang).substr(0, 60);
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

} // namespace
} // namespace zeugnis::dokumente
