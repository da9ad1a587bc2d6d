#include "behaviour/avsv_stores.h"

#include "files/file_catalogue.h"
#include "files/pupil_records.h"

namespace zeugnis {
namespace {

void dateienSchreiben(const Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                      const AVSVSpeicher& speicher) {
    JeSchuelerSchreiben(verzeichnis, speicherdateien::AVSVTexte.Datei, liste,
                        [&](RecordWriter& writer, int platz) {
                            for (const Abschnitt abschnitt : Abschnitte)
                                writer.add(speicher.von(abschnitt).Texte[platz]);
                        });
    JeSchuelerSchreiben(verzeichnis, speicherdateien::AVSVWahl.Datei, liste,
                        [&](RecordWriter& writer, int platz) {
                            for (const Abschnitt abschnitt : Abschnitte)
                                writer.add(speicher.von(abschnitt).Gesperrt[platz]);
                            for (const Abschnitt abschnitt : Abschnitte)
                                for (int k = 0; k < KategorienVon(abschnitt); ++k)
                                    writer.add(speicher.von(abschnitt).Wahl[platz][k]);
                        });
}

} // namespace

bool SpeicherLaden(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                   AVSVSpeicher& speicher) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    return JeSchuelerAbgleichen(verzeichnis, speicherdateien::AVSVTexte, liste,
                                [&](RecordReader& reader, int platz) {
                                    for (const Abschnitt abschnitt : Abschnitte)
                                        speicher.von(abschnitt).Texte[platz] = reader.text();
                                }) &&
           JeSchuelerAbgleichen(
               verzeichnis, speicherdateien::AVSVWahl, liste, [&](RecordReader& reader, int platz) {
                   for (const Abschnitt abschnitt : Abschnitte)
                       speicher.von(abschnitt).Gesperrt[platz] = reader.integer();
                   for (const Abschnitt abschnitt : Abschnitte)
                       for (int k = 0; k < KategorienVon(abschnitt); ++k)
                           speicher.von(abschnitt).Wahl[platz][k] = reader.integer();
               });
}

void SpeicherNeuAnlegen(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    dateienSchreiben(verzeichnis, liste, AVSVSpeicher());
}

void SpeicherSchreiben(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                       const AVSVSpeicher& speicher, const Text& heute) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    dateienSchreiben(verzeichnis, liste, speicher);
    SicherheitskopieAnlegen(verzeichnis, speicherdateien::AVSVTexte, heute);
    SicherheitskopieAnlegen(verzeichnis, speicherdateien::AVSVWahl, heute);
}

} // namespace zeugnis
