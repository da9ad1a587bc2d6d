#pragma once

#include "platform/table.h"
#include "platform/working_directory.h"

#include <array>
#include <functional>

namespace zeugnis {

/// All tables by pupil have these slots, 0 to 35. The class limit of 33 is a matter of editing.
inline constexpr int Schuelerplaetze = 36;

template <typename T>
using Schuelertabelle = Tabelle<T, Schuelerplaetze>;

struct Schueler {
    Text Nachname;
    Text Vorname;
    Text Geschlecht;   ///< "m" or "w"; other values are kept as they stand
    Text Geburtsdatum; ///< dd.mm.yyyy by position
    std::array<Text, 4> AG;
    Text Geburtsort;
};

/// The class list. Its order and number are those of all stores by pupil.
struct Namensliste {
    Text Klasse;
    int Schuelerzahl = 0; ///< the last number read
    Schuelertabelle<Schueler> Kinder;
};

/// The nine texts of a pupil, in the order in which the files hold them.
std::array<Text*, 9> FelderVon(Schueler& kind);
std::array<const Text*, 9> FelderVon(const Schueler& kind);

/// Reads Namen.Txt in the folder Daten. A 37th record, or a record behind a number outside 0 to
/// 35, fails with index-out-of-range. `jeNummer` is called with the number of each record.
Namensliste NamenLaden(Arbeitsverzeichnis& verzeichnis,
                       const std::function<void(int)>& jeNummer = {});

/// The stem of the pupil's picture file: names and the digits of the birth date, by position.
Text BildnameVon(const Schueler& kind);

} // namespace zeugnis
