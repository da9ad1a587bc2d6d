#pragma once

#include "files/pupil_list.h"
#include "files/section_stores.h"

namespace zeugnis::jahrgang34 {

/// The pages of the entry screen, which are also the sections that are stored.
inline constexpr int SeiteFoerder = 0;
inline constexpr int SeiteInteressen = 1;
inline constexpr int SeiteBemerkungen = 2;
inline constexpr int Seitenzahl = Abschnitte34;

template <typename T>
using Seitentabelle = Tabelle<T, Seitenzahl>;

/// The work done on the whole class, by page, in memory as in 34Speicher.txt and 34Sperre.txt.
struct Speicher34 {
    Seitentabelle<Schuelertabelle<Text>> Texte;
    /// 1: the text stands, and the page takes no choices. 0: it does.
    Seitentabelle<Schuelertabelle<int>> Sperren;
};

/// Reads both files in the folder Daten. Records belong to the pupils by their place alone. A 37th
/// record fails with index-out-of-range.
Speicher34 TexteEinlesen(Arbeitsverzeichnis& verzeichnis);

/// Locks what has a text, writes both files, then copies them to Sicherheit under the date `heute`
/// (dd.mm.yyyy).
void TexteSpeichern(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste, Speicher34& speicher,
                    const Text& heute);

} // namespace zeugnis::jahrgang34
