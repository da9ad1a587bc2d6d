#include "comfort/class_overview.h"

#include <algorithm>

namespace zeugnis {

bool Kinderstand::Vollstaendig() const {
    return std::none_of(Seiten.begin(), Seiten.end(),
                        [](const Seitenblick& seite) { return seite.Stand == Seitenstand::Leer; });
}

bool Kinderstand::HatHinweis() const {
    return std::any_of(Seiten.begin(), Seiten.end(), [](const Seitenblick& seite) {
        return seite.Stand == Seitenstand::MitHinweis;
    });
}

int Klassenuebersicht::kinder() const {
    return std::min(m_schirm.Liste->Schuelerzahl, Schuelerplaetze);
}

Klassenuebersicht::Zelle& Klassenuebersicht::zelle(int seite, int kind) {
    return m_zellen.at(static_cast<size_t>(seite)).at(static_cast<size_t>(kind));
}

std::vector<Kinderstand> Klassenuebersicht::Staende() {
    if (m_pruefung)
        texteNachsehen();
    std::vector<Kinderstand> staende;
    for (int kind = 0; kind < kinder(); ++kind) {
        const Schueler& schueler = m_schirm.Liste->Kinder[kind];
        Kinderstand& stand = staende.emplace_back();
        stand.Name = trimmed(schueler.Vorname + u" " + schueler.Nachname);
        for (int seite = 0; seite < static_cast<int>(m_schirm.Seiten.size()); ++seite)
            stand.Seiten.push_back(blick(seite, kind));
    }
    return staende;
}

void Klassenuebersicht::NeuPruefen() {
    for (std::vector<Zelle>& seite : m_zellen)
        for (Zelle& eine : seite)
            eine.Bekannt = false;
}

void Klassenuebersicht::texteNachsehen() {
    m_zellen.resize(m_schirm.Seiten.size(), std::vector<Zelle>(Schuelerplaetze));
    for (int seite = 0; seite < static_cast<int>(m_schirm.Seiten.size()); ++seite)
        for (int kind = 0; kind < kinder(); ++kind) {
            Zelle& eine = zelle(seite, kind);
            const Text& text = m_schirm.TextVon(seite, kind);
            if (eine.Frage.Inhalt == text)
                continue;
            eine.Frage = {.Seite = seite, .Kind = kind, .Inhalt = text};
            eine.Woerter = VergleichswoerterVon(text, m_schirm.Liste->Kinder[kind].Vorname);
            zwillingeSuchen(seite, kind);
        }
}

// The others hear of it, too: they have one more twin, or one less.
void Klassenuebersicht::zwillingeSuchen(int seite, int kind) {
    Zelle& eine = zelle(seite, kind);
    eine.Bekannt = false;
    for (int platz = 0; platz < kinder(); ++platz) {
        if (platz == kind)
            continue;
        Zelle& andere = zelle(seite, platz);
        const size_t vorher = std::erase_if(
            andere.Frage.Zwillinge, [kind](const Zwilling& einer) { return einer.Platz == kind; });
        const bool genau = SindGleich(eine.Frage.Inhalt, andere.Frage.Inhalt);
        const bool gleich = genau || SindFastGleich(eine.Woerter, andere.Woerter);
        if (gleich) {
            eine.Frage.Zwillinge.push_back({platz, genau});
            std::vector<Zwilling>& dort = andere.Frage.Zwillinge;
            dort.insert(std::find_if(dort.begin(), dort.end(),
                                     [kind](const Zwilling& einer) { return einer.Platz > kind; }),
                        {kind, genau});
        }
        if (gleich || vorher > 0)
            andere.Bekannt = false;
    }
}

Seitenblick Klassenuebersicht::blick(int seite, int kind) {
    if (trimmed(m_schirm.TextVon(seite, kind)).empty())
        return {};
    if (!m_pruefung)
        return {.Stand = Seitenstand::MitText};
    Zelle& eine = zelle(seite, kind);
    if (!eine.Bekannt)
        if (std::optional<std::vector<Text>> hinweise = m_pruefung(eine.Frage)) {
            eine.Bekannt = true;
            eine.Hinweise = std::move(*hinweise);
        }
    return {.Stand = eine.Hinweise.empty() ? Seitenstand::MitText : Seitenstand::MitHinweis,
            .Hinweise = eine.Hinweise,
            .Zwillinge = eine.Frage.Zwillinge};
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
