#include "years12/stores.h"

#include "masterdata/pupil_records.h"
#include "shell/file_catalogue.h"

namespace zeugnis::jahrgang12 {
namespace {

// The texts, or the locks, of all areas.
template <typename T>
void schreiben(const Arbeitsverzeichnis& verzeichnis, TextView datei, const Namensliste& liste,
               const Bereichstabelle<Schuelertabelle<T>>& werte) {
    JeSchuelerSchreiben(verzeichnis, datei, liste, [&](RecordWriter& writer, int platz) {
        for (const auto& eines : werte)
            writer.add(eines[platz]);
    });
}

} // namespace

void SpeicherLaden(Arbeitsverzeichnis& verzeichnis, Speicher12& speicher) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    JeSchuelerLesen(verzeichnis, dateien::Speicher12, [&](RecordReader& reader, int platz) {
        for (auto& texte : speicher.Bereichstext)
            texte[platz] = reader.text();
    });
    JeSchuelerLesen(verzeichnis, dateien::Sperre12, [&](RecordReader& reader, int platz) {
        for (auto& sperren : speicher.Sperre)
            sperren[platz] = reader.integer();
        for (int b = 0; b < Bereichszahl; ++b)
            if (!speicher.Bereichstext[b][platz].empty())
                speicher.Sperre[b][platz] = 1;
    });
}

void SpeicherSchreiben(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                       const Speicher12& speicher, const Text& heute) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    schreiben(verzeichnis, dateien::Speicher12, liste, speicher.Bereichstext);
    schreiben(verzeichnis, dateien::Sperre12, liste, speicher.Sperre);
    SicherheitskopieAnlegen(verzeichnis, dateien::Speicher12, u"12Speicher", heute);
    // The second name keeps its extension in front of the date.
    SicherheitskopieAnlegen(verzeichnis, dateien::Sperre12, u"12Sperre.txt", heute);
}

} // namespace zeugnis::jahrgang12
