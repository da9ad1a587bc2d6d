#include "documents/content/report_list_document.h"

#include "documents/content/list_frame.h"
#include "documents/content/wording.h"

namespace zeugnis::dokumente {
namespace {

// In relation to each other, so that two figures fit into the narrowest column.
constexpr int BreiteNummer = 42;
constexpr int BreiteName = 256;
constexpr int BreiteSpalte = 52;
constexpr int BreiteSpalteAllein = 120; // where there are only two

Row kopfzeile(std::span<const Spalte> spalten) {
    Row zeile = {Zelle(StyleId::Notenkopf, u"Nr."), Zelle(StyleId::Notenkopf, u"Name")};
    for (const Spalte& spalte : spalten)
        zeile.push_back(Zelle(StyleId::Notenkopf, Text(spalte.Kuerzel)));
    return zeile;
}

Row kindzeile(const Stammdaten& daten, int platz, const Eintrag& eintrag) {
    const Schueler& kind = daten.Liste.Kinder[platz];
    const Text name = verbunden(printable(kind.Nachname), u", ", printable(kind.Vorname));
    Row zeile = {Zelle(StyleId::Notenwert, textFromNumber(platz + 1)),
                 Zelle(StyleId::Notenname, oderStrich(name))};
    for (size_t i = 0; i < SpaltenFuer(daten.Jahrgang).size(); ++i)
        zeile.push_back(Zelle(StyleId::Notenwert, Zellentext(eintrag.Werte.at(i))));
    return zeile;
}

Text erklaerung(std::span<const Spalte> spalten) {
    Text text;
    for (const Spalte& spalte : spalten)
        text += (text.empty() ? u"" : u", ") + Text(spalte.Kuerzel) + u" = " + Text(spalte.Name);
    return text;
}

} // namespace

Document ZeugnislisteBilden(const Stammdaten& daten, const Schuelertabelle<Eintrag>& eintraege) {
    const std::span<const Spalte> spalten = SpaltenFuer(daten.Jahrgang);
    const Text titel = Klassentitel(Listenname(daten.Jahrgang), daten.Liste.Klasse);
    Table tabelle{
        .columns = {BreiteNummer, BreiteName}, .rows = {kopfzeile(spalten)}, .grid = true};
    tabelle.columns.insert(tabelle.columns.end(), spalten.size(),
                           HatNoten(daten.Jahrgang) ? BreiteSpalte : BreiteSpalteAllein);
    for (int platz = 0; platz < daten.Liste.Schuelerzahl; ++platz)
        tabelle.rows.push_back(kindzeile(daten, platz, eintraege[platz]));

    std::vector<Block> bloecke = Listenkopf(daten, titel);
    bloecke.emplace_back(std::move(tabelle));
    bloecke.emplace_back(paragraph(StyleId::Notenschluessel, erklaerung(spalten)));
    Document dokument = Einzelliste(titel, std::move(bloecke));
    dokument.title = titel + u", " + Zeitraum(daten);
    return dokument;
}

} // namespace zeugnis::dokumente
