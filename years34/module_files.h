#pragma once

#include "files/module_files.h"
#include "platform/table.h"

/// What belongs to the report of years 3 and 4.
namespace zeugnis::jahrgang34 {

template <const Moduldatei& Datei>
using Modulspalte = Tabelle<Text, Datei.Zeilen>;

/// The text modules, placeholders unexpanded. Rows behind those that are shown are room only.
struct Textbausteine {
    Modulspalte<moduldateien::Foerder34>
        FoerderTexte; ///< 0 opens, 1 to 6 are the kinds of support, 7 closes
    Modulspalte<moduldateien::Interessen34> InteressenTexte;
    Modulspalte<moduldateien::Zensurabweichung>
        ZensurTexte; ///< 0 to 2 subjects, 3 opens, 4 or 5 closes by half-year
    Modulspalte<moduldateien::Bemerkungen34> BemerkungenA; ///< how the remark on learning begins
    Modulspalte<moduldateien::Bemerkungen34> BemerkungenB; ///< the items of the list in its middle
    Modulspalte<moduldateien::Bemerkungen34> BemerkungenC; ///< the judgement
    Modulspalte<moduldateien::Bemerkungen34> BemerkungenD; ///< row 0 closes
    Modulspalte<moduldateien::Versetzung3> VersetzungHalbjahr1;
    Modulspalte<moduldateien::Versetzung3> VersetzungHalbjahr2;
    Modulspalte<moduldateien::AG> AGTexte;
    Modulspalte<moduldateien::Sport34> SportTexte; ///< by badge box
};

/// Reads all module files in the folder Daten. A file without records leaves its table empty. Fails
/// for a missing file, and with index-out-of-range where a table has no row for a record.
Textbausteine TextbausteineLaden(Arbeitsverzeichnis& verzeichnis, const Text& jahrgang);

} // namespace zeugnis::jahrgang34
