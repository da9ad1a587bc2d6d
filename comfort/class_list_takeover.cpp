#include "comfort/class_list_takeover.h"

#include "controls/user_actions.h"
#include "masterdata/master_data_screen.h"

#include <algorithm>

namespace zeugnis {
namespace {

constexpr int NeueListe = 0;
constexpr int Hinzufuegen = 2;

bool istLeer(const Schueler& kind) {
    const auto felder = FelderVon(kind);
    return std::ranges::all_of(felder, [](const Text* feld) { return feld->empty(); });
}

bool nurEinLeeres(const GsBasis& basis) {
    return basis.Liste.Schuelerzahl == 1 && istLeer(basis.Liste.Kinder[0]);
}

void eintragen(TextBox& feld, const Text& text) {
    user::focus(feld);
    feld.select(0, feld.text().size());
    user::paste(feld, text);
}

void eintragen(GsBasis& basis, const Schueler& kind) {
    basis.Text2.each([&](TextBox& feld) {
        eintragen(feld, kind.*Schuelerfelder.at(static_cast<size_t>(*feld.index())).Wert);
    });
    basis.Text3.each(
        [&](TextBox& feld) { eintragen(feld, kind.AG.at(static_cast<size_t>(*feld.index()))); });
    user::click(basis.Option1(kind.Geschlecht == u"w" ? 1 : 0));
}

} // namespace

int VorhandeneKinder(const GsBasis& basis, Uebernahme art) {
    return art == Uebernahme::Ersetzen || nurEinLeeres(basis) ? 0 : basis.Liste.Schuelerzahl;
}

bool KlassenlisteUebernehmen(GsBasis& basis, const std::vector<Schueler>& kinder, Uebernahme art) {
    if (kinder.empty())
        return false;
    if (basis.Command5.Visible)
        user::click(basis.Command5);
    if (!basis.Command4(NeueListe).reachable())
        return false;
    bool amPlatz = VorhandeneKinder(basis, art) == 0;
    if (amPlatz)
        user::click(basis.Command4(NeueListe));
    for (const Schueler& kind : kinder) {
        if (!amPlatz)
            user::click(basis.Command4(Hinzufuegen));
        amPlatz = false;
        eintragen(basis, kind);
    }
    user::click(basis.Command1(0));
    return true;
}

} // namespace zeugnis
