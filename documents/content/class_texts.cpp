#include "documents/content/class_texts.h"

namespace zeugnis::dokumente {
namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

std::string zeileAus(const std::vector<Text>& felder) {
    std::string zeile;
    for (const Text& feld : felder) {
        zeile += zeile.empty() ? "\"" : ";\"";
        for (const char zeichen : utf8FromText(feld))
            zeile += zeichen == '"' ? std::string("\"\"") : std::string(1, zeichen);
        zeile += '"';
    }
    return zeile + "\r\n";
}

} // namespace

std::string KlassentexteAlsCsv(const Zeugnisdaten& daten) {
    const Stammdaten& stamm = daten.Stamm;
    const std::span<const Spalte> spalten = SpaltenFuer(stamm.Jahrgang);
    std::vector<Text> kopf = {u"Nr.", u"Klasse", u"Nachname", u"Vorname"};
    for (const Spalte& spalte : spalten)
        kopf.emplace_back(spalte.Name);
    for (const Abschnittstext& abschnitt : AbschnitteVon(daten, 0))
        kopf.emplace_back(abschnitt.Ueberschrift);
    std::string csv = std::string(Utf8Mark) + zeileAus(kopf);
    for (int platz = 0; platz < stamm.Liste.Schuelerzahl; ++platz) {
        const Schueler& kind = stamm.Liste.Kinder[platz];
        std::vector<Text> felder = {textFromNumber(platz + 1), stamm.Liste.Klasse,
                                    printable(kind.Nachname), printable(kind.Vorname)};
        const Eintrag eintrag = daten.Liste ? daten.Liste->Eintraege[platz] : Eintrag();
        for (size_t i = 0; i < spalten.size(); ++i)
            felder.push_back(Zellentext(eintrag.Werte.at(i)));
        for (const Abschnittstext& abschnitt : AbschnitteVon(daten, platz))
            felder.push_back(printable(abschnitt.Inhalt));
        csv += zeileAus(felder);
    }
    return csv;
}

} // namespace zeugnis::dokumente
