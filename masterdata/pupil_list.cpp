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

template <typename Feld, typename Kind>
std::array<Feld, 9> felderVon(Kind& kind) {
    return {&kind.Nachname, &kind.Vorname, &kind.Geschlecht, &kind.Geburtsdatum, &kind.AG[0],
            &kind.AG[1],    &kind.AG[2],   &kind.AG[3],      &kind.Geburtsort};
}

} // namespace

std::array<Text*, 9> FelderVon(Schueler& kind) { return felderVon<Text*>(kind); }

std::array<const Text*, 9> FelderVon(const Schueler& kind) { return felderVon<const Text*>(kind); }

Namensliste NamenLaden(Arbeitsverzeichnis& verzeichnis, const std::function<void(int)>& jeNummer) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Namensliste liste;
    liste.Schuelerzahl = readNumberedRecords(verzeichnis, dateien::Namen, Schuelerplaetze,
                                             [&](RecordReader& reader, int row, int nummer) {
                                                 liste.Klasse = reader.text();
                                                 for (Text* feld : FelderVon(liste.Kinder[row]))
                                                     *feld = reader.text();
                                                 if (jeNummer)
                                                     jeNummer(nummer);
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
