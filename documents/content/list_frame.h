#pragma once

#include "documents/content/class_data.h"
#include "documents/model/document.h"

/// What the lists and forms of a class have in common.
namespace zeugnis::dokumente {

/// The master data for a list. Fails as StammdatenLesen does, and with invalid-call if there is no
/// child with a name.
Stammdaten ListendatenLesen(Arbeitsverzeichnis& verzeichnis);

/// The name of a list with its class: "Klassenliste der Klasse 3a".
Text Klassentitel(TextView art, const Text& klasse);

/// "Schuljahr 2025/26, 1. Halbjahr".
Text Zeitraum(const Stammdaten& stamm);

/// Title, school and school year.
std::vector<Block> Listenkopf(const Stammdaten& stamm, const Text& titel);

/// A cell with one paragraph.
Cell Zelle(StyleId stil, Text text);

/// A document of one section, which bears the title in its footer.
Document Einzelliste(Text titel, std::vector<Block> bloecke);

/// Empty lines to write on.
Table Schreiblinien(int anzahl);

} // namespace zeugnis::dokumente
