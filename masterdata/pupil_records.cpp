#include "masterdata/pupil_records.h"

#include "platform/whole_file.h"
#include "shell/file_catalogue.h"

namespace zeugnis {

void PlatzPruefen(const RecordReader& reader, int platz) {
    if (platz >= Schuelerplaetze)
        throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                             reader.place() + u": Danach folgt Datensatz " +
                                 textFromNumber(platz + 1) + u"; erlaubt sind höchstens " +
                                 textFromNumber(Schuelerplaetze) + u" Datensätze.");
}

void SicherheitskopieAnlegen(const Arbeitsverzeichnis& verzeichnis, TextView datei, TextView stamm,
                             const Text& heute) {
    copyWholeFile(verzeichnis, datei, Text(dateien::Sicherheit) + Text(stamm) + heute + u".txt");
}

} // namespace zeugnis
