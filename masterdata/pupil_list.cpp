#include "masterdata/pupil_list.h"

#include "platform/record_reader.h"
#include "shell/file_catalogue.h"

#include <algorithm>

namespace zeugnis {
namespace {

// As many characters as there are: a short text gives less, never a failure.
TextView stueck(TextView text, size_t ab, size_t anzahl) {
    return ab < text.size() ? text.substr(ab, anzahl) : TextView();
}

} // namespace

Namensliste NamenLaden(Arbeitsverzeichnis& verzeichnis) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Namensliste liste;
    liste.Schuelerzahl = readNumberedRecords(
        verzeichnis, dateien::Namen, Schuelerplaetze, [&](RecordReader& reader, int row, int) {
            liste.Klasse = reader.text();
            Schueler& kind = liste.Kinder[row];
            kind.Nachname = reader.text();
            kind.Vorname = reader.text();
            kind.Geschlecht = reader.text();
            kind.Geburtsdatum = reader.text();
            for (Text& ag : kind.AG)
                ag = reader.text();
            kind.Geburtsort = reader.text();
        });
    return liste;
}

Text BildnameVon(const Schueler& kind) {
    const TextView datum = kind.Geburtsdatum;
    const size_t jahr = datum.size() - std::min<size_t>(datum.size(), 4);
    return kind.Nachname + u"_" + kind.Vorname + u"_" + Text(stueck(datum, 0, 2)) +
           Text(stueck(datum, 3, 2)) + Text(stueck(datum, jahr, 4));
}

} // namespace zeugnis
