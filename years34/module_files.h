#pragma once

#include "platform/table.h"
#include "platform/working_directory.h"

/// What belongs to the report of years 3 and 4.
namespace zeugnis::jahrgang34 {

/// The text modules, placeholders unexpanded. Rows behind those that are shown are room only.
struct Textbausteine {
    Tabelle<Text, 9> FoerderTexte; ///< 0 opens, 1 to 6 are the kinds of support, 7 closes
    Tabelle<Text, 16> InteressenTexte;
    Tabelle<Text, 8> ZensurTexte;  ///< 0 to 2 subjects, 3 opens, 4 or 5 closes by half-year
    Tabelle<Text, 9> BemerkungenA; ///< how the remark on learning begins
    Tabelle<Text, 9> BemerkungenB; ///< the items of the list in its middle
    Tabelle<Text, 9> BemerkungenC; ///< the judgement
    Tabelle<Text, 9> BemerkungenD; ///< row 0 closes
    Tabelle<Text, 5> VersetzungHalbjahr1;
    Tabelle<Text, 5> VersetzungHalbjahr2;
    Tabelle<Text, 3> AGTexte;
    Tabelle<Text, 16> SportTexte; ///< by badge box
};

/// "Versetzung3.Txt"
Text Versetzungsdatei(const Text& jahrgang);

/// Reads all module files in the folder Daten. A file without records leaves its table empty. Fails
/// for a missing file, and with index-out-of-range where a table has no row for a record.
Textbausteine TextbausteineLaden(Arbeitsverzeichnis& verzeichnis, const Text& jahrgang);

} // namespace zeugnis::jahrgang34
