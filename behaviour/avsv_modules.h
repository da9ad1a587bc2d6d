#pragma once

#include "files/section_stores.h"
#include "platform/table.h"
#include "platform/working_directory.h"

#include <array>

namespace zeugnis {

/// The two sections of the report that this room writes. The number is the one that the screens
/// keep as their state.
enum class Abschnitt { Keiner = 0, AV = 1, SV = 2 };

inline constexpr std::array Abschnitte = {Abschnitt::AV, Abschnitt::SV};

inline constexpr int Zeilenplaetze = 11; ///< lines 0 to 9 are used; line 0 stands for no choice

template <typename T>
using Kategorietabelle = Tabelle<T, KategorienHoechstens>;

/// Lines by category and number.
using Zeilentabelle = Kategorietabelle<Tabelle<Text, Zeilenplaetze>>;

/// The modules of one section.
struct Bausteine {
    Zeilentabelle Zeilen;
    Tabelle<Text, Zeilenplaetze> Kategorienamen;
    /// Colour numbers of the lines 1 to 9 (here 0 to 8), each list by category. 0 to 4 are chosen
    /// in the editor; more is possible in a file.
    Tabelle<Tabelle<int, Zeilenplaetze>, 9> Zeilenfarben;
};

int KategorienVon(Abschnitt abschnitt);

/// Read the two module files of a section in the folder Daten. Outer blanks of the lines go, but
/// those of the last SV category stay. Fail with index-out-of-range behind record number 10.
Bausteine TexteLadenAV(Arbeitsverzeichnis& verzeichnis);
Bausteine TexteLadenSV(Arbeitsverzeichnis& verzeichnis);

/// The two module files of a section, seen from the folder Daten.
struct Formulierungsdateien {
    TextView Kategorien;
    TextView Texte;
};

/// Read a section as the editor needs it: as it stands, with all blanks. Fail as above.
Bausteine FormulierungenLadenAV(Arbeitsverzeichnis& verzeichnis, const Formulierungsdateien& namen);
Bausteine FormulierungenLadenSV(Arbeitsverzeichnis& verzeichnis, const Formulierungsdateien& namen);

/// Writes the four files anew: seven and six categories, ten lines each.
void FormulierungenSchreiben(Arbeitsverzeichnis& verzeichnis, const Bausteine& av,
                             const Bausteine& sv);

} // namespace zeugnis
