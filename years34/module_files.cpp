#include "years34/module_files.h"

#include "platform/record_reader.h"
#include "shell/file_catalogue.h"

namespace zeugnis::jahrgang34 {
namespace {

// Each record holds a running number and one text per table, in the order of the tables.
template <int Zeilen, typename... Weitere>
void lesen(const Arbeitsverzeichnis& verzeichnis, TextView datei, Tabelle<Text, Zeilen>& tabelle,
           Weitere&... weitere) {
    readNumberedRecords(verzeichnis, datei, Zeilen, [&](RecordReader& reader, int zeile, int) {
        tabelle[zeile] = reader.text();
        ((weitere[zeile] = reader.text()), ...);
    });
}

} // namespace

Text Versetzungsdatei(const Text& jahrgang) { return u"Versetzung" + jahrgang + u".Txt"; }

Textbausteine TextbausteineLaden(Arbeitsverzeichnis& verzeichnis, const Text& jahrgang) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Textbausteine b;
    lesen(verzeichnis, dateien::Foerder34, b.FoerderTexte);
    lesen(verzeichnis, dateien::Interessen34, b.InteressenTexte);
    lesen(verzeichnis, dateien::Zensurabweichung, b.ZensurTexte);
    lesen(verzeichnis, dateien::Bemerkungen34, b.BemerkungenA, b.BemerkungenB, b.BemerkungenC,
          b.BemerkungenD);
    lesen(verzeichnis, Versetzungsdatei(jahrgang), b.VersetzungHalbjahr1, b.VersetzungHalbjahr2);
    lesen(verzeichnis, dateien::AG, b.AGTexte);
    lesen(verzeichnis, dateien::Sportusw, b.SportTexte);
    return b;
}

} // namespace zeugnis::jahrgang34
