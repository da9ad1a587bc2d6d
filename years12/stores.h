#pragma once

#include "files/pupil_list.h"
#include "years12/competence_areas.h"

namespace zeugnis::jahrgang12 {

/// The work done on the whole class, in memory as in 12Speicher.txt and 12Sperre.txt.
struct Speicher12 {
    Bereichstabelle<Schuelertabelle<Text>> Bereichstext;
    /// 1: the text stands, and the page takes no choices. 0: it does. What else a file holds
    /// shows and hides nothing.
    Bereichstabelle<Schuelertabelle<int>> Sperre;
};

/// Reads both files. Records belong to the children by their place alone. Each area that has a text
/// is locked, as far as 12Sperre.txt reaches. A 37th record fails with index-out-of-range.
void SpeicherLaden(Arbeitsverzeichnis& verzeichnis, Speicher12& speicher);

/// Writes both files, then copies them to Sicherheit under the date `heute` (dd.mm.yyyy).
void SpeicherSchreiben(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                       const Speicher12& speicher, const Text& heute);

} // namespace zeugnis::jahrgang12
