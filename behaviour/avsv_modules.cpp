#include "behaviour/avsv_modules.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"
#include "platform/record_writer.h"

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

void kategorienLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei, Bausteine& bausteine) {
    readNumberedRecords(verzeichnis, datei, Zeilenplaetze,
                        [&](RecordReader& reader, int kategorie, int) {
                            bausteine.Kategorienamen[kategorie] = reader.text();
                            for (auto& farben : bausteine.Zeilenfarben)
                                farben[kategorie] = reader.integer();
                        });
}

void zeilenLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei, int kategorien,
                 Bausteine& bausteine) {
    readNumberedRecords(verzeichnis, datei, Zeilenplaetze,
                        [&](RecordReader& reader, int zeile, int) {
                            for (int k = 0; k < kategorien; ++k)
                                bausteine.Zeilen[k][zeile] = reader.text();
                        });
}

Bausteine laden(Arbeitsverzeichnis& verzeichnis, const Bausteindateien& quelle) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Bausteine bausteine;
    zeilenLesen(verzeichnis, quelle.Texte, quelle.Kategorienzahl, bausteine);
    for (int k = 0; k < quelle.Getrimmte; ++k)
        for (Text& zeile : bausteine.Zeilen[k])
            zeile = trimmed(zeile);
    kategorienLesen(verzeichnis, quelle.Kategorien, bausteine);
    return bausteine;
}

Bausteine wieSieStehen(Arbeitsverzeichnis& verzeichnis, const Formulierungsdateien& namen,
                       int kategorien) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Bausteine bausteine;
    kategorienLesen(verzeichnis, namen.Kategorien, bausteine);
    zeilenLesen(verzeichnis, namen.Texte, kategorien, bausteine);
    return bausteine;
}

constexpr int GeschriebeneZeilen = 10;

void kategorienSchreiben(const Arbeitsverzeichnis& verzeichnis, const Bausteindateien& ziel,
                         const Bausteine& bausteine) {
    RecordWriter writer(verzeichnis, ziel.Kategorien);
    for (int k = 0; k < ziel.Kategorienzahl; ++k) {
        writer.begin();
        writer.add(k + 1);
        writer.add(bausteine.Kategorienamen[k]);
        for (const auto& farben : bausteine.Zeilenfarben)
            writer.add(farben[k]);
        writer.end();
    }
    writer.close();
}

void zeilenSchreiben(const Arbeitsverzeichnis& verzeichnis, const Bausteindateien& ziel,
                     const Bausteine& bausteine) {
    RecordWriter writer(verzeichnis, ziel.Texte);
    for (int zeile = 0; zeile < GeschriebeneZeilen; ++zeile) {
        writer.begin();
        writer.add(zeile + 1);
        for (int k = 0; k < ziel.Kategorienzahl; ++k)
            writer.add(bausteine.Zeilen[k][zeile]);
        writer.end();
    }
    writer.close();
}

} // namespace

int KategorienVon(Abschnitt abschnitt) {
    return abschnitt == Abschnitt::AV ? KategorienAV : KategorienSV;
}

Bausteine TexteLadenAV(Arbeitsverzeichnis& verzeichnis) { return laden(verzeichnis, DateienAV); }

Bausteine TexteLadenSV(Arbeitsverzeichnis& verzeichnis) { return laden(verzeichnis, DateienSV); }

Bausteine FormulierungenLadenAV(Arbeitsverzeichnis& verzeichnis,
                                const Formulierungsdateien& namen) {
    return wieSieStehen(verzeichnis, namen, KategorienAV);
}

Bausteine FormulierungenLadenSV(Arbeitsverzeichnis& verzeichnis,
                                const Formulierungsdateien& namen) {
    return wieSieStehen(verzeichnis, namen, KategorienSV);
}

void FormulierungenSchreiben(Arbeitsverzeichnis& verzeichnis, const Bausteine& av,
                             const Bausteine& sv) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    kategorienSchreiben(verzeichnis, DateienAV, av);
    kategorienSchreiben(verzeichnis, DateienSV, sv);
    zeilenSchreiben(verzeichnis, DateienAV, av);
    zeilenSchreiben(verzeichnis, DateienSV, sv);
}

} // namespace zeugnis
