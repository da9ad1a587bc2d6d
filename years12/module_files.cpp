#include "years12/module_files.h"

#include "files/file_catalogue.h"

namespace zeugnis::jahrgang12 {
namespace {

constexpr int FelderDerSchule = 9;

} // namespace

Bausteine::Bausteine() {
    for (const Moduldatei& datei : Bausteindateien)
        m_tabellen.emplace_back(datei.Spalten, datei.Zeilen);
}

Bausteine BausteineLaden(Arbeitsverzeichnis& verzeichnis, TextView jahrgang) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    const bool jahrBekannt = IstZahl(jahrgang, 1) || IstZahl(jahrgang, 2);
    Bausteine bausteine;
    for (size_t i = 0; i < Bausteindateien.size(); ++i) {
        const Moduldatei& datei = Bausteindateien.at(i);
        if (!datei.JeJahrgang || jahrBekannt)
            ModuldateiLesen(verzeichnis, Modulname(datei, jahrgang), datei, datei.Zeilen,
                            bausteine[static_cast<Datei>(i)]);
    }
    bausteine.Schule = BasisdatenLesen(verzeichnis, FelderDerSchule);
    return bausteine;
}

} // namespace zeugnis::jahrgang12
