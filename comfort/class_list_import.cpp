#include "comfort/class_list_import.h"

#include "comfort/birth_date.h"
#include "comfort/class_list_columns.h"
#include "masterdata/class_list.h"
#include "platform/code_page.h"

#include <algorithm>

namespace zeugnis {
namespace {

void ganznameTeilen(const Text& name, Schueler& kind) {
    const size_t komma = name.find(u',');
    const size_t blank = name.rfind(u' ');
    if (komma != Text::npos) {
        kind.Nachname = trimmed(TextView(name).substr(0, komma));
        kind.Vorname = trimmed(TextView(name).substr(komma + 1));
    } else if (blank != Text::npos) {
        kind.Vorname = trimmed(TextView(name).substr(0, blank));
        kind.Nachname = name.substr(blank + 1);
    } else {
        kind.Vorname = name;
    }
}

/// A cell may name several groups.
void agHinzufuegen(const Text& zelle, Schueler& kind) {
    size_t anfang = 0;
    while (anfang <= zelle.size()) {
        const size_t ende = std::min(zelle.find_first_of(u",;/", anfang), zelle.size());
        const Text name = trimmed(TextView(zelle).substr(anfang, ende - anfang));
        const auto frei = std::ranges::find_if(kind.AG, &Text::empty);
        if (!name.empty() && frei != kind.AG.end())
            *frei = name;
        anfang = ende + 1;
    }
}

void zelleUebernehmen(Listenspalte spalte, const Text& zelle, Schueler& kind) {
    switch (spalte) {
    case Listenspalte::Nachname:
        kind.Nachname = zelle;
        break;
    case Listenspalte::Vorname:
        kind.Vorname = zelle;
        break;
    case Listenspalte::Ganzname:
        ganznameTeilen(zelle, kind);
        break;
    case Listenspalte::Geschlecht:
        kind.Geschlecht = GeschlechtLesen(zelle).empty() ? zelle : GeschlechtLesen(zelle);
        break;
    case Listenspalte::Datum:
        kind.Geburtsdatum = zelle;
        break;
    case Listenspalte::Ort:
        kind.Geburtsort = zelle;
        break;
    case Listenspalte::AG:
        agHinzufuegen(zelle, kind);
        break;
    case Listenspalte::Unbekannt:
        break;
    }
}

bool dasselbe(const Schueler& eines, const Schueler& anderes) {
    return sameIgnoringCase(eines.Nachname, anderes.Nachname) &&
           sameIgnoringCase(eines.Vorname, anderes.Vorname) &&
           eines.Geburtsdatum == anderes.Geburtsdatum;
}

Text grundAmKind(const Schueler& kind) {
    if (kind.Vorname.empty())
        return u"Der Vorname fehlt.";
    if (kind.Nachname.empty())
        return u"Der Nachname fehlt.";
    if (kind.Geschlecht.empty())
        return u"Bitte Junge oder Mädchen wählen.";
    if (kind.Geschlecht != u"m" && kind.Geschlecht != u"w")
        return u"Das Geschlecht „" + kind.Geschlecht + u"“ ist weder m noch w.";
    if (!kind.Geburtsdatum.empty() && !GeburtsdatumLesen(kind.Geburtsdatum))
        return u"„" + kind.Geburtsdatum + u"“ ist kein Geburtsdatum.";
    return {};
}

} // namespace

std::vector<Listenzeile> KlassenlisteLesen(TextView text) {
    const std::vector<Tabellenzeile> zeilen = delimitedRecords(text);
    const Spaltenwahl wahl = SpaltenErkennen(zeilen);
    bool kopf = wahl.Kopfzeile;
    std::vector<Listenzeile> liste;
    for (size_t i = 0; i < zeilen.size(); ++i) {
        if (zeilen[i].empty())
            continue;
        if (kopf) {
            kopf = false;
            continue;
        }
        Listenzeile& zeile = liste.emplace_back();
        zeile.Nummer = static_cast<int>(i) + 1;
        if (zeilen[i].size() == 1) {
            ganznameTeilen(Listenfeld(zeilen[i][0]), zeile.Kind);
            continue;
        }
        const size_t breite = std::min(zeilen[i].size(), wahl.Spalten.size());
        for (size_t s = 0; s < breite; ++s)
            zelleUebernehmen(wahl.Spalten[s], Listenfeld(zeilen[i][s]), zeile.Kind);
    }
    GruendeBilden(liste, 0);
    return liste;
}

Text Listenfeld(const Text& text) {
    Text feld = nearestInWindows1252(text);
    // A double quote would end the field in the file; the boxes turn it into this as well.
    std::ranges::replace(feld, u'"', u'\'');
    return trimmed(feld);
}

void GruendeBilden(std::vector<Listenzeile>& zeilen, int vorhandene) {
    int platz = SchuelerHoechstens - vorhandene;
    for (auto zeile = zeilen.begin(); zeile != zeilen.end(); ++zeile) {
        if (std::optional<Text> datum = GeburtsdatumLesen(zeile->Kind.Geburtsdatum))
            zeile->Kind.Geburtsdatum = *datum;
        zeile->Grund = grundAmKind(zeile->Kind);
        const auto gleiche = std::find_if(zeilen.begin(), zeile, [&](const Listenzeile& andere) {
            return dasselbe(andere.Kind, zeile->Kind);
        });
        if (zeile->Grund.empty() && gleiche != zeile)
            zeile->Grund =
                u"Das Kind steht schon in Zeile " + textFromNumber(gleiche->Nummer) + u".";
        if (zeile->Grund.empty() && platz-- <= 0)
            zeile->Grund = u"Die Klasse hat schon " + textFromNumber(SchuelerHoechstens) +
                           u" Kinder, mehr haben nicht Platz.";
    }
}

std::vector<Schueler> KinderAus(const std::vector<Listenzeile>& zeilen) {
    std::vector<Schueler> kinder;
    for (const Listenzeile& zeile : zeilen)
        if (zeile.Grund.empty())
            kinder.push_back(zeile.Kind);
    return kinder;
}

} // namespace zeugnis
