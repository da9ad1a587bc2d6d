#include "files/pupil_list.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"

#include <algorithm>

namespace zeugnis {
namespace {

// As many characters as there are: a short text gives less, never a failure.
TextView stueck(TextView text, size_t ab, size_t anzahl) {
    return ab < text.size() ? text.substr(ab, anzahl) : TextView();
}

template <typename Feld, typename Kind>
std::array<Feld, Namensfelder> felderVon(Kind& kind) {
    return std::to_array<Feld>({&kind.Nachname, &kind.Vorname, &kind.Geschlecht, &kind.Geburtsdatum,
                                &kind.AG[0], &kind.AG[1], &kind.AG[2], &kind.AG[3],
                                &kind.Geburtsort});
}

} // namespace

std::array<Text*, Namensfelder> FelderVon(Schueler& kind) { return felderVon<Text*>(kind); }

std::array<const Text*, Namensfelder> FelderVon(const Schueler& kind) {
    return felderVon<const Text*>(kind);
}

Namensliste NamenLaden(Arbeitsverzeichnis& verzeichnis) {
    Namensliste liste;
    NamenEinlesen(verzeichnis, liste);
    return liste;
}

void NamenEinlesen(Arbeitsverzeichnis& verzeichnis, Namensliste& liste,
                   const std::function<void(int)>& jeNummer) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    liste.Schuelerzahl = readNumberedRecords(verzeichnis, dateien::Namen, Schuelerplaetze,
                                             [&](RecordReader& reader, int row, int nummer) {
                                                 liste.Klasse = reader.text();
                                                 for (Text* feld : FelderVon(liste.Kinder[row]))
                                                     *feld = reader.text();
                                                 if (jeNummer)
                                                     jeNummer(nummer);
                                             });
}

Text KlasseLesen(const Arbeitsverzeichnis& verzeichnis) {
    Text klasse;
    for (RecordReader reader(verzeichnis, dateien::Namen); !reader.atEnd();) {
        reader.skip(1);
        klasse = reader.text();
        reader.skip(static_cast<int>(Namensfelder));
    }
    return klasse;
}

void NamenssatzSchreiben(RecordWriter& writer, int nummer, const Text& klasse,
                         const Schueler& kind) {
    writer.begin();
    writer.add(nummer);
    writer.add(klasse);
    for (const Text* feld : FelderVon(kind))
        writer.add(*feld);
    writer.end();
}

Text BildnameVon(const Schueler& kind) {
    const TextView datum = kind.Geburtsdatum;
    const size_t jahr = datum.size() - std::min<size_t>(datum.size(), 4);
    return kind.Nachname + u"_" + kind.Vorname + u"_" + Text(stueck(datum, 0, 2)) +
           Text(stueck(datum, 3, 2)) + Text(stueck(datum, jahr, 4));
}

} // namespace zeugnis
