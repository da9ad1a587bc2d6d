#include "years34/stores.h"

#include "masterdata/pupil_records.h"
#include "shell/file_catalogue.h"

namespace zeugnis::jahrgang34 {

Speicher34 TexteEinlesen(Arbeitsverzeichnis& verzeichnis) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Speicher34 speicher;
    JeSchuelerLesen(verzeichnis, dateien::Speicher34, [&](RecordReader& reader, int platz) {
        for (auto& texte : speicher.Texte)
            texte[platz] = reader.text();
    });
    JeSchuelerLesen(verzeichnis, dateien::Sperre34, [&](RecordReader& reader, int platz) {
        for (auto& sperren : speicher.Sperren)
            sperren[platz] = reader.integer();
    });
    return speicher;
}

void TexteSpeichern(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste, Speicher34& speicher,
                    const Text& heute) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    JeSchuelerSchreiben(verzeichnis, dateien::Speicher34, liste,
                        [&](RecordWriter& writer, int platz) {
                            for (const auto& texte : speicher.Texte)
                                writer.add(texte[platz]);
                        });
    JeSchuelerSchreiben(verzeichnis, dateien::Sperre34, liste,
                        [&](RecordWriter& writer, int platz) {
                            for (int seite = 0; seite < Seitenzahl; ++seite) {
                                if (!speicher.Texte[seite][platz].empty())
                                    speicher.Sperren[seite][platz] = 1;
                                writer.add(speicher.Sperren[seite][platz]);
                            }
                        });
    SicherheitskopieAnlegen(verzeichnis, dateien::Speicher34, u"34Speicher", heute);
    SicherheitskopieAnlegen(verzeichnis, dateien::Sperre34, u"34Sperre", heute);
}

} // namespace zeugnis::jahrgang34
