#pragma once

#include "files/file_catalogue.h"
#include "platform/record_reader.h"

#include <span>
#include <vector>

/// The files of the insertion window: the placeholders, the phrases, and whom the window serves.
namespace zeugnis {

/// A record of Platzhalter.txt, behind its running number. Row 0 is the head of the list.
struct Platzhaltersatz {
    Text Platzhalter; ///< "<Vorname>"
    Text Hinweis;
};
Platzhaltersatz PlatzhaltersatzLesen(RecordReader& reader);

/// Phrases: one text per record, in a file of the working directory.
std::vector<Text> EinfuegetexteLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei);
void EinfuegetexteSchreiben(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                            std::span<const Text> texte);

/// The main button of the start page that was pressed last. Reading works in the folder Daten,
/// writing from the program folder.
int AktivFormLesen(const Arbeitsverzeichnis& verzeichnis);
void AktivFormSchreiben(const Arbeitsverzeichnis& verzeichnis, int taste);

} // namespace zeugnis
