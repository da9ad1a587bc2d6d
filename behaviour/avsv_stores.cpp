#include "behaviour/avsv_stores.h"

#include "masterdata/pupil_records.h"
#include "shell/file_catalogue.h"

namespace zeugnis {
namespace {

// Reads the three fields that name the pupil; class and first name do not count.
Text nachnameLesen(RecordReader& reader) {
    reader.skip(1);
    Text nachname = reader.text();
    reader.skip(1);
    return nachname;
}

template <typename ReadRest>
bool abgleichend(Arbeitsverzeichnis& verzeichnis, TextView datei, const Namensliste& liste,
                 ReadRest readRest) {
    bool stimmt = true;
    readNumberedRecords(verzeichnis, datei, Schuelerplaetze,
                        [&](RecordReader& reader, int platz, int nummer) -> bool {
                            const Text nachname = nachnameLesen(reader);
                            readRest(reader, platz);
                            const int kind = reader.row(nummer - 1, Schuelerplaetze);
                            stimmt = liste.Kinder[kind].Nachname == nachname;
                            return stimmt;
                        });
    return stimmt;
}

void dateienSchreiben(const Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                      const AVSVSpeicher& speicher) {
    JeSchuelerSchreiben(verzeichnis, dateien::AVSVspeicher, liste,
                        [&](RecordWriter& writer, int platz) {
                            for (const Abschnitt abschnitt : Abschnitte)
                                writer.add(speicher.von(abschnitt).Texte[platz]);
                        });
    JeSchuelerSchreiben(verzeichnis, dateien::AVSVWahl, liste,
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
    return abgleichend(verzeichnis, dateien::AVSVspeicher, liste,
                       [&](RecordReader& reader, int platz) {
                           for (const Abschnitt abschnitt : Abschnitte)
                               speicher.von(abschnitt).Texte[platz] = reader.text();
                       }) &&
           abgleichend(verzeichnis, dateien::AVSVWahl, liste, [&](RecordReader& reader, int platz) {
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
    SicherheitskopieAnlegen(verzeichnis, dateien::AVSVspeicher, u"AVSVspeicher", heute);
    SicherheitskopieAnlegen(verzeichnis, dateien::AVSVWahl, u"AVSVWahl", heute);
}

} // namespace zeugnis
