#pragma once

#include "platform/working_directory.h"

#include <vector>

namespace zeugnis {

/// One text of a module file in three states. Before: as it was delivered with this class, which
/// the standard copy holds.
struct Modultext {
    Text Datei;      ///< in Daten, as the new delivery calls it
    Text Stelle;     ///< "Zeile 3, Spalte 2"
    size_t Satz = 0; ///< both from 0
    size_t Feld = 0;
    Text Bisher; ///< delivered before; the same as Eigener where no standard copy tells
    Text Eigener;
    Text Neu;

    /// Nobody has changed it here, so the new one is no loss.
    [[nodiscard]] bool Unveraendert() const { return Bisher == Eigener; }
};

/// The texts in which what is delivered in `vorlage` differs from what the class folder has and
/// from what was delivered before. Files that one side lacks, or whose records do not match in
/// number and fields, are left out. Both stand in their program folders. Fails with access-denied
/// where a file cannot be read.
std::vector<Modultext> NeueModultexte(const Arbeitsverzeichnis& klasse,
                                      const Arbeitsverzeichnis& vorlage);

/// Puts new texts in the place of own ones, and all that was delivered newly into the standard
/// copies, so that it is not offered again. `klasse` may be watched: it is one unit. Fails as
/// writeWholeFile does.
void ModultexteUebernehmen(const Arbeitsverzeichnis& klasse, const Arbeitsverzeichnis& vorlage,
                           const std::vector<Modultext>& gewaehlt);

/// Whether a file of the folder Daten, in which `daten` stands, differs from its standard copy, or
/// has none.
bool IstEigeneDatei(const Arbeitsverzeichnis& daten, TextView name);

} // namespace zeugnis
