#include "years12/module_files.h"

#include "platform/record_reader.h"
#include "shell/file_catalogue.h"

namespace zeugnis::jahrgang12 {
namespace {

constexpr int FelderDerSchule = 9;

void lesen(const Arbeitsverzeichnis& verzeichnis, const Text& name, const Bausteindatei& datei,
           Bausteintabelle& tabelle) {
    readNumberedRecords(verzeichnis, name, datei.Zeilen, [&](RecordReader& reader, int zeile, int) {
        for (int spalte = 1; spalte <= datei.Spalten; ++spalte)
            tabelle(spalte, zeile) = reader.text();
    });
}

} // namespace

Bausteine::Bausteine() {
    for (const Bausteindatei& datei : Bausteindateien)
        m_tabellen.emplace_back(datei.Spalten, datei.Zeilen);
}

Bausteine BausteineLaden(Arbeitsverzeichnis& verzeichnis, TextView jahrgang) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    const bool jahrBekannt = IstZahl(jahrgang, 1) || IstZahl(jahrgang, 2);
    Bausteine bausteine;
    for (size_t i = 0; i < Bausteindateien.size(); ++i) {
        const Bausteindatei& datei = Bausteindateien.at(i);
        if (datei.JeJahrgang && !jahrBekannt)
            continue;
        const TextView jahr = datei.JeJahrgang ? jahrgang : TextView();
        lesen(verzeichnis, Text(datei.Stamm) + Text(jahr) + u".Txt", datei,
              bausteine[static_cast<Datei>(i)]);
    }
    bausteine.Schule = BasisdatenLesen(verzeichnis, FelderDerSchule);
    return bausteine;
}

} // namespace zeugnis::jahrgang12
