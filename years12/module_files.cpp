#include "years12/module_files.h"

#include "platform/failure.h"
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

Bausteintabelle::Bausteintabelle(const Bausteindatei& datei)
    : m_spalten(datei.Spalten),
      m_zeilen(datei.Zeilen),
      m_zellen(static_cast<size_t>(datei.Spalten) * static_cast<size_t>(datei.Zeilen)) {}

size_t Bausteintabelle::stelle(int spalte, int zeile) const {
    if (spalte < 1 || spalte > m_spalten || zeile < 0 || zeile >= m_zeilen)
        throw Laufzeitfehler(Fehlerart::IndexOutOfRange,
                             u"Die Textbausteine haben keine Spalte " + textFromNumber(spalte) +
                                 u" mit der Zeile " + textFromNumber(zeile) + u" (Spalten 1 bis " +
                                 textFromNumber(m_spalten) + u", Zeilen 0 bis " +
                                 textFromNumber(m_zeilen - 1) + u").");
    return static_cast<size_t>(spalte - 1) * static_cast<size_t>(m_zeilen) +
           static_cast<size_t>(zeile);
}

Bausteine::Bausteine() {
    for (const Bausteindatei& datei : Bausteindateien)
        m_tabellen.emplace_back(datei);
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
