#include "masterdata/store_reset.h"

#include "files/pupil_records.h"
#include "platform/failure.h"
#include "platform/whole_file.h"

namespace zeugnis {
namespace {

enum class Schritt { Getan, OrdnerFehlt, Gescheitert };

Schritt ohneFehlerWechseln(Arbeitsverzeichnis& verzeichnis, TextView ordner) {
    try {
        verzeichnis.change(ordner);
        return Schritt::Getan;
    } catch (const Laufzeitfehler& fehler) {
        return fehler.kind() == Fehlerart::PathNotFound ? Schritt::OrdnerFehlt
                                                        : Schritt::Gescheitert;
    }
}

} // namespace

void SpeicherLeeren(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    for (const Speicherdatei& eine : speicherdateien::Alle)
        JeSchuelerSchreiben(verzeichnis, eine.Datei, liste, [&](RecordWriter& writer, int) {
            for (int i = 0; i < eine.Texte; ++i)
                writer.add(TextView());
            for (int i = 0; i < eine.Zahlen; ++i)
                writer.add(0);
        });
}

void SicherheitLeeren(Arbeitsverzeichnis& verzeichnis) {
    bool gescheitert = false;
    for (const TextView ordner : {dateien::Daten, dateien::Sicherheit})
        if (ohneFehlerWechseln(verzeichnis, ordner) == Schritt::Gescheitert)
            gescheitert = true;
    if (!gescheitert)
        deleteFilesEndingIn(verzeichnis, u".txt");
    for (int i = 0; i < 2; ++i)
        ohneFehlerWechseln(verzeichnis, u"..\\");
}

} // namespace zeugnis
