#include "tests/documents/report_installation.h"

#include "files/file_catalogue.h"
#include "files/pupil_records.h"
#include "platform/record_writer.h"

#include <fstream>

namespace zeugnis::test {
namespace fs = std::filesystem;

Schueler schueler(const Text& vorname, const Text& nachname, const Text& geburtsdatum,
                  const Text& geburtsort) {
    return {.Nachname = nachname,
            .Vorname = vorname,
            .Geschlecht = u"w",
            .Geburtsdatum = geburtsdatum,
            .AG = {},
            .Geburtsort = geburtsort};
}

Text saetze(int count) {
    Text text;
    for (int i = 1; i <= count; ++i)
        text += (i > 1 ? u" Satz " : u"Satz ") + textFromNumber(i) +
                u" erzählt, wie zuverlässig alle Aufgaben erledigt werden.";
    return text;
}

ReportInstallation::ReportInstallation()
    : Schule{.Schulname = u"Lindenschule",
             .Schulzusatz = u"Grundschule Süderfehn",
             .Schulanschrift = u"Am Anger 1, 26999 Süderfehn",
             .Ausgabeort = u"Süderfehn",
             .Ausgabedatum = u"07.07.2027",
             .Schuljahr = u"2026/2027",
             .Halbjahr = u"2",
             .NaechstesSchuljahr = u"2027/2028",
             .Konferenzdatum = u"22.06.2027",
             .Klassenleitung = u"Grete Großmann"} {
    fs::create_directories(path() / "Daten" / "Sicherheit");
}

void ReportInstallation::write(const std::vector<Zeugniskind>& kinder, const Text& klasse) {
    Arbeitsverzeichnis verzeichnis(path());
    Namensliste liste;
    liste.Klasse = klasse;
    AVSVSpeicher speicher;
    for (const Zeugniskind& kind : kinder) {
        const int platz = liste.Schuelerzahl++;
        liste.Kinder[platz] = kind.Kind;
        speicher.AV.Texte[platz] = kind.AV;
        speicher.SV.Texte[platz] = kind.SV;
    }
    SpeicherSchreiben(verzeichnis, liste, speicher, u"01.07.2027");

    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    BasisdatenSchreiben(verzeichnis, Schule);
    RecordWriter namen(verzeichnis, dateien::Namen);
    for (int platz = 0; platz < liste.Schuelerzahl; ++platz) {
        const Schueler& kind = liste.Kinder[platz];
        namen.record(platz + 1, klasse, kind.Nachname, kind.Vorname, kind.Geschlecht,
                     kind.Geburtsdatum, kind.AG[0], kind.AG[1], kind.AG[2], kind.AG[3],
                     kind.Geburtsort);
    }
    namen.close();
    const bool istUnten = klasse < u"3";
    JeSchuelerSchreiben(verzeichnis, istUnten ? dateien::Speicher12 : dateien::Speicher34, liste,
                        [&](RecordWriter& writer, int platz) {
                            std::vector<Text> texte = kinder[static_cast<size_t>(platz)].Bereiche;
                            texte.resize(istUnten ? 8 : 3);
                            for (const Text& text : texte)
                                writer.add(text);
                        });
}

void ReportInstallation::edit(const char* name) const {
    std::ofstream(path() / name, std::ios::binary | std::ios::app) << "\n";
}

} // namespace zeugnis::test
