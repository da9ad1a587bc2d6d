#include "behaviour/avsv_modules.h"

#include "platform/record_reader.h"
#include "shell/file_catalogue.h"

namespace zeugnis {
namespace {

struct Bausteindateien {
    TextView Texte;
    TextView Kategorien;
    int Kategorienzahl;
    int Getrimmte; ///< the categories from 0 on whose lines lose their outer blanks
};
constexpr Bausteindateien DateienAV{dateien::TexteAV, dateien::AVKategorien, KategorienAV,
                                    KategorienAV};
constexpr Bausteindateien DateienSV{dateien::TexteSV, dateien::SVKategorien, KategorienSV,
                                    KategorienSV - 1};

Bausteine laden(Arbeitsverzeichnis& verzeichnis, const Bausteindateien& quelle) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Bausteine bausteine;
    readNumberedRecords(verzeichnis, quelle.Texte, Zeilenplaetze,
                        [&](RecordReader& reader, int zeile, int) {
                            for (int k = 0; k < quelle.Kategorienzahl; ++k)
                                bausteine.Zeilen[k][zeile] = reader.text();
                        });
    for (int k = 0; k < quelle.Getrimmte; ++k)
        for (Text& zeile : bausteine.Zeilen[k])
            zeile = trimmed(zeile);
    readNumberedRecords(verzeichnis, quelle.Kategorien, Zeilenplaetze,
                        [&](RecordReader& reader, int kategorie, int) {
                            bausteine.Kategorienamen[kategorie] = reader.text();
                            for (auto& farben : bausteine.Zeilenfarben)
                                farben[kategorie] = reader.integer();
                        });
    return bausteine;
}

} // namespace

int KategorienVon(Abschnitt abschnitt) {
    return abschnitt == Abschnitt::AV ? KategorienAV : KategorienSV;
}

Bausteine TexteLadenAV(Arbeitsverzeichnis& verzeichnis) { return laden(verzeichnis, DateienAV); }

Bausteine TexteLadenSV(Arbeitsverzeichnis& verzeichnis) { return laden(verzeichnis, DateienSV); }

} // namespace zeugnis
