#pragma once

#include "files/module_files.h"
#include "files/school_data.h"

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
    Zwischentexte,
    Anzahl
};

/// By `Datei`.
inline constexpr auto Bausteindateien = std::to_array<Moduldatei>(
    {moduldateien::Interessen12, moduldateien::Sprechen, moduldateien::Lesen,
     moduldateien::Schreiben, moduldateien::Mathe, moduldateien::Bemerkungen12,
     moduldateien::Versetzung12, moduldateien::Sport12, moduldateien::Zwischentexte});
static_assert(Bausteindateien.size() == static_cast<size_t>(Datei::Anzahl));

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
