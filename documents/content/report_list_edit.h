#pragma once

#include "documents/content/report_list.h"

#include <variant>

/// Changes to the list, as they are typed or pasted.
namespace zeugnis::dokumente {

struct Zelltext {
    int Platz = 0;
    int Spalte = 0;
    Text Inhalt;
};

struct Zellwert {
    int Platz = 0;
    int Spalte = 0;
    int Wert = LeereZelle;

    friend bool operator==(const Zellwert&, const Zellwert&) = default;
};

/// Why a change is not possible, and the first cell that stands in its way.
struct Ablehnung {
    int Platz = 0;
    int Spalte = 0;
    Text Satz;
};

/// The cells that change, without those that hold the value already; or why all of them are
/// refused. Cells outside the list are refused too.
std::variant<std::vector<Zellwert>, Ablehnung>
AenderungBilden(const Stammdaten& daten, const Schuelertabelle<Eintrag>& eintraege,
                const std::vector<Zelltext>& zellen);

/// Tab-separated lines to cells from a corner on. A single text fills `breite` by `hoehe` cells.
std::vector<Zelltext> ZellenAusText(const Text& text, const Zelltext& ecke, int hoehe, int breite);

} // namespace zeugnis::dokumente
