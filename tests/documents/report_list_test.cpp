#include "documents/content/report_list_edit.h"
#include "documents/content/report_list_store.h"
#include "tests/documents/report_installation.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

using test::schueler;

constexpr TextView Datei = u"3aZeugnisliste32.txt";
const Text Heute = u"01.07.2027";

class ReportList : public testing::Test {
  protected:
    ReportList() { kinder({schueler(u"Zoé", u"Öz"), schueler(u"Ben", u"Alt")}); }

    void kinder(const std::vector<Schueler>& namen, const Text& klasse = u"3a") {
        std::vector<test::Zeugniskind> alle;
        alle.reserve(namen.size());
        for (const Schueler& name : namen)
            alle.push_back({.Kind = name, .AV = {}, .SV = {}});
        installation.write(alle, klasse);
    }

    // Puts a value into a column of a child's row and writes the list.
    void eintragen(int platz, int spalte, int wert) {
        Listenstand stand = ZeugnislisteOeffnen(verzeichnis, Heute);
        Schuelertabelle<Eintrag> eintraege = stand.Liste.Eintraege;
        eintraege[platz].Werte.at(static_cast<size_t>(spalte)) = wert;
        ListenstandSchreiben(verzeichnis, stand, eintraege);
    }

    Text letzteKopie() { return LetzteKopie(verzeichnis, StammdatenLesen(verzeichnis)); }

    Listenstand oeffnen() { return ZeugnislisteOeffnen(verzeichnis, Heute); }

    test::ReportInstallation installation;
    Arbeitsverzeichnis verzeichnis{installation.path()};
};

TEST_F(ReportList, ComesBackAsItWasWritten) {
    eintragen(0, SpalteTage, 12);
    eintragen(0, SpalteUnentschuldigt, 0);
    eintragen(1, Spaltenzahl - 1, 6);
    const Text bytes = u"1,\"3a\",\"Öz\",\"Zoé\",12,0,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1\r\n"
                       u"2,\"3a\",\"Alt\",\"Ben\",-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,6\r\n";
    EXPECT_EQ(utf8FromText(installation.read(Datei)), utf8FromText(bytes));
    const Listenstand stand = oeffnen();
    EXPECT_EQ(stand.Liste.Eintraege[0].Werte[SpalteTage], 12);
    EXPECT_EQ(stand.Liste.Eintraege[1].Werte[Spaltenzahl - 1], 6);
    EXPECT_TRUE(stand.Hinweis.empty());

    kinder({schueler(u"Zoé", u"Öz")}, u"1a");
    eintragen(0, SpalteTage, 3);
    EXPECT_EQ(installation.read(u"1aZeugnisliste12.txt"), u"1,\"1a\",\"Öz\",\"Zoé\",3,-1\r\n");
}

TEST_F(ReportList, DamageIsNamedAndPutAsideAndNeverTaken) {
    const struct {
        Text Zeilen;
        const char* Fehler;
    } faelle[] = {
        {u"1,\"3a\",\"Öz\",\"Zoé\",12,0,1,2,3,4,5,6,7,1,1,1", "type-mismatch"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",12,0,0,2,3,4,5,6,1,1,1,1", "type-mismatch"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",201,0,1,1,1,1,1,1,1,1,1,1", "type-mismatch"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",1,2,1,1,1,1,1,1,1,1,1,1", "type-mismatch"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",-1,0,1,1,1,1,1,1,1,1,1,1", "type-mismatch"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",gut,0,1,1,1,1,1,1,1,1,1,1", "type-mismatch"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",99999,0,1,1,1,1,1,1,1,1,1,1", "overflow"},
        {u"1,\"3a\",\"Öz\",\"Zoé\",12,0,1,1,1", "end-of-file"},
        {u"1,\"3a\",\"Öz", "end-of-file"},
    };
    const Text kopie = u"3aZeugnisliste32 vom 01.07.2027.txt";
    for (const auto& fall : faelle) {
        installation.write(Datei, fall.Zeilen);
        EXPECT_EQ(test::failureOf([&] { ListenzeilenLesen(verzeichnis, Datei, 3); }), fall.Fehler)
            << utf8FromText(fall.Zeilen);
        const Listenstand stand = oeffnen();
        EXPECT_TRUE(stand.Liste.istLeer());
        EXPECT_NE(stand.Hinweis.find(u"beschädigt"), Text::npos);
        EXPECT_EQ(installation.read(kopie), fall.Zeilen);
        installation.remove(kopie);
    }
}

TEST_F(ReportList, ASubjectThatWasAddedLaterIsNotEntered) {
    installation.write(Datei, u"1,\"3a\",\"Öz, sen.\",\"Zoé\",12,0,1,2,3,4,5,6,-1,1,1\r\n"
                              u"2,\"3a\",\"Alt\",\"Ben\",1,0,1,2,3,4,5,6,-1,1,2\r\n");
    const std::vector<Listenzeile> zeilen = ListenzeilenLesen(verzeichnis, Datei, 3);
    ASSERT_EQ(zeilen.size(), 2U);
    EXPECT_EQ(zeilen[1].Werte.Werte.at(Spaltenzahl - 2), 2);
    EXPECT_EQ(zeilen[1].Werte.Werte.at(Spaltenzahl - 1), LeereZelle);
}

TEST_F(ReportList, GivesNoChildTheEntriesOfAnother) {
    const Schueler zoe = schueler(u"Zoé", u"Öz");
    const Schueler ben = schueler(u"Ben", u"Alt");
    const Schueler neu = schueler(u"Neu", u"Dazu");
    const struct {
        std::vector<Schueler> Vorher;
        std::vector<Schueler> Nachher;
        std::vector<int> Tage; // of the children afterwards; before, they are 1, 2 and so on
        size_t OhneKind;
    } faelle[] = {
        {{zoe, ben}, {ben, zoe}, {2, 1}, 0},
        {{zoe, ben}, {neu, zoe, ben}, {LeereZelle, 1, 2}, 0},
        {{zoe, ben}, {neu, ben}, {LeereZelle, 2}, 1},
        {{zoe, ben}, {schueler(u"Zoë", u"Öz"), ben}, {LeereZelle, 2}, 1},
        {{zoe, zoe, ben}, {zoe, zoe, ben}, {1, 2, 3}, 0},
        // Which of the two has gone cannot be known.
        {{zoe, zoe, ben}, {zoe, ben}, {LeereZelle, 3}, 2},
        {{zoe, ben}, {zoe, zoe, ben}, {LeereZelle, LeereZelle, 2}, 1},
    };
    for (const auto& fall : faelle) {
        std::vector<Listenzeile> zeilen;
        for (const Schueler& kind : fall.Vorher) {
            const int nummer = static_cast<int>(zeilen.size()) + 1;
            zeilen.push_back({nummer, kind.Nachname, kind.Vorname, {}});
            zeilen.back().Werte.Werte[SpalteTage] = nummer;
        }
        Namensliste liste;
        for (const Schueler& kind : fall.Nachher)
            liste.Kinder[liste.Schuelerzahl++] = kind;
        const Zeugnisliste zugeordnet = Zuordnen(zeilen, liste);
        for (size_t i = 0; i < fall.Tage.size(); ++i)
            EXPECT_EQ(zugeordnet.Eintraege[static_cast<int>(i)].Werte[SpalteTage], fall.Tage[i])
                << &fall - faelle << ": " << i;
        EXPECT_EQ(zugeordnet.OhneKind.size(), fall.OhneKind) << &fall - faelle;
    }
}

TEST_F(ReportList, KeepsWhatBelongsToNoChildAnyMore) {
    eintragen(0, SpalteTage, 12);
    const Text vorher = installation.read(Datei);
    kinder({schueler(u"Ben", u"Alt")});
    const Listenstand stand = oeffnen();
    EXPECT_NE(stand.Hinweis.find(u"Zoé Öz"), Text::npos) << utf8FromText(stand.Hinweis);
    EXPECT_EQ(installation.read(u"3aZeugnisliste32 vom 01.07.2027.txt"), vorher);
    EXPECT_TRUE(oeffnen().Hinweis.empty());
}

TEST_F(ReportList, BeginsAnewWithACopyOfWhatWasEntered) {
    ZeugnislisteNeuBeginnen(verzeichnis, Heute);
    EXPECT_EQ(letzteKopie(), u"");
    const Text kopien[] = {u"3aZeugnisliste32 vom 01.07.2027.txt",
                           u"3aZeugnisliste32 vom 01.07.2027-2.txt"};
    for (int i = 0; i < 2; ++i) {
        eintragen(1, SpalteTage, 7 + i);
        EXPECT_TRUE(ZeugnislisteNeuBeginnen(verzeichnis, Heute).Liste.istLeer());
        EXPECT_EQ(letzteKopie(), kopien[i]);
        EXPECT_TRUE(oeffnen().Liste.istLeer());
    }
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(ListenzeilenLesen(verzeichnis, kopien[i], 3).at(1).Werte.Werte[SpalteTage],
                  7 + i);
    // Neither an older nor an empty nor a damaged one is offered.
    const Text alt = installation.read(kopien[0]);
    installation.write(u"3aZeugnisliste32 vom 31.12.2026-9.txt", alt);
    installation.write(u"3aZeugnisliste32 vom 02.07.2027.txt", u"");
    installation.write(u"3aZeugnisliste32 vom 03.07.2027.txt", alt.substr(0, 20));
    EXPECT_EQ(letzteKopie(), kopien[1]);
}

TEST_F(ReportList, TakesAChangeAsAWholeOrNotAtAll) {
    const Stammdaten stamm = StammdatenLesen(verzeichnis);
    Schuelertabelle<Eintrag> eintraege;
    eintraege[1].Werte[SpalteTage] = 5;
    eintraege[1].Werte[SpalteUnentschuldigt] = 2;
    const Zelltext ecke{.Platz = 0, .Spalte = 0, .Inhalt = {}};
    const struct {
        std::vector<Zelltext> Zellen;
        const char* Ergebnis; // the cells that change, or "!" and some words of the refusal
    } faelle[] = {
        {{{0, 2, u" 3 "}}, "0/2=3 "},
        {{{1, 0, u"5"}}, ""},
        {{{1, 1, u""}}, "1/1=-1 "},
        {{{1, 1, u"–"}}, "1/1=-1 "},
        {{{0, 2, u"7"}}, "!Zoé Öz – Deutsch: „7“"},
        {{{0, 2, u"2+"}}, "!„2+“"},
        {{{0, 2, u"0"}}, "!1 bis 6"},
        {{{0, 0, u"201"}}, "!0 bis 200"},
        {{{0, 0, u"99999999999"}}, "!ganze Tage"},
        {{{0, 1, u"0"}}, "!auch versäumte Tage"},
        {{{1, 1, u"6"}}, "!nicht mehr Tage"},
        {{{1, 0, u""}}, "!Ben Alt"},
        {{{1, 0, u""}, {1, 1, u""}}, "1/0=-1 1/1=-1 "},
        {{{0, 2, u"1"}, {0, 3, u"x"}}, "!Mathematik"},
        {ZellenAusText(u"4\t1\r\n6\t3\r\n", ecke, 1, 1), "0/0=4 0/1=1 1/0=6 1/1=3 "},
        {ZellenAusText(u"9", ecke, 2, 1), "0/0=9 1/0=9 "},
        {ZellenAusText(u"1\n1\n1\n", ecke, 1, 1), "!größer als der Platz"},
    };
    for (const auto& fall : faelle) {
        const auto aenderung = AenderungBilden(stamm, eintraege, fall.Zellen);
        if (const auto* nein = std::get_if<Ablehnung>(&aenderung)) {
            const std::string satz = "!" + utf8FromText(nein->Satz);
            EXPECT_EQ(fall.Ergebnis[0], '!') << satz;
            EXPECT_NE(satz.find(fall.Ergebnis + 1), std::string::npos) << satz;
            continue;
        }
        std::string zellen;
        for (const Zellwert& wert : std::get<std::vector<Zellwert>>(aenderung))
            zellen += std::to_string(wert.Platz) + "/" + std::to_string(wert.Spalte) + "=" +
                      std::to_string(wert.Wert) + " ";
        EXPECT_EQ(zellen, fall.Ergebnis);
    }
}

} // namespace
} // namespace zeugnis::dokumente
