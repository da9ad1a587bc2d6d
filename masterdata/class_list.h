#pragma once

#include "files/pupil_list.h"

#include <vector>

namespace zeugnis {

/// As many pupils as a teacher may enter. The tables reach further, and so do the files.
inline constexpr int SchuelerHoechstens = 33;

/// The class list while it is edited, with what belongs to each place besides the pupil.
struct Klassenliste : Namensliste {
    /// Both are used from 1. A place that has never had a number carries 0.
    Schuelertabelle<int> Nummer;
    Schuelertabelle<Text> NummerText; ///< "01", "02" and so on
    /// By place, from 0: neither deleting nor sorting moves them.
    Schuelertabelle<Text> BildDatei;

    /// Reads Namen.Txt; places that no record goes to keep what they hold. Fails as the reading of
    /// the list does, and with index-out-of-range for any number outside 0 to 35: a list of 36 is
    /// one too long.
    void NamenLaden(Arbeitsverzeichnis& verzeichnis);

    void NummernBilden();

    /// Closes the gap at a place. Fails with index-out-of-range if the list has 35 pupils.
    void SchuelerEntfernen(int stelle);

    /// Makes room for one more, with empty fields. Returns false if there are too many now; the
    /// list is longer by one all the same, and the new place has no number.
    bool SchuelerAnfuegen();

    void BildnamenBilden();

    /// These write in the working directory. A list of 36 fails with index-out-of-range and leaves
    /// Namen.Txt with the records in front of the last.
    void NamenSchreiben(const Arbeitsverzeichnis& verzeichnis) const;
    void BildlisteSchreiben(const Arbeitsverzeichnis& verzeichnis) const;

    /// Writes Namen.Txt with one record without names; the list in memory stays as it is.
    void LeereListeSchreiben(Arbeitsverzeichnis& verzeichnis) const;

    /// Writes the lines to Namen1.txt as they stand, reads the pupils back from there and writes
    /// them to Namen.Txt, numbered from 1.
    void OrdnungUebernehmen(Arbeitsverzeichnis& verzeichnis, const std::vector<Text>& zeilen);
};

/// The line by which a pupil is sorted: the nine texts in quotes, without any escaping.
Text Sortierzeile(const Schueler& kind);

} // namespace zeugnis
