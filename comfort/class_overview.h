#pragma once

#include "comfort/entry_access.h"

#include <functional>
#include <map>

namespace zeugnis {

enum class Seitenstand { Leer, MitText, MitHinweis };

struct Kinderstand {
    Text Name; ///< "Lotte Aßmann"; empty for a blank pupil
    std::vector<Seitenstand> Seiten;

    [[nodiscard]] bool Vollstaendig() const;
    [[nodiscard]] bool HatHinweis() const;
};

/// Who is unfinished, child by child, as it stands in an entry screen. Texts are looked at once and
/// again when they have changed, so it may be asked after each action.
class Klassenuebersicht {
  public:
    /// Whether something is noticed in a text of this child.
    using Pruefung = std::function<bool(const Text& text, const Schueler& kind)>;

    /// Without a check there are no hints.
    explicit Klassenuebersicht(Eingabeschirm schirm, Pruefung pruefung = {})
        : m_schirm(std::move(schirm)), m_pruefung(std::move(pruefung)) {}

    [[nodiscard]] std::vector<Kinderstand> Staende();

    /// "14 von 22 haben beide Texte"
    [[nodiscard]] static Text Satz(const std::vector<Kinderstand>& staende);

  private:
    Seitenstand standVon(int seite, int kind);

    Eingabeschirm m_schirm;
    Pruefung m_pruefung;
    std::map<std::pair<int, Text>, bool> m_geprueft; ///< by child and text
};

} // namespace zeugnis
