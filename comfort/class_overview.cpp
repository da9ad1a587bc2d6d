#include "comfort/class_overview.h"

#include <algorithm>

namespace zeugnis {

bool Kinderstand::Vollstaendig() const {
    return std::ranges::find(Seiten, Seitenstand::Leer) == Seiten.end();
}

bool Kinderstand::HatHinweis() const {
    return std::ranges::find(Seiten, Seitenstand::MitHinweis) != Seiten.end();
}

std::vector<Kinderstand> Klassenuebersicht::Staende() {
    std::vector<Kinderstand> staende;
    for (int kind = 0; kind < std::min(m_schirm.Liste->Schuelerzahl, Schuelerplaetze); ++kind) {
        const Schueler& schueler = m_schirm.Liste->Kinder[kind];
        Kinderstand& stand = staende.emplace_back();
        stand.Name = trimmed(schueler.Vorname + u" " + schueler.Nachname);
        for (int seite = 0; seite < static_cast<int>(m_schirm.Seiten.size()); ++seite)
            stand.Seiten.push_back(standVon(seite, kind));
    }
    return staende;
}

Seitenstand Klassenuebersicht::standVon(int seite, int kind) {
    const Text& text = m_schirm.TextVon(seite, kind);
    if (trimmed(text).empty())
        return Seitenstand::Leer;
    if (!m_pruefung)
        return Seitenstand::MitText;
    const auto [eintrag, neu] = m_geprueft.try_emplace({kind, text}, false);
    if (neu)
        eintrag->second = m_pruefung(text, m_schirm.Liste->Kinder[kind]);
    return eintrag->second ? Seitenstand::MitHinweis : Seitenstand::MitText;
}

Text Klassenuebersicht::Satz(const std::vector<Kinderstand>& staende) {
    const auto benannt = [](const Kinderstand& stand) { return !stand.Name.empty(); };
    const auto fertig = [&](const Kinderstand& stand) {
        return benannt(stand) && stand.Vollstaendig();
    };
    const auto kinder = std::ranges::count_if(staende, benannt);
    const auto fertige = std::ranges::count_if(staende, fertig);
    if (kinder == 0)
        return u"Noch keine Kinder";
    const bool zwei = staende.front().Seiten.size() == 2;
    return textFromNumber(static_cast<int>(fertige)) + u" von " +
           textFromNumber(static_cast<int>(kinder)) + (fertige == 1 ? u" hat " : u" haben ") +
           (zwei ? u"beide Texte" : u"alle Texte");
}

} // namespace zeugnis
