#pragma once

#include "comfort/entry_access.h"

namespace zeugnis {

class Control;

enum class Richtung { Zurueck = -1, Vor = 1 };

/// A report by keyboard: what a few keys do on an entry screen. Each step is what a hand could do;
/// it returns false, and nothing happens, where it could not.
///
/// In the year groups one group of options or boxes of the page is the current one; digits choose
/// in it. Work and social behaviour has its category for that.
class Eingabefluss {
  public:
    explicit Eingabefluss(Eingabeschirm schirm) : m_schirm(std::move(schirm)) {}

    /// The next category or group; behind the last one the next section or page.
    bool Weiter(Richtung richtung);
    bool SeiteWechseln(Richtung richtung);
    /// Chooses the line of that number, from 1; in a group of more than nine, 0 is the tenth. Lines
    /// of a category have their own numbers, from 0. After an option of a year group the next group
    /// is the current one.
    bool Ziffer(int ziffer);
    bool KindWechseln(Richtung richtung);
    /// The next child, from the current one on and around, that lacks a text, on the first page
    /// that is empty. False if none lacks any.
    bool KindOhneText();

    /// To a child and a page, from wherever the screen is.
    bool Hinfuehren(int kind, int seite);

    /// What the group begins with; null in work and social behaviour, or with no page open.
    [[nodiscard]] const Control* Stelle();
    /// The keyboard has come to this control: its group is the current one.
    void StelleMerken(const Control& control);

  private:
    using Gruppe = std::vector<Control*>;
    [[nodiscard]] std::vector<Gruppe> gruppen() const;
    void seiteFolgen();
    bool kategorieWechseln(Richtung richtung);
    bool seiteOeffnen(int seite);

    Eingabeschirm m_schirm;
    int m_gruppe = 0;
    int m_seite = -1; ///< the page that m_gruppe is of
};

} // namespace zeugnis
