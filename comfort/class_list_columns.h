#pragma once

#include "comfort/delimited_text.h"

namespace zeugnis {

/// What a column of a class list holds.
enum class Listenspalte { Unbekannt, Nachname, Vorname, Ganzname, Geschlecht, Datum, Ort, AG };

struct Spaltenwahl {
    std::vector<Listenspalte> Spalten;
    bool Kopfzeile = false; ///< the first record with content names the columns
};

/// By the heading, where the first record has one; otherwise by what stands in the cells: dates,
/// sexes and numbers are recognised, of the others the first are last name, first name and place of
/// birth. A single column holds whole names.
Spaltenwahl SpaltenErkennen(const std::vector<Tabellenzeile>& zeilen);

/// "m" or "w" for the usual words and letters; empty for anything else.
Text GeschlechtLesen(TextView text);

} // namespace zeugnis
