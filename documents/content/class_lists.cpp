#include "documents/content/class_lists.h"

#include "documents/content/list_frame.h"
#include "documents/content/report_frame.h"
#include "documents/content/wording.h"

#include <array>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Zeilenhoehe = 322; // 36 rows and the head fill a page
constexpr Twips Nummernbreite = 440;

struct Listenspalte {
    TextView Ueberschrift;
    Twips Breite;
    Text Schueler::*Feld;
};
constexpr std::array<Listenspalte, 4> Spalten = {{
    {u"Nachname", 2200, &Schueler::Nachname},
    {u"Vorname", 1900, &Schueler::Vorname},
    {u"Geburtsdatum", 1310, &Schueler::Geburtsdatum},
    {u"Geburtsort", 1500, &Schueler::Geburtsort},
}};
constexpr int Haken = 6;

// As wide as high.
constexpr int Kaestchen = 16;
constexpr Twips Namensbreite = page::TextWidth - Nummernbreite - Kaestchen * Zeilenhoehe;

Table liste(std::vector<int> spalten) {
    return {.columns = std::move(spalten),
            .rows = {},
            .grid = true,
            .headRow = true,
            .rowHeight = Zeilenhoehe};
}

void mitLeerenSpalten(std::vector<int>& breiten, int anzahl) {
    Twips rest = page::TextWidth;
    for (const int breite : breiten)
        rest -= breite;
    breiten.insert(breiten.end(), static_cast<size_t>(anzahl), rest / anzahl);
}

Row nummeriert(const Text& nummer, const std::vector<Text>& texte, StyleId stil, size_t spalten) {
    Row zeile = {Zelle(stil == StyleId::Listenkopf ? stil : StyleId::Listenzahl, nummer)};
    for (const Text& text : texte)
        zeile.push_back(Zelle(stil, text));
    zeile.resize(spalten);
    return zeile;
}

// `texte` gives what stands in the columns behind the number.
template <typename Texte>
void zeilenAnfuegen(Table& tabelle, const Namensliste& klasse, const std::vector<Text>& kopf,
                    Texte texte) {
    const size_t spalten = tabelle.columns.size();
    tabelle.rows.push_back(nummeriert(u"Nr.", kopf, StyleId::Listenkopf, spalten));
    for (int platz = 0; platz < klasse.Schuelerzahl; ++platz)
        tabelle.rows.push_back(nummeriert(textFromNumber(platz + 1), texte(klasse.Kinder[platz]),
                                          StyleId::Listenzeile, spalten));
}

Document alsListe(const Stammdaten& stamm, TextView art, Table tabelle) {
    const Text titel = Klassentitel(art, stamm.Liste.Klasse);
    std::vector<Block> bloecke = Listenkopf(stamm, titel);
    bloecke.emplace_back(std::move(tabelle));
    return Einzelliste(titel, std::move(bloecke));
}

Table blattlinien() {
    Table linien = Schreiblinien(1);
    linien.fillsPage = true;
    return linien;
}

} // namespace

Document KlassenlisteBilden(const Stammdaten& stamm) {
    std::vector<int> breiten = {Nummernbreite};
    std::vector<Text> kopf;
    for (const Listenspalte& spalte : Spalten) {
        breiten.push_back(spalte.Breite);
        kopf.emplace_back(spalte.Ueberschrift);
    }
    mitLeerenSpalten(breiten, Haken);
    Table tabelle = liste(std::move(breiten));
    zeilenAnfuegen(tabelle, stamm.Liste, kopf, [](const Schueler& kind) {
        std::vector<Text> texte;
        texte.reserve(Spalten.size());
        for (const Listenspalte& spalte : Spalten)
            texte.push_back(printable(kind.*spalte.Feld));
        return texte;
    });
    return alsListe(stamm, u"Klassenliste", std::move(tabelle));
}

Document StrichlisteBilden(const Stammdaten& stamm) {
    std::vector<int> breiten = {Nummernbreite, Namensbreite};
    mitLeerenSpalten(breiten, Kaestchen);
    Table tabelle = liste(std::move(breiten));
    zeilenAnfuegen(tabelle, stamm.Liste, {u"Name"}, [](const Schueler& kind) {
        return std::vector{verbunden(printable(kind.Nachname), u", ", printable(kind.Vorname))};
    });
    return alsListe(stamm, u"Strichliste", std::move(tabelle));
}

Document ZeugnisanlagenBilden(const Stammdaten& stamm) {
    const Text& klasse = stamm.Liste.Klasse;
    Document dokument{.title = Klassentitel(u"Zeugnisanlagen", klasse), .sections = {}};
    for (int platz = 0; platz < stamm.Liste.Schuelerzahl; ++platz) {
        const Schueler& kind = stamm.Liste.Kinder[platz];
        Section blatt{.footer = Kindname(kind) + u", Klasse " + klasse,
                      .blocks = Zeugniskopf(stamm, kind, u"Anlage zum Zeugnis")};
        blatt.blocks.emplace_back(blattlinien());
        blatt.blocks.emplace_back(paragraph(StyleId::Schlussangabe, u""));
        blatt.blocks.emplace_back(paragraph(StyleId::Schlussangabe, OrtUndDatum(stamm.Schule)));
        blatt.blocks.emplace_back(Table{.columns = {9, 4, 9}, .rows = {Unterschriften(stamm, {})}});
        dokument.sections.push_back(std::move(blatt));
    }
    return dokument;
}

} // namespace zeugnis::dokumente
