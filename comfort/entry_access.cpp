#include "comfort/entry_access.h"

#include "behaviour/avsv_entry_screen.h"
#include "files/section_stores.h"
#include "years12/entry_screen.h"
#include "years34/entry_screen.h"

#include <algorithm>

namespace zeugnis {
namespace {

template <typename C>
std::vector<C*> alle(const ControlArray<C>& controls) {
    std::vector<C*> zeiger;
    controls.each([&](C& control) { zeiger.push_back(&control); });
    return zeiger;
}

Eingabeschirm aus(GsArbeitsverhalten& screen) {
    return {.Bildschirm = &screen,
            .Liste = &screen.Liste,
            .Kinder = &screen.Combo1,
            .Seiten = {&screen.Command1, &screen.Command2},
            .Felder = alle(screen.Text1),
            .Texte = {&screen.Speicher.AV.Texte, &screen.Speicher.SV.Texte},
            .Kategorien = alle(screen.Command3),
            .Zuletzt = {},
            .Ablage = &speicherdateien::AVSVTexte,
            .Speichern = &screen.Command4,
            .Neu = &screen.Command6};
}

Eingabeschirm aus(Kompetenzen& screen) {
    Eingabeschirm schirm{.Bildschirm = &screen,
                         .Liste = &screen.Liste,
                         .Kinder = &screen.Combo1,
                         .Seiten = alle(screen.Command1),
                         .Felder = alle(screen.Text1),
                         .Texte = {},
                         .Kategorien = {},
                         .Zuletzt = screen.Check1(0).name(),
                         .Ablage = &speicherdateien::Texte12,
                         .Speichern = &screen.Command2,
                         .Neu = &screen.Command4};
    for (int seite = 0; seite < jahrgang12::Bereichszahl; ++seite)
        schirm.Texte.push_back(&screen.Speicher.Bereichstext[seite]);
    return schirm;
}

Eingabeschirm aus(GSAGFI& screen) {
    Eingabeschirm schirm{.Bildschirm = &screen,
                         .Liste = &screen.Liste,
                         .Kinder = &screen.Combo1,
                         .Seiten = alle(screen.Command2),
                         .Felder = {screen.Textfelder.begin(), screen.Textfelder.end()},
                         .Texte = {},
                         .Kategorien = {},
                         .Zuletzt = {},
                         .Ablage = &speicherdateien::Texte34,
                         .Speichern = &screen.Command1(0),
                         .Neu = &screen.Command1(2)};
    for (int seite = 0; seite < jahrgang34::Seitenzahl; ++seite)
        schirm.Texte.push_back(&screen.Speicher.Texte[seite]);
    return schirm;
}

template <typename Rahmen>
int sichtbarer(const Rahmen& rahmen, int anzahl) {
    for (int seite = 0; seite < anzahl; ++seite)
        if (rahmen(seite).Visible)
            return seite;
    return -1;
}

} // namespace

int Eingabeschirm::Seite() const {
    if (const auto* avsv = dynamic_cast<const GsArbeitsverhalten*>(Bildschirm))
        return avsv->Bereich == Abschnitt::Keiner ? -1 : avsv->Bereich == Abschnitt::AV ? 0 : 1;
    if (const auto* jahre12 = dynamic_cast<const Kompetenzen*>(Bildschirm))
        return sichtbarer([&](int i) -> Frame& { return jahre12->Frame1(i); },
                          jahrgang12::Bereichszahl);
    const auto& jahre34 = dynamic_cast<const GSAGFI&>(*Bildschirm);
    return sichtbarer([&](int i) -> Frame& { return *jahre34.Rahmen.at(static_cast<size_t>(i)); },
                      jahrgang34::Seitenzahl);
}

int Eingabeschirm::Kategorie() const {
    const auto* avsv = dynamic_cast<const GsArbeitsverhalten*>(Bildschirm);
    return avsv == nullptr || avsv->Bereich == Abschnitt::Keiner ? -1 : avsv->Kategorie;
}

const Text& Eingabeschirm::TextVon(int seite, int kind) const {
    const auto platz = static_cast<size_t>(seite);
    // A page of which no text is in its box has that of memory.
    const bool imFeld = kind == Kinder->listIndex() && Felder.at(platz)->reachable();
    return imFeld ? Felder.at(platz)->text() : (*Texte.at(platz))[kind];
}

std::vector<Text> Eingabeschirm::TexteVon(int kind) const {
    std::vector<Text> texte;
    texte.reserve(Seiten.size());
    for (int seite = 0; seite < static_cast<int>(Seiten.size()); ++seite)
        texte.push_back(TextVon(seite, kind));
    return texte;
}

int Eingabeschirm::SeiteOhneText(int kind) const {
    for (int seite = 0; seite < static_cast<int>(Seiten.size()); ++seite)
        if (TextVon(seite, kind).empty())
            return seite;
    return -1;
}

std::optional<Eingabeschirm> EingabeschirmAus(Screen& screen) {
    if (auto* avsv = dynamic_cast<GsArbeitsverhalten*>(&screen))
        return aus(*avsv);
    if (auto* jahre12 = dynamic_cast<Kompetenzen*>(&screen))
        return aus(*jahre12);
    if (auto* jahre34 = dynamic_cast<GSAGFI*>(&screen))
        return aus(*jahre34);
    return std::nullopt;
}

} // namespace zeugnis
