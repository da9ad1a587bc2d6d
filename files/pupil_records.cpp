#include "files/pupil_records.h"

#include "platform/whole_file.h"

namespace zeugnis {

Schuelerkopf SchuelerkopfLesen(RecordReader& reader) {
    Schuelerkopf kopf;
    for (Text* feld : {&kopf.Klasse, &kopf.Nachname, &kopf.Vorname})
        *feld = reader.text();
    return kopf;
}

void PlatzPruefen(const RecordReader& reader, int platz) {
    if (platz >= Schuelerplaetze)
        throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                             reader.place() + u": Danach folgt Datensatz " +
                                 textFromNumber(platz + 1) + u"; erlaubt sind höchstens " +
                                 textFromNumber(Schuelerplaetze) + u" Datensätze.");
}

void SicherheitskopieAnlegen(const Arbeitsverzeichnis& verzeichnis, const Speicherdatei& speicher,
                             const Text& heute) {
    copyWholeFile(verzeichnis, speicher.Datei,
                  Text(dateien::Sicherheit) + Text(speicher.Kopie) + heute + u".txt");
}

} // namespace zeugnis
