#pragma once

#include "documents/content/report_checks.h"

/// What the teacher has said about the findings. Format: docs/formats/report-marks.md.
namespace zeugnis::dokumente {

/// Both files lie in the program folder; a missing one is empty. Reading fails as the record
/// reader does, writing as writeWholeFile does.
std::set<Text> GeseheneLesen(const Arbeitsverzeichnis& verzeichnis);
void AlsGesehenMerken(const Arbeitsverzeichnis& verzeichnis, const Befund& befund);
std::set<Text> GelernteLesen(const Arbeitsverzeichnis& verzeichnis);
void WoerterLernen(const Arbeitsverzeichnis& verzeichnis, const std::vector<Text>& woerter);

/// The findings of the class as it stands on disk, without those that have been seen. The mark of a
/// finding holds only as long as the text that it is about.
std::vector<Befund> OffeneBefunde(Arbeitsverzeichnis& verzeichnis);
/// The same with a dictionary that has been loaded; null: spelling is not checked.
std::vector<Befund> OffeneBefunde(Arbeitsverzeichnis& verzeichnis, const Zeugnisdaten& daten,
                                  const Rechtschreibung* woerterbuch);

} // namespace zeugnis::dokumente
