#pragma once

#include "controls/control.h"
#include "files/section_stores.h"
#include "platform/table.h"
#include "years12/module_files.h"

#include <algorithm>
#include <array>

/// What the eight areas of the report hold. These tables drive the inscriptions, the choosing, the
/// composing, the marking and the clearing of all pages.
namespace zeugnis::jahrgang12 {

namespace farben {
inline constexpr int Markiert = 5;
inline constexpr int AndereSeite = 6;
inline constexpr int Neutral = 8;
inline constexpr int Rot = 9;
inline constexpr int Verlassen = 10;
} // namespace farben

inline constexpr std::array<Farbwert, 11> Farbtafel =
    std::to_array<Farbwert>({0xC0FFC0, 0xC0E0FF, 0x00FFFF, 0xFFFFC0, 0xC0FFFF, 0x80FF80, 0xC0C0C0,
                             0xFFC0FF, 0xFFFFFF, 0x0000FF, 0x8080FF});

constexpr Farbwert farbe(int eintrag) { return Farbtafel.at(static_cast<size_t>(eintrag)); }

/// An area of the report and its page.
struct Bereich {
    TextView Name;
    TextView Knopf;
    TextView Hinweis;
    int Farbe;
    int ErstesFeld; ///< the page shows the texts of its whole subject, from this area on
    int LetztesFeld;
    bool Getrimmt; ///< the text loses its outer blanks before it is expanded
};

inline constexpr int Bereichszahl = Abschnitte12;
inline constexpr int SeiteInteressen = 0;
inline constexpr int SeiteBemerkungen = Bereichszahl - 1;

inline constexpr std::array<Bereich, Bereichszahl> Bereiche = std::to_array<Bereich>({
    {u"Interessen, Fähigkeiten, Fertigkeiten", u"Interessen",
     u"Eintragungen für Interessen, Fähigkeiten und Fertigkeiten", 0, 0, 0, false},
    {Kompetenzbereiche[0], u"Deutsch Sprechen Zuhören",
     u"Eintragungen zu den Kompetenzen Sprechen und Zuhören", 1, 1, 3, false},
    {Kompetenzbereiche[1], u"Deutsch Lesen Texte",
     u"Eintragungen zu den Kompetenzen Lesen und mit Texten umgehen", 2, 1, 3, true},
    {Kompetenzbereiche[2], u"Deutsch Schreiben Texte",
     u"Eintragungen zu den Kompetenzen Schreiben und Texte verfassen", 3, 1, 3, false},
    {Kompetenzbereiche[3], u"Mathe Zahlen Operationen",
     u"Eintragungen zu den Kompetenzen  Zahlen und Operationen", 4, 4, 6, false},
    {Kompetenzbereiche[4], u"Mathe Größen Messen",
     u"Eintragungen zu den Kompetenzen Größen und Messen", 1, 4, 6, false},
    {Kompetenzbereiche[5], u"Mathe Raum Form", u"Eintragungen zu den Kompetenzen Raum und Form", 2,
     4, 6, false},
    {u"Bemerkungen", u"Bemerkungen", u"Eintragungen für die Zeugnisbemerkungen", 7, 7, 7, false},
});

constexpr const Bereich& bereich(int nummer) { return Bereiche.at(static_cast<size_t>(nummer)); }

template <typename T>
using Bereichstabelle = Tabelle<T, Bereichszahl>;

/// A group of options that exclude each other. It feeds one part text: `Vor`, the inscription of
/// its opening label and a blank, the inscription of the chosen button, `Nach`.
struct Gruppe {
    TextView Name; ///< of the array of options
    int Seite;
    int ErsterKnopf;
    int LetzterKnopf;
    Datei Quelle; ///< of the buttons' inscriptions: the first button shows row 0
    int Spalte;
    int Oeffnung; ///< number of the opening label, which is marked with the choice; 0 for none
    TextView Vor;
    TextView Nach;
    TextView Fuge; ///< what the composer puts behind a part text that is not empty
};

/// By page, and there in the order in which the text is composed.
inline constexpr auto Gruppen = std::to_array<Gruppe>({
    {u"Option1", 0, 0, 15, Datei::Interessen, 1, 0, u"", u"", u""},
    {u"Option2", 1, 0, 3, Datei::Sprechen, 1, 0, u"", u"", u". "},
    {u"Option3", 1, 0, 3, Datei::Sprechen, 2, 0, u"", u"", u". "},
    {u"Option44", 1, 0, 3, Datei::Sprechen, 3, 0, u"", u"", u"."},
    {u"Option4", 2, 0, 6, Datei::Lesen, 1, 0, u"", u"", u" "},
    {u"Option5", 2, 0, 6, Datei::Lesen, 2, 0, u"", u"", u" "},
    {u"Option6", 2, 0, 6, Datei::Lesen, 3, 0, u"", u".", u" "},
    {u"Option7", 2, 0, 3, Datei::Lesen, 4, 0, u"", u"", u" "},
    {u"Option8", 2, 0, 3, Datei::Lesen, 5, 0, u"", u".", u" "},
    {u"Option45", 2, 0, 3, Datei::Lesen, 6, 0, u"", u".", u""},
    {u"Option9", 3, 0, 3, Datei::Schreiben, 1, 0, u"", u" ", u""},
    {u"Option10", 3, 0, 3, Datei::Schreiben, 2, 0, u"", u" ", u""},
    {u"Option11", 3, 0, 3, Datei::Schreiben, 3, 9, u"", u". ", u""},
    {u"Option12", 3, 0, 3, Datei::Schreiben, 4, 4, u"", u". ", u""},
    {u"Option13", 3, 0, 5, Datei::Schreiben, 5, 8, u"", u".", u""},
    {u"Option24", 3, 0, 5, Datei::Schreiben, 6, 10, u" ", u".", u""},
    {u"Option14", 4, 0, 4, Datei::Mathe, 1, 11, u"", u". ", u""},
    {u"Option35", 4, 0, 1, Datei::Mathe, 7, 12, u"", u"", u""},
    {u"Option15", 4, 0, 4, Datei::Mathe, 2, 12, u"", u".", u""},
    {u"Option16", 4, 0, 5, Datei::Mathe, 3, 13, u" ", u".", u""},
    {u"Option20", 4, 0, 3, Datei::Mathe, 4, 14, u" ", u".", u""},
    {u"Option28", 4, 1, 1, Datei::Mathe, 5, 0, u" ", u".", u""},
    {u"Option25", 4, 0, 4, Datei::Mathe, 6, 15, u" ", u".", u""},
    {u"Option17", 5, 0, 2, Datei::Mathe, 8, 17, u"", u". ", u""},
    {u"Option18", 5, 0, 2, Datei::Mathe, 9, 18, u"", u". ", u""},
    {u"Option19", 5, 0, 2, Datei::Mathe, 10, 19, u"", u". ", u""},
    {u"Option26", 5, 0, 2, Datei::Mathe, 11, 20, u"", u". ", u""},
    {u"Option27", 5, 0, 3, Datei::Mathe, 12, 21, u"", u".", u""},
    {u"Option29", 6, 0, 2, Datei::Mathe, 13, 22, u"", u". ", u""},
    {u"Option30", 6, 0, 2, Datei::Mathe, 14, 23, u"", u". ", u""},
    {u"Option31", 6, 0, 2, Datei::Mathe, 15, 24, u"", u". ", u""},
    {u"Option32", 6, 0, 3, Datei::Mathe, 16, 25, u"", u". ", u""},
    {u"Option33", 6, 0, 3, Datei::Mathe, 17, 26, u"", u". ", u""},
    {u"Option34", 6, 0, 3, Datei::Mathe, 18, 27, u"", u". ", u""},
    {u"Option23", 7, 0, 7, Datei::Bemerkungen, 3, 0, u"", u".", u""},
    {u"Option21", 7, 0, 3, Datei::Versetzung, 1, 0, u"", u".", u""},
});
inline constexpr int Gruppenzahl = static_cast<int>(Gruppen.size());

template <typename T>
using Gruppentabelle = Tabelle<T, Gruppenzahl>;

constexpr const Gruppe& gruppe(int nummer) { return Gruppen.at(static_cast<size_t>(nummer)); }

/// The number of a group in the tables. A name that does not exist does not compile.
consteval int gruppeNamens(TextView name) {
    const auto* found = std::find_if(Gruppen.begin(), Gruppen.end(),
                                     [name](const Gruppe& eine) { return eine.Name == name; });
    return found == Gruppen.end() ? throw "no such group"
                                  : static_cast<int>(found - Gruppen.begin());
}

/// A label on a page. Those that open a group show a row of Zwischentexte.Txt.
struct Seitenlabel {
    int Nummer;
    int Seite;
    int ZeileJahr1; ///< -1 for none
    int ZeileJahr2;
};

inline constexpr auto Seitenlabels = std::to_array<Seitenlabel>({
    {3, 0, -1, -1},  {16, 0, -1, -1}, {28, 0, -1, -1}, {9, 3, 0, 0},    {4, 3, 1, 1},
    {8, 3, 2, 2},    {10, 3, 21, 21}, {11, 4, 3, 3},   {12, 4, 20, 4},  {13, 4, 5, 5},
    {14, 4, 6, 6},   {15, 4, 7, 7},   {17, 5, 8, 8},   {18, 5, 9, 9},   {19, 5, 10, 10},
    {20, 5, 11, 11}, {21, 5, 12, 12}, {22, 6, 13, 13}, {23, 6, 14, 14}, {24, 6, 15, 15},
    {25, 6, 16, 16}, {26, 6, 17, 17}, {27, 6, 18, 18}, {5, 7, 19, 19},  {6, 7, -1, -1},
});
inline constexpr int HoechstesLabel = 28;
inline constexpr int LabelFaecher = 5; ///< opens the list of subjects

/// What loses its dot when another child is chosen: of each group the button at the choice of a
/// group, nearly always its own. One group is missing, and two come twice; that is how it is.
struct Abwahlschritt {
    int Gruppe;
    int WahlVon;
};

consteval Abwahlschritt abwahl(TextView name, TextView wahlVon = {}) {
    return {gruppeNamens(name), gruppeNamens(wahlVon.empty() ? name : wahlVon)};
}

inline constexpr std::array Abwahlschritte = {
    abwahl(u"Option1"),
    abwahl(u"Option2"),
    abwahl(u"Option3"),
    abwahl(u"Option44"),
    abwahl(u"Option4"),
    abwahl(u"Option5"),
    abwahl(u"Option6"),
    abwahl(u"Option7"),
    abwahl(u"Option8"),
    abwahl(u"Option45"),
    abwahl(u"Option9"),
    abwahl(u"Option10"),
    abwahl(u"Option11"),
    abwahl(u"Option12"),
    abwahl(u"Option13"),
    abwahl(u"Option24"),
    abwahl(u"Option14"),
    abwahl(u"Option35"),
    abwahl(u"Option15"),
    abwahl(u"Option16"),
    abwahl(u"Option20"),
    abwahl(u"Option14"),
    abwahl(u"Option28"),
    abwahl(u"Option25"),
    abwahl(u"Option17"),
    abwahl(u"Option18"),
    abwahl(u"Option19"),
    abwahl(u"Option26"),
    abwahl(u"Option26", u"Option29"),
    abwahl(u"Option29"),
    abwahl(u"Option30"),
    abwahl(u"Option31"),
    abwahl(u"Option32"),
    abwahl(u"Option33"),
    abwahl(u"Option34"),
    abwahl(u"Option23"),
    abwahl(u"Option21"),
};

} // namespace zeugnis::jahrgang12
