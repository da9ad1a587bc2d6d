#pragma once

#include "checks/twins.h"
#include "comfort/entry_access.h"

#include <functional>

namespace zeugnis {

enum class Seitenstand { Leer, MitText, MitHinweis };

struct Seitenblick {
    Seitenstand Stand = Seitenstand::Leer;
    std::vector<Text> Hinweise = {}; ///< in sentences
    std::vector<Zwilling> Zwillinge = {};
};

struct Kinderstand {
    Text Name; ///< "Lotte Aßmann"; empty for a blank pupil
    std::vector<Seitenblick> Seiten;

    [[nodiscard]] bool Vollstaendig() const;
    [[nodiscard]] bool HatHinweis() const;
};

/// A text of a child, as it is to be looked at.
struct Textfrage {
    int Seite = 0;
    int Kind = 0;
    Text Inhalt;
    std::vector<Zwilling> Zwillinge = {};

    bool operator==(const Textfrage&) const = default;
};

/// Who is unfinished, child by child, as it stands in an entry screen. Texts are looked at once and
/// again when they have changed, so it may be asked after each action.
class Klassenuebersicht {
  public:
    /// What is noticed in a text, in sentences; nothing as long as it is not known. Then it is
    /// asked again.
    using Pruefung = std::function<std::optional<std::vector<Text>>(const Textfrage& frage)>;

    /// Without a check there are no hints.
    explicit Klassenuebersicht(Eingabeschirm schirm, Pruefung pruefung = {})
        : m_schirm(std::move(schirm)), m_pruefung(std::move(pruefung)) {}

    [[nodiscard]] std::vector<Kinderstand> Staende();

    /// All texts are to be looked at anew; until then what was said stays.
    void NeuPruefen();

    /// "14 von 22 haben beide Texte"
    [[nodiscard]] static Text Satz(const std::vector<Kinderstand>& staende);

  private:
    /// A text and what is known of it. Until a new text is known, what was said of the old one
    /// stays, so that nothing flickers while it is typed.
    struct Zelle {
        Textfrage Frage;
        Vergleichswoerter Woerter = {};
        bool Bekannt = false;
        std::vector<Text> Hinweise = {};
    };

    void texteNachsehen();
    void zwillingeSuchen(int seite, int kind);
    [[nodiscard]] Seitenblick blick(int seite, int kind);
    [[nodiscard]] Zelle& zelle(int seite, int kind);
    [[nodiscard]] int kinder() const;

    Eingabeschirm m_schirm;
    Pruefung m_pruefung;
    std::vector<std::vector<Zelle>> m_zellen; ///< by page and child
};

} // namespace zeugnis
