#pragma once

#include "behaviour/avsv_composition.h"
#include "files/pupil_list.h"

namespace zeugnis {

/// What is kept per pupil of one section.
struct Abschnittsspeicher {
    Schuelertabelle<Text> Texte;
    Schuelertabelle<int> Gesperrt; ///< 0 or 1
    Schuelertabelle<Zeilenwahl> Wahl;
};

/// The work done on both sections, in memory as in AVSVspeicher.txt and AVSVWahl.txt.
struct AVSVSpeicher {
    Abschnittsspeicher AV;
    Abschnittsspeicher SV;

    Abschnittsspeicher& von(Abschnitt abschnitt) { return abschnitt == Abschnitt::AV ? AV : SV; }
    [[nodiscard]] const Abschnittsspeicher& von(Abschnitt abschnitt) const {
        return abschnitt == Abschnitt::AV ? AV : SV;
    }
};

/// Reads both files into `speicher`. Returns false at the first record whose family name is not
/// the class list's; that record has been read, the rest has not. Fails with index-out-of-range
/// for numbers outside the slots.
bool SpeicherLaden(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                   AVSVSpeicher& speicher);

/// Writes both files with empty records for the class list.
void SpeicherNeuAnlegen(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste);

/// Writes both files, then copies them to Sicherheit under the date `heute` (dd.mm.yyyy).
void SpeicherSchreiben(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste,
                       const AVSVSpeicher& speicher, const Text& heute);

} // namespace zeugnis
