#pragma once

#include "documents/content/school_report.h"

#include <filesystem>
#include <stop_token>

/// The reports of the class as files: all, one each, or one to try a layout with.
namespace zeugnis::dokumente {

/// As ZeugnisdatenLesen, with the picture that the layout names.
Zeugnisdaten ZeugnisdatenMitBild(Arbeitsverzeichnis& verzeichnis, const OffeneTexte& offen = {});

/// Writes the report of a child with this layout into the folder and returns the .pdf. It is that
/// of the first child, or of one that is not moved up, so that the sentence for it shows.
std::filesystem::path ProbezeugnisSchreiben(Arbeitsverzeichnis& verzeichnis,
                                            const Zeugnisaufbau& aufbau,
                                            const std::filesystem::path& ordner);

/// The files of the folder Bild that can stand in the head: none of a child.
std::vector<Text> Kopfbilder(Arbeitsverzeichnis& verzeichnis);

/// A .pdf for each child and one of all, in a folder with the name of the class document, for
/// example "3aZeugnisse32". Former ones are overwritten. Returns the folder. Fails as the readers
/// and writers do, and with invalid-call if it is told to stop.
std::filesystem::path EinzelneZeugnisseSchreiben(Arbeitsverzeichnis& verzeichnis,
                                                 const std::stop_token& abbruch = {});

} // namespace zeugnis::dokumente
