#include "behaviour/avsv_stores.h"

#include "platform/record_reader.h"
#include "platform/record_writer.h"
#include "platform/whole_file.h"
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

template <typename AddRest>
void jeKindSchreiben(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                     const Namensliste& liste, AddRest addRest) {
    RecordWriter writer(verzeichnis, datei);
    for (int platz = 0; platz < liste.Schuelerzahl; ++platz) {
        const Schueler& kind = liste.Kinder[platz];
        writer.begin();
        writer.add(platz + 1);
        writer.add(liste.Klasse);
        writer.add(kind.Nachname);
        writer.add(kind.Vorname);
        addRest(writer, platz);
        writer.end();
    }
    writer.close();
}

void dateienSchreiben(const Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                      const AVSVSpeicher& speicher) {
    jeKindSchreiben(verzeichnis, dateien::AVSVspeicher, liste,
                    [&](RecordWriter& writer, int platz) {
                        for (const Abschnitt abschnitt : Abschnitte)
                            writer.add(speicher.von(abschnitt).Texte[platz]);
                    });
    jeKindSchreiben(verzeichnis, dateien::AVSVWahl, liste, [&](RecordWriter& writer, int platz) {
        for (const Abschnitt abschnitt : Abschnitte)
            writer.add(speicher.von(abschnitt).Gesperrt[platz]);
        for (const Abschnitt abschnitt : Abschnitte)
            for (int k = 0; k < KategorienVon(abschnitt); ++k)
                writer.add(speicher.von(abschnitt).Wahl[platz][k]);
    });
}

void sichern(const Arbeitsverzeichnis& verzeichnis, TextView datei, const Text& heute) {
    const TextView stamm = datei.substr(0, datei.rfind(u'.'));
    copyWholeFile(verzeichnis, datei,
                  Text(dateien::Sicherheit) + Text(stamm) + heute + u".txt");
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
           abgleichend(verzeichnis, dateien::AVSVWahl, liste,
                       [&](RecordReader& reader, int platz) {
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
    sichern(verzeichnis, dateien::AVSVspeicher, heute);
    sichern(verzeichnis, dateien::AVSVWahl, heute);
}

} // namespace zeugnis
