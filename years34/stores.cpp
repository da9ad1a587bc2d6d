#include "years34/stores.h"

#include "files/file_catalogue.h"
#include "files/pupil_records.h"

namespace zeugnis::jahrgang34 {

Speicher34 TexteEinlesen(Arbeitsverzeichnis& verzeichnis) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Speicher34 speicher;
    JeSchuelerLesen(verzeichnis, speicherdateien::Texte34,
                    [&](RecordReader& reader, int platz, const Schuelerkopf&) {
                        for (auto& texte : speicher.Texte)
                            texte[platz] = reader.text();
                    });
    JeSchuelerLesen(verzeichnis, speicherdateien::Sperren34,
                    [&](RecordReader& reader, int platz, const Schuelerkopf&) {
                        for (auto& sperren : speicher.Sperren)
                            sperren[platz] = reader.integer();
                    });
    return speicher;
}

void TexteSpeichern(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste, Speicher34& speicher,
                    const Text& heute) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    AbschnitteSchreiben(verzeichnis, speicherdateien::Texte34, liste, speicher.Texte);
    for (int seite = 0; seite < Seitenzahl; ++seite)
        for (int platz = 0; platz < liste.Schuelerzahl; ++platz)
            if (!speicher.Texte[seite][platz].empty())
                speicher.Sperren[seite][platz] = 1;
    AbschnitteSchreiben(verzeichnis, speicherdateien::Sperren34, liste, speicher.Sperren);
    SicherheitskopieAnlegen(verzeichnis, speicherdateien::Texte34, heute);
    SicherheitskopieAnlegen(verzeichnis, speicherdateien::Sperren34, heute);
}

} // namespace zeugnis::jahrgang34
