#pragma once

#include "platform/working_directory.h"

#include <vector>

namespace zeugnis {

/// The school's working groups: AGListe.txt in the working directory, one text per record. Empty
/// texts are skipped in both directions.
std::vector<Text> AGListeLesen(const Arbeitsverzeichnis& verzeichnis);

/// Writes the first 25 entries; what stands behind them is lost.
void AGListeSchreiben(const Arbeitsverzeichnis& verzeichnis, const std::vector<Text>& eintraege);

} // namespace zeugnis
