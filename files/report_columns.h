#pragma once

#include "platform/text.h"

#include <array>
#include <span>
#include <variant>

/// What is entered about a child besides the texts: days absent, and in years 3 and 4 the grades.
namespace zeugnis {

/// A cell in which nothing has been entered, in memory as in the file.
inline constexpr int LeereZelle = -1;

struct Spalte {
    TextView Name;    ///< as it is printed on a report and spoken by a screen reader
    TextView Kopf;    ///< the same in two short lines, for a narrow column
    TextView Kuerzel; ///< for the printed list
    int Mindestens;
    int Hoechstens;
};

inline constexpr int SpalteTage = 0;
inline constexpr int SpalteUnentschuldigt = 1;
inline constexpr int ErstesFach = 2;
inline constexpr int Spaltenzahl = 12;
inline constexpr TextView Religionsspalte = u"Religion / Werte und Normen";

/// The columns of a year: only the days in years 1 and 2.
std::span<const Spalte> SpaltenFuer(int jahrgang);
inline constexpr int ErsterJahrgangMitNoten = 3;
inline bool HatNoten(int jahrgang) { return jahrgang >= ErsterJahrgangMitNoten; }

/// "gut" for 2; empty for what is no grade.
TextView Notenwort(int note);
inline constexpr int SchlechtesteNote = 6;

/// What the list is called on the screen and on paper: in years 1 and 2 it holds no grades.
TextView Listenname(int jahrgang);

/// One child's row.
struct Eintrag {
    Eintrag() { Werte.fill(LeereZelle); }

    [[nodiscard]] bool istLeer() const;
    [[nodiscard]] bool hatNoten() const;
    friend bool operator==(const Eintrag&, const Eintrag&) = default;

    std::array<int, Spaltenzahl> Werte;
};

/// The value of a cell, or the sentence why the text cannot stand there.
std::variant<int, Text> ZelleLesen(const Spalte& spalte, TextView text);

/// Why these values cannot stand in one row; empty if they can. Each of them may stand alone.
TextView EintragPruefen(const Eintrag& eintrag);

/// The value as it is typed and shown; empty for an empty cell.
Text Zellentext(int wert);

} // namespace zeugnis
