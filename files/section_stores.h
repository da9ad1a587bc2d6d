#pragma once

#include "files/file_catalogue.h"

#include <array>

/// How the records of the six stores by pupil go on behind number, class and names. Whoever reads,
/// writes or blanks a store, or shows or prints its texts, goes by these numbers.
namespace zeugnis {

/// Work and social behaviour: the categories of which one line each is chosen.
inline constexpr int KategorienAV = 7;
inline constexpr int KategorienSV = 6;
inline constexpr int KategorienHoechstens = KategorienAV;
static_assert(KategorienSV <= KategorienHoechstens);

inline constexpr int AbschnitteAVSV = 2; ///< AV, SV
inline constexpr int Abschnitte12 = 8;   ///< interests, six areas of competence, remarks
inline constexpr int Abschnitte34 = 3;   ///< support and working groups, interests, remarks

/// What parents and teachers call the areas of competence: the sections 1 to 6 of years 1 and 2.
inline constexpr int ErsterKompetenzbereich = 1;
inline constexpr auto Kompetenzbereiche = std::to_array<TextView>({
    u"Sprechen und Zuhören",
    u"Lesen und mit Texten umgehen",
    u"Schreiben, Texte verfassen",
    u"Zahlen und Operationen",
    u"Größen und Messen",
    u"Raum und Form",
});
static_assert(Kompetenzbereiche.size() + 2 == Abschnitte12);

/// A lock is 1 where a text stands and its page takes no choices, 0 where it does. What else a file
/// may hold shows and hides nothing.
constexpr bool IstSperre(int wert) { return wert == 0 || wert == 1; }

struct Speicherdatei {
    TextView Datei;
    TextView Kopie; ///< stem of the copies in Sicherheit, in front of the date
    int Texte = 0;  ///< fields behind the names: texts, one per section,
    int Zahlen = 0; ///< then integers: a lock per section, then a line per category
};

namespace speicherdateien {

inline constexpr Speicherdatei AVSVTexte{
    .Datei = dateien::AVSVspeicher, .Kopie = u"AVSVspeicher", .Texte = AbschnitteAVSV};
inline constexpr Speicherdatei AVSVWahl{.Datei = dateien::AVSVWahl,
                                        .Kopie = u"AVSVWahl",
                                        .Zahlen = AbschnitteAVSV + KategorienAV + KategorienSV};
inline constexpr Speicherdatei Texte12{
    .Datei = dateien::Speicher12, .Kopie = u"12Speicher", .Texte = Abschnitte12};
/// The copy keeps its extension in front of the date.
inline constexpr Speicherdatei Sperren12{
    .Datei = dateien::Sperre12, .Kopie = u"12Sperre.txt", .Zahlen = Abschnitte12};
inline constexpr Speicherdatei Texte34{
    .Datei = dateien::Speicher34, .Kopie = u"34Speicher", .Texte = Abschnitte34};
inline constexpr Speicherdatei Sperren34{
    .Datei = dateien::Sperre34, .Kopie = u"34Sperre", .Zahlen = Abschnitte34};

/// In the order in which they are blanked.
inline constexpr std::array Alle = {AVSVTexte, AVSVWahl, Texte12, Sperren12, Texte34, Sperren34};

} // namespace speicherdateien
} // namespace zeugnis
