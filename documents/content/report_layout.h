#pragma once

#include "files/report_columns.h"
#include "platform/working_directory.h"

namespace zeugnis::dokumente {

/// What each school decides for itself about the report. Format: docs/formats/report-layout.md.
struct Zeugnisaufbau {
    enum class Verhalten { Spaeter, Zuerst };
    enum class Religionsfach { Beide, Religion, WerteUndNormen };
    enum class Kenntnisnahme { DatumUndUnterschrift, Unterschrift, Keine };

    Verhalten Reihenfolge = Verhalten::Spaeter; ///< of work and social behaviour
    Religionsfach Religion = Religionsfach::Beide;
    Kenntnisnahme Eltern = Kenntnisnahme::DatumUndUnterschrift;
    bool Namen = true; ///< below the signature lines
    Text Schulleitung; ///< the head's name
    Text Kopfbild;     ///< a file of the folder Bild; empty for none
    Text Unterricht;   ///< when lessons begin after the holidays, a sentence
    Text Rechtsbehelf; ///< a sentence for a child that is not moved up

    friend bool operator==(const Zeugnisaufbau&, const Zeugnisaufbau&) = default;
};

inline constexpr TextView Aufbaudatei = u"Zeugnisaufbau.txt";

/// From the program folder. Without the file all is as above. What the file does not name, or
/// names with an unknown value, is as above too. Fails as the record reader does.
Zeugnisaufbau ZeugnisaufbauLesen(const Arbeitsverzeichnis& verzeichnis);

/// Fails as writeWholeFile does.
void ZeugnisaufbauSchreiben(const Arbeitsverzeichnis& verzeichnis, const Zeugnisaufbau& aufbau);

/// What a subject is called on the report.
Text Fachname(const Spalte& fach, const Zeugnisaufbau& aufbau);

} // namespace zeugnis::dokumente
