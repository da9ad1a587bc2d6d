#include "masterdata/store_reset.h"

#include "masterdata/pupil_records.h"
#include "platform/failure.h"
#include "platform/whole_file.h"
#include "shell/file_catalogue.h"

namespace zeugnis {
namespace {

// What a blank record holds behind number, class and names.
struct Leersatz {
    TextView Datei;
    int LeereTexte;
    int Nullen;
};
constexpr std::array<Leersatz, 6> Leersaetze = {{
    {dateien::AVSVspeicher, 2, 0},
    {dateien::AVSVWahl, 0, 15},
    {dateien::Speicher12, 8, 0},
    {dateien::Sperre12, 0, 8},
    {dateien::Speicher34, 3, 0},
    {dateien::Sperre34, 0, 3},
}};

void ohneFehlerWechseln(Arbeitsverzeichnis& verzeichnis, TextView ordner) {
    try {
        verzeichnis.wechseln(ordner);
    } catch (const Laufzeitfehler&) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace

void SpeicherLeeren(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    for (const Leersatz& satz : Leersaetze)
        JeSchuelerSchreiben(verzeichnis, satz.Datei, liste, [&](RecordWriter& writer, int) {
            for (int i = 0; i < satz.LeereTexte; ++i)
                writer.add(TextView());
            for (int i = 0; i < satz.Nullen; ++i)
                writer.add(0);
        });
}

void SicherheitLeeren(Arbeitsverzeichnis& verzeichnis) {
    ohneFehlerWechseln(verzeichnis, dateien::Daten);
    ohneFehlerWechseln(verzeichnis, dateien::Sicherheit);
    deleteFilesEndingIn(verzeichnis, u".txt");
    ohneFehlerWechseln(verzeichnis, u"..\\");
    ohneFehlerWechseln(verzeichnis, u"..\\");
}

} // namespace zeugnis
