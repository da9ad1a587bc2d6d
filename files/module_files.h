#pragma once

#include "files/module_table.h"
#include "platform/working_directory.h"

/// The files of text modules of the year groups. A record is a running number and one text per
/// column; the entry screens and the editors read the same files, each as far as it says here.
namespace zeugnis {

struct Moduldatei {
    TextView Stamm;
    int Spalten;             ///< texts of a record, behind its running number
    int Zeilen;              ///< rows that there is room for; a record behind them fails
    int Geschrieben;         ///< rows that a save of the editor writes; 0 if it never writes them
    bool JeJahrgang = false; ///< the year's digit stands behind the stem
    int NurJahrgang = 0;     ///< the year that alone reads and writes the file; 0 for all
    int ZeilenImEditor = Zeilen;
};

namespace moduldateien {

inline constexpr Moduldatei Interessen12{
    .Stamm = u"Interessen12", .Spalten = 1, .Zeilen = 19, .Geschrieben = 16, .ZeilenImEditor = 21};
inline constexpr Moduldatei Sprechen{u"Sprechen", 3, 11, 4, true};
inline constexpr Moduldatei Lesen{u"Lesen", 6, 11, 7, true};
inline constexpr Moduldatei Schreiben{u"Schreiben", 6, 11, 6, true};
inline constexpr Moduldatei Mathe{u"Mathe", 18, 11, 6, true};
inline constexpr Moduldatei Bemerkungen12{u"Bemerkungen", 3, 11, 8, true};
inline constexpr Moduldatei Versetzung12{u"Versetzung", 1, 11, 4, true};
inline constexpr Moduldatei Zwischentexte{u"Zwischentexte", 1, 26, 0};

/// The badges. Years 3 and 4 have more room for them, and no editor shows them.
inline constexpr Moduldatei Sport12{u"Sportusw", 1, 11, 0};
inline constexpr Moduldatei Sport34{u"Sportusw", 1, 16, 0};

inline constexpr Moduldatei Foerder34{u"Förder34", 1, 9, 8};
inline constexpr Moduldatei Interessen34{u"Interessen34", 1, 16, 14};
inline constexpr Moduldatei Zensurabweichung{u"Zensurabweichung", 1, 8, 6};
inline constexpr Moduldatei Bemerkungen34{u"Bemerkungen34", 4, 9, 5};
inline constexpr Moduldatei Versetzung3{
    .Stamm = u"Versetzung3", .Spalten = 2, .Zeilen = 5, .Geschrieben = 5, .NurJahrgang = 3};
inline constexpr Moduldatei Versetzung4{
    .Stamm = u"Versetzung4", .Spalten = 2, .Zeilen = 5, .Geschrieben = 5, .NurJahrgang = 4};
inline constexpr Moduldatei AG{u"AG", 1, 3, 2};

} // namespace moduldateien

/// "Mathe2.Txt", or "AG.Txt" for a file that all years share.
Text Modulname(const Moduldatei& datei, TextView jahrgang);

/// "TexteAVStandard.txt" for "TexteAV.txt"
Text Standardname(TextView datei);

/// Reads a module file of the working directory into the rows 0 to `zeilen` - 1 of a table. Fails
/// with index-out-of-range where it has no row for a record.
void ModuldateiLesen(const Arbeitsverzeichnis& verzeichnis, TextView name, const Moduldatei& datei,
                     int zeilen, Bausteintabelle& tabelle);

/// Writes the rows that belong to the file, numbered from 1.
void ModuldateiSchreiben(const Arbeitsverzeichnis& verzeichnis, TextView name,
                         const Moduldatei& datei, const Bausteintabelle& tabelle);

} // namespace zeugnis
