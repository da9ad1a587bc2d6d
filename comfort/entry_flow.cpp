#include "comfort/entry_flow.h"

#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/user_actions.h"

#include <algorithm>

namespace zeugnis {
namespace {

constexpr int ZehnteZeile = 10;

int count(const auto& container) { return static_cast<int>(container.size()); }

bool isOption(const Control& control) {
    return dynamic_cast<const OptionButton*>(&control) != nullptr;
}

bool isChoice(const Control& control) {
    return isOption(control) || dynamic_cast<const CheckBox*>(&control) != nullptr;
}

} // namespace

// The arrays of options and boxes of the page, in the order of the screen.
std::vector<Eingabefluss::Gruppe> Eingabefluss::gruppen() const {
    std::vector<Gruppe> gruppen;
    for (Control* control : m_schirm.Bildschirm->controls()) {
        if (!isChoice(*control) || !control->reachable())
            continue;
        if (gruppen.empty() || gruppen.back().front()->name() != control->name())
            gruppen.emplace_back();
        gruppen.back().push_back(control);
    }
    std::stable_partition(gruppen.begin(), gruppen.end(), [this](const Gruppe& gruppe) {
        return gruppe.front()->name() != m_schirm.Zuletzt;
    });
    return gruppen;
}

bool Eingabefluss::Weiter(Richtung richtung) {
    if (!m_schirm.Kategorien.empty())
        return kategorieWechseln(richtung);
    seiteFolgen();
    const int neu = m_gruppe + static_cast<int>(richtung);
    if (m_schirm.Seite() >= 0 && neu >= 0 && neu < count(gruppen())) {
        m_gruppe = neu;
        return true;
    }
    if (!SeiteWechseln(richtung))
        return false;
    seiteFolgen();
    if (richtung == Richtung::Zurueck)
        m_gruppe = std::max(0, count(gruppen()) - 1);
    return true;
}

bool Eingabefluss::kategorieWechseln(Richtung richtung) {
    const auto& tasten = m_schirm.Kategorien;
    const int neu = m_schirm.Kategorie() + static_cast<int>(richtung);
    if (m_schirm.Seite() >= 0 && neu >= 0 && neu < count(tasten) &&
        tasten[static_cast<size_t>(neu)]->reachable())
        return user::click(*tasten[static_cast<size_t>(neu)]);
    if (!SeiteWechseln(richtung))
        return false;
    if (richtung == Richtung::Zurueck) {
        const auto letzte =
            std::find_if(tasten.rbegin(), tasten.rend(), [](Button* t) { return t->reachable(); });
        return letzte != tasten.rend() && user::click(**letzte);
    }
    return true;
}

bool Eingabefluss::SeiteWechseln(Richtung richtung) {
    // Without an open page forwards leads to the first one.
    return seiteOeffnen(m_schirm.Seite() + static_cast<int>(richtung));
}

bool Eingabefluss::seiteOeffnen(int seite) {
    return seite >= 0 && seite < count(m_schirm.Seiten) &&
           user::click(*m_schirm.Seiten[static_cast<size_t>(seite)]);
}

bool Eingabefluss::Ziffer(int ziffer) {
    const std::vector<Gruppe> alle = gruppen();
    seiteFolgen();
    if (m_schirm.Seite() < 0 || m_gruppe >= count(alle))
        return false;
    const Gruppe& gruppe = alle[static_cast<size_t>(m_gruppe)];
    const bool kategorie = !m_schirm.Kategorien.empty();
    const int platz = kategorie ? ziffer : (ziffer == 0 ? ZehnteZeile : ziffer) - 1;
    if (platz >= count(gruppe))
        return false;
    Control& zeile = *gruppe[static_cast<size_t>(platz)];
    if (!user::click(zeile))
        return false;
    if (!kategorie && isOption(zeile) && m_gruppe + 1 < count(gruppen()))
        ++m_gruppe;
    return true;
}

bool Eingabefluss::KindWechseln(Richtung richtung) {
    return user::pick(*m_schirm.Kinder, m_schirm.Kinder->listIndex() + static_cast<int>(richtung));
}

bool Eingabefluss::KindOhneText() {
    const int anzahl = m_schirm.Liste->Schuelerzahl;
    for (int schritt = 1; schritt <= anzahl; ++schritt) {
        const int kind = (m_schirm.Kinder->listIndex() + schritt) % anzahl;
        if (const int seite = m_schirm.SeiteOhneText(kind); seite >= 0)
            return Hinfuehren(kind, seite);
    }
    return false;
}

bool Eingabefluss::Hinfuehren(int kind, int seite) {
    const bool da = kind == m_schirm.Kinder->listIndex() || user::pick(*m_schirm.Kinder, kind);
    return da && (seite == m_schirm.Seite() || seiteOeffnen(seite));
}

// A page that was opened by other means begins with its first group.
void Eingabefluss::seiteFolgen() {
    if (m_seite == m_schirm.Seite())
        return;
    m_seite = m_schirm.Seite();
    m_gruppe = 0;
}

const Control* Eingabefluss::Stelle() {
    seiteFolgen();
    const std::vector<Gruppe> alle = gruppen();
    if (!m_schirm.Kategorien.empty() || m_seite < 0 || m_gruppe >= count(alle))
        return nullptr;
    return alle[static_cast<size_t>(m_gruppe)].front();
}

void Eingabefluss::StelleMerken(const Control& control) {
    seiteFolgen();
    const std::vector<Gruppe> alle = gruppen();
    const auto gefunden = std::ranges::find_if(
        alle, [&](const Gruppe& gruppe) { return gruppe.front()->name() == control.name(); });
    if (isChoice(control) && gefunden != alle.end())
        m_gruppe = static_cast<int>(gefunden - alle.begin());
}

} // namespace zeugnis
