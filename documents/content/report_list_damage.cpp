#include "documents/content/report_list_damage.h"

#include "platform/failure.h"
#include "platform/whole_file.h"
#include "safety/flaws.h"
#include "safety/latest.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

using Zeilen = std::vector<Listenzeile>;

Text dateiVon(const Stammdaten& daten) { return Listenstamm(daten) + u".txt"; }

int belegteFelder(const Zeilen& zeilen) {
    int felder = 0;
    for (const Listenzeile& zeile : zeilen)
        for (const int wert : zeile.Werte.Werte)
            felder += wert == LeereZelle ? 0 : 1;
    return felder;
}

bool istAndersKodiert(const std::string& bytes, const Stammdaten& daten) {
    const std::optional<safety::Flaw> flaw =
        safety::flawOf(utf8FromText(dateiVon(daten)), bytes, {});
    return flaw && flaw->kind == safety::Damage::Encoding;
}

// The last record may have lost digits that nobody would miss.
std::string ganzeZeilen(const std::string& bytes) {
    const size_t ende = bytes.rfind('\n');
    return bytes.substr(0, ende == std::string::npos ? 0 : ende + 1);
}

Zeilen lesbare(const std::string& bytes, const Stammdaten& daten) {
    const std::string gewandelt =
        istAndersKodiert(bytes, daten) ? safety::fromUtf8(bytes).value_or(bytes) : bytes;
    return LesbareZeilenAus(ganzeZeilen(gewandelt), daten.Jahrgang);
}

} // namespace

std::optional<std::string> InhaltVon(const Arbeitsverzeichnis& verzeichnis, TextView datei) {
    if (!hasFile(verzeichnis, datei))
        return std::nullopt;
    return readWholeFile(verzeichnis, datei);
}

Text SchadenDerListe(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                     const std::optional<std::string>& bytes) {
    const Text datei = u"Die Datei „" + dateiVon(daten) + u"“ ";
    if (!bytes)
        return datei + u"ist nicht mehr da.";
    if (bytes->empty())
        return daten.Liste.Schuelerzahl > 0 ? datei + u"ist leer." : Text();
    if (istAndersKodiert(*bytes, daten))
        return datei + u"ist in einer anderen Zeichenkodierung gespeichert, vermutlich von einem "
                       u"Texteditor.";
    if (bytes->back() != '\n')
        return datei + u"bricht mittendrin ab.";
    try {
        const Zeilen zeilen =
            ListenzeilenAus(*bytes, verzeichnis.displayName(dateiVon(daten)), daten.Jahrgang);
        const auto anzahl = static_cast<int>(zeilen.size());
        if (anzahl < daten.Liste.Schuelerzahl)
            return datei + u"enthält nur " + textFromNumber(anzahl) + u" von " +
                   textFromNumber(daten.Liste.Schuelerzahl) + u" Kindern.";
    } catch (const Laufzeitfehler& failure) {
        return failure.sentence();
    }
    return {};
}

std::optional<std::string> ZuletztGespeichert(const Arbeitsverzeichnis& verzeichnis,
                                              const Stammdaten& daten) {
    std::optional<std::string> bytes =
        safety::Latest(verzeichnis.programFolder()).of(utf8FromText(dateiVon(daten)));
    if (!bytes || belegteFelder(LesbareZeilenAus(*bytes, daten.Jahrgang)) == 0)
        return std::nullopt;
    return bytes;
}

Rest RestDerListe(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                  const std::string& bytes, bool nurDatei) {
    Rest rest{.Zeilen = lesbare(bytes, daten), .Satz = {}};
    const std::optional<std::string> zuletzt =
        nurDatei ? std::nullopt : ZuletztGespeichert(verzeichnis, daten);
    Zeilen gespeichert = zuletzt ? LesbareZeilenAus(*zuletzt, daten.Jahrgang) : Zeilen();
    if (zuletzt && belegteFelder(gespeichert) >= belegteFelder(rest.Zeilen))
        return {.Zeilen = std::move(gespeichert),
                .Satz = u"Hier steht wieder, was zuletzt gespeichert wurde."};
    rest.Satz = belegteFelder(rest.Zeilen) == 0 ? u"Hier beginnt sie leer."
                                                : u"Hier steht, was darin noch zu lesen war.";
    return rest;
}

} // namespace zeugnis::dokumente
