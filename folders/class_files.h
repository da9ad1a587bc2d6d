#pragma once

#include "files/pupil_list.h"
#include "files/school_data.h"

#include <filesystem>

/// Which files of an installation belong to a class, and how those of a class without texts look.
namespace zeugnis {

/// A name from the class folder, with "/".
bool GehoertDerKlasse(const std::filesystem::path& name);

/// Writes all files of a class without any text: school data, class list, stores and picture list;
/// a list without pupils becomes one blank pupil, as the start page needs one. `verzeichnis`
/// stands in the class folder, which has the folder Daten. Fails as writing does.
void KlassendateienSchreiben(Arbeitsverzeichnis& verzeichnis, const Schuldaten& schule,
                             const Namensliste& liste,
                             const std::vector<Text>& arbeitsgemeinschaften);

/// Why there can be no such class, as a sentence; empty if there can.
Text HindernisFuer(const Text& klasse, const Schuldaten& schule);

/// As the master data save them: the next school year is filled in, and year 1 has no report in the
/// first half-year. To be asked only where nothing hinders. Signs that the files cannot hold take
/// their nearest form.
Schuldaten SchuldatenFuer(const Text& klasse, Schuldaten schule);

/// A text for a field of a file.
Text FeldText(TextView text);

} // namespace zeugnis
