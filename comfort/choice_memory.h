#pragma once

#include "comfort/entry_access.h"
#include "safety/typed.h"

#include <map>

namespace zeugnis {

/// Remembers which lines and boxes the texts of an entry screen are made of. The screen drops them
/// with a change of child or a reset; then they can be clicked again, so that one line can be
/// changed without choosing all of them anew.
class Auswahlgedaechtnis {
  public:
    /// Where choices are stored, it begins with these.
    explicit Auswahlgedaechtnis(Eingabeschirm schirm);

    /// To be called after each action.
    void ansehen();

    /// What the open page's text was made of and what does not count now; the names are those of
    /// GewaehlteZeilen.
    [[nodiscard]] std::vector<Text> Fruehere() const;
    /// The page has been reset and takes choices.
    [[nodiscard]] bool KannWiederholen() const;
    /// Clicks the lines and boxes again that the reset has dropped, as a hand would, but for groups
    /// in which something has been chosen meanwhile.
    bool Wiederholen();

    /// For the next run, told by the field of the file that the text goes to. It does not need the
    /// screen.
    [[nodiscard]] std::vector<safety::Typed> Aufzuheben() const;
    /// Takes what an earlier run has kept of texts that are the same still.
    void Uebernehmen(const std::vector<safety::Typed>& aufgehoben);

  private:
    struct Zettel {
        std::vector<Text> Zeilen;  ///< of the text as it stands
        std::vector<Text> Geleert; ///< those that a reset has dropped
        Text Inhalt;               ///< the text that they belong to
    };
    using Ort = std::pair<int, int>; ///< child and page

    [[nodiscard]] const Zettel* zettel() const;
    [[nodiscard]] Ort ort() const;
    bool waehlen(const Text& zeile);

    Eingabeschirm m_schirm;
    std::string m_datei;
    std::vector<Text> m_namen;
    std::map<Ort, Zettel> m_zettel;
};

/// What Aufzuheben gave for a screen, in Notsicherung; empty if it is not there or not whole.
std::vector<safety::Typed> AuswahlLesen(const std::filesystem::path& programmordner,
                                        const Text& schirm);
/// In the place of what was kept for this screen. Gives 0 or the number of an error.
int AuswahlSchreiben(const std::filesystem::path& programmordner, const Text& schirm,
                     const std::vector<safety::Typed>& alle);

} // namespace zeugnis
