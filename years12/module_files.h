#pragma once

#include "masterdata/school_data.h"
#include "platform/text.h"
#include "platform/working_directory.h"
#include "shell/module_table.h"

#include <array>
#include <vector>

namespace zeugnis::jahrgang12 {

/// The module files, in the order in which they are read.
enum class Datei {
    Interessen,
    Sprechen,
    Lesen,
    Schreiben,
    Mathe,
    Bemerkungen,
    Versetzung,
    Sport,
    Zwischentexte
};

struct Bausteindatei {
    TextView Stamm;
    bool JeJahrgang; ///< the year, 1 or 2, stands behind the stem
    int Spalten;
    int Zeilen; ///< rows that there is room for; a record behind them fails
};

inline constexpr std::array<Bausteindatei, 9> Bausteindateien = {{
    {u"Interessen12", false, 1, 19},
    {u"Sprechen", true, 3, 11},
    {u"Lesen", true, 6, 11},
    {u"Schreiben", true, 6, 11},
    {u"Mathe", true, 18, 11},
    {u"Bemerkungen", true, 3, 11},
    {u"Versetzung", true, 1, 11},
    {u"Sportusw", false, 1, 11},
    {u"Zwischentexte", false, 1, 26},
}};

/// The modules of one year, and what the placeholders need of the school data.
class Bausteine {
  public:
    Bausteine();
    Bausteintabelle& operator[](Datei datei) { return m_tabellen[static_cast<size_t>(datei)]; }
    const Bausteintabelle& operator[](Datei datei) const {
        return m_tabellen[static_cast<size_t>(datei)];
    }

    Schuldaten Schule; ///< without the last field

  private:
    std::vector<Bausteintabelle> m_tabellen;
};

/// Reads all module files and the school data in the folder Daten. The files of a year are read
/// for year 1 and 2 only; for any other their tables stay empty. Fails for a missing file, and
/// with index-out-of-range behind the last row of a table.
Bausteine BausteineLaden(Arbeitsverzeichnis& verzeichnis, TextView jahrgang);

} // namespace zeugnis::jahrgang12
