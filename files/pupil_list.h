#pragma once

#include "platform/record_writer.h"
#include "platform/table.h"

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

/// A record of Namen.Txt is a number, the class and the texts of a pupil in this order.
inline constexpr size_t Namensfelder = 9;
std::array<Text*, Namensfelder> FelderVon(Schueler& kind);
std::array<const Text*, Namensfelder> FelderVon(const Schueler& kind);

/// Reads Namen.Txt in the folder Daten. A 37th record, or a record behind a number outside 0 to
/// 35, fails with index-out-of-range.
Namensliste NamenLaden(Arbeitsverzeichnis& verzeichnis);

/// The same into a list that is there: slots that no record goes to keep what they hold.
/// `jeNummer` is called with the number of each record.
void NamenEinlesen(Arbeitsverzeichnis& verzeichnis, Namensliste& liste,
                   const std::function<void(int)>& jeNummer = {});

/// The class of the last record of Namen.Txt in the working directory. Takes any number of records
/// and anything for their numbers.
Text KlasseLesen(const Arbeitsverzeichnis& verzeichnis);

/// Adds one record of Namen.Txt.
void NamenssatzSchreiben(RecordWriter& writer, int nummer, const Text& klasse,
                         const Schueler& kind);

/// The stem of the pupil's picture file: names and the digits of the birth date, by position.
Text BildnameVon(const Schueler& kind);

} // namespace zeugnis
