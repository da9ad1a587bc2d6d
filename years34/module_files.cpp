#include "years34/module_files.h"

#include "files/file_catalogue.h"
#include "platform/record_reader.h"

namespace zeugnis::jahrgang34 {
namespace {

// Each record holds a running number and one text per table, in the order of the tables.
template <int Zeilen, typename... Weitere>
void lesen(const Arbeitsverzeichnis& verzeichnis, const Text& name, Tabelle<Text, Zeilen>& tabelle,
           Weitere&... weitere) {
    readNumberedRecords(verzeichnis, name, Zeilen, [&](RecordReader& reader, int zeile, int) {
        tabelle[zeile] = reader.text();
        ((weitere[zeile] = reader.text()), ...);
    });
}

} // namespace

Textbausteine TextbausteineLaden(Arbeitsverzeichnis& verzeichnis, const Text& jahrgang) {
    const Ordnerwechsel in(verzeichnis, dateien::Daten);
    Textbausteine b;
    const auto name = [&](const Moduldatei& datei) { return Modulname(datei, jahrgang); };
    lesen(verzeichnis, name(moduldateien::Foerder34), b.FoerderTexte);
    lesen(verzeichnis, name(moduldateien::Interessen34), b.InteressenTexte);
    lesen(verzeichnis, name(moduldateien::Zensurabweichung), b.ZensurTexte);
    lesen(verzeichnis, name(moduldateien::Bemerkungen34), b.BemerkungenA, b.BemerkungenB,
          b.BemerkungenC, b.BemerkungenD);
    // The year decides whether it is Versetzung3 or Versetzung4; their layout is the same.
    lesen(verzeichnis, u"Versetzung" + jahrgang + u".Txt", b.VersetzungHalbjahr1,
          b.VersetzungHalbjahr2);
    lesen(verzeichnis, name(moduldateien::AG), b.AGTexte);
    lesen(verzeichnis, name(moduldateien::Sport34), b.SportTexte);
    return b;
}

} // namespace zeugnis::jahrgang34
