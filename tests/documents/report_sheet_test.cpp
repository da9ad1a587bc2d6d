#include "documents/sheet/report_sheet.h"
#include "tests/documents/report_installation.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

const Schueler Zoe = test::schueler(u"Zoé", u"Weiß");

OffeneTexte offene(const Speicherdatei& speicher) {
    return {.Anstelle = &speicher, .Texte = Abschnittstexte(static_cast<size_t>(speicher.Texte))};
}

Text zeilen(int anzahl) {
    Text text;
    for (int i = 1; i <= anzahl; ++i)
        text += (i > 1 ? u"\nZeile " : u"Zeile ") + textFromNumber(i);
    return text;
}

class ReportSheet : public testing::Test {
  protected:
    ReportSheet() {
        installation.write({{Zoe, u"AV im Speicher.", u"SV.", {u"F.", u"I.", u"B."}}});
    }
    test::ReportInstallation installation;
    Arbeitsverzeichnis verzeichnis{installation.path()};
};

TEST_F(ReportSheet, ShowsWhatAScreenHoldsAndDoesNotReadItsStore) {
    installation.write(u"Daten/AVSVspeicher.txt", u"unlesbar");
    Zeugnisblatt blatt(verzeichnis, offene(speicherdateien::AVSVTexte));
    blatt.setzen(Zoe, 0, {u"Noch nicht gespeichert.", u""});
    EXPECT_EQ(blatt.Passung(), u"Passt auf 2 Seiten");
    std::vector<int> abschnitte;
    for (const Zeugnisblatt::Stelle& stelle : blatt.Stellen())
        abschnitte.push_back(stelle.Abschnitt);
    EXPECT_EQ(abschnitte, (std::vector{-1, -1, 0, 1, -1})) << "only these two can be gone to";
    const int kurz = blatt.Stellen()[2].Flaeche.height();
    blatt.setzen(Zoe, 0, {zeilen(4), u""});
    EXPECT_EQ(blatt.Stellen()[2].Flaeche.height(), kurz + 3 * 300);

    EXPECT_EQ(test::failureOf([&] { blatt.setzen(Zoe, 1, {}); }), "invalid-call");
    EXPECT_NE(test::failureOf([&] { Zeugnisblatt(verzeichnis, offene(speicherdateien::Texte34)); }),
              "none")
        << "the other store is read";
}

TEST_F(ReportSheet, TellsExactlyHowManyLinesAreTooMany) {
    Zeugnisblatt blatt(verzeichnis, offene(speicherdateien::Texte34));
    const auto passung = [&](int anzahl) {
        blatt.setzen(Zoe, 0, {u"F.", zeilen(anzahl), u"B."});
        return utf8FromText(blatt.Passung());
    };
    int voll = 1;
    while (!blatt.ZuLang())
        passung(++voll);
    EXPECT_EQ(passung(voll - 1), "Passt auf 2 Seiten");
    EXPECT_EQ(passung(voll), "1 Zeile zu viel für 2 Seiten");
    EXPECT_EQ(passung(voll + 11), "12 Zeilen zu viel für 2 Seiten");
    EXPECT_GT(blatt.Seiten(), 2);
}

} // namespace
} // namespace zeugnis::dokumente
