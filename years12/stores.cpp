#include "years12/stores.h"

#include "files/file_catalogue.h"
#include "files/pupil_records.h"

namespace zeugnis::jahrgang12 {

void SpeicherLaden(Arbeitsverzeichnis& verzeichnis, Speicher12& speicher) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    JeSchuelerLesen(verzeichnis, speicherdateien::Texte12,
                    [&](RecordReader& reader, int platz, const Schuelerkopf&) {
                        for (auto& texte : speicher.Bereichstext)
                            texte[platz] = reader.text();
                    });
    JeSchuelerLesen(verzeichnis, speicherdateien::Sperren12,
                    [&](RecordReader& reader, int platz, const Schuelerkopf&) {
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
    AbschnitteSchreiben(verzeichnis, speicherdateien::Texte12, liste, speicher.Bereichstext);
    AbschnitteSchreiben(verzeichnis, speicherdateien::Sperren12, liste, speicher.Sperre);
    SicherheitskopieAnlegen(verzeichnis, speicherdateien::Texte12, heute);
    SicherheitskopieAnlegen(verzeichnis, speicherdateien::Sperren12, heute);
}

} // namespace zeugnis::jahrgang12
