#include "comfort/chosen_lines.h"

#include "behaviour/avsv_entry_screen.h"
#include "years12/entry_screen.h"
#include "years34/entry_screen.h"

#include <algorithm>

namespace zeugnis {
namespace {

Text nummeriert(TextView name, int index) {
    return Text(name) + u"(" + textFromNumber(index) + u")";
}

std::vector<Text> zeilenAus(const GsArbeitsverhalten& screen, Abschnitt abschnitt,
                            const Zeilenwahl& wahl) {
    std::vector<Text> zeilen;
    for (int k = 0; k < KategorienVon(abschnitt); ++k)
        if (wahl[k] > 0)
            zeilen.push_back(screen.Command3(k).fullName() + u" " +
                             nummeriert(screen.Option1(0).name(), wahl[k]));
    return zeilen;
}

std::vector<Text> gewaehlte(const GsArbeitsverhalten& screen) {
    if (screen.Bereich == Abschnitt::Keiner)
        return {};
    return zeilenAus(screen, screen.Bereich,
                     screen.Speicher.von(screen.Bereich).Wahl[screen.Schueler]);
}

// Dots stay where the last press was, part texts tell what counts.
std::vector<Text> gewaehlte(const Kompetenzen& screen) {
    const Kompetenzen::Eingaben& eingaben = screen.Eingegeben[screen.aktSchueler];
    std::vector<Text> zeilen;
    for (int g = 0; g < jahrgang12::Gruppenzahl; ++g)
        if (jahrgang12::gruppe(g).Seite == screen.aktSeite && !eingaben.Teiltext[g].empty())
            zeilen.push_back(nummeriert(jahrgang12::gruppe(g).Name, eingaben.Wahl[g]));
    const auto kaesten = [&](const ControlArray<CheckBox>& felder, const auto& haken) {
        felder.each([&](const CheckBox& feld) {
            if (haken(*feld.index()) != 0)
                zeilen.push_back(feld.fullName());
        });
    };
    if (screen.aktSeite == jahrgang12::SeiteInteressen)
        kaesten(screen.Check1, [&](int i) { return eingaben.Sporthaken[i]; });
    if (screen.aktSeite == jahrgang12::SeiteBemerkungen) {
        kaesten(screen.Check2, [&](int i) { return eingaben.Bemerkungskasten[i].Haken; });
        kaesten(screen.Check3, [&](int i) { return eingaben.Fachkasten[i].Haken; });
    }
    return zeilen;
}

// A choice may be numbered still although its part of the text is gone. The dots tell nothing: all
// options of a page put each other out.
std::vector<Text> gewaehlte(const GSAGFI& screen) {
    const GSAGFI::Arbeitsstand& stand = screen.Staende[screen.AktuellerSchueler];
    struct Wahl {
        const ControlArray<OptionButton>& Optionen;
        int Nummer;
        const Text& Teil;
    };
    const Wahl wahlen[] = {{screen.Option6, stand.AGWahl, stand.AGSatz},
                           {screen.Option1, stand.InteressenWahl, stand.InteressenSatz},
                           {screen.Option2, stand.LernWahl, screen.LernTeil1},
                           {screen.Option3, stand.UrteilWahl, screen.LernTeil2},
                           {screen.Option4, stand.VersetzungWahl, stand.VersetzungsSatz}};
    const auto zaehlt = [&](const OptionButton& option) {
        return std::any_of(std::begin(wahlen), std::end(wahlen), [&](const Wahl& wahl) {
            return !wahl.Teil.empty() && option.name() == wahl.Optionen(0).name() &&
                   option.index() == wahl.Nummer - 1;
        });
    };
    std::vector<Text> zeilen;
    for (const Control* control : screen.controls()) {
        if (control->container() != screen.Rahmen.at(static_cast<size_t>(screen.Seite)))
            continue;
        const auto* option = dynamic_cast<const OptionButton*>(control);
        const auto* kasten = dynamic_cast<const CheckBox*>(control);
        if (option != nullptr ? zaehlt(*option) : kasten != nullptr && kasten->value())
            zeilen.push_back(control->fullName());
    }
    return zeilen;
}

} // namespace

std::vector<Text> GewaehlteZeilen(const Eingabeschirm& schirm) {
    if (const auto* avsv = dynamic_cast<const GsArbeitsverhalten*>(schirm.Bildschirm))
        return gewaehlte(*avsv);
    if (const auto* jahre12 = dynamic_cast<const Kompetenzen*>(schirm.Bildschirm))
        return gewaehlte(*jahre12);
    return gewaehlte(dynamic_cast<const GSAGFI&>(*schirm.Bildschirm));
}

std::vector<Text> GespeicherteZeilen(const Eingabeschirm& schirm, int seite, int kind) {
    const auto* avsv = dynamic_cast<const GsArbeitsverhalten*>(schirm.Bildschirm);
    if (avsv == nullptr)
        return {};
    const Abschnitt abschnitt = Abschnitte.at(static_cast<size_t>(seite));
    return zeilenAus(*avsv, abschnitt, avsv->Speicher.von(abschnitt).Wahl[kind]);
}

} // namespace zeugnis
