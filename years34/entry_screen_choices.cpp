// The choices of the three pages, and how they become texts and colours.

#include "years34/entry_screen.h"

#include "common/interests_text.h"
#include "years34/colours.h"
#include "years34/foerder_ag.h"
#include "years34/interests_remarks.h"

#include <algorithm>
#include <vector>

namespace zeugnis {

using namespace jahrgang34;

namespace {

std::vector<Text> gewaehlteTexte(const ControlArray<CheckBox>& felder) {
    std::vector<Text> texte;
    felder.each(
        [&](const CheckBox& feld) { texte.push_back(feld.value() ? feld.Caption : Text()); });
    return texte;
}

Farbwert auswahlfarbe(bool gewaehlt) { return gewaehlt ? farben::Aktiv : farben::Neutral; }

} // namespace

void GSAGFI::AuswahlMerken() {
    for (const auto& [optionen, wahl] : Optionsgruppen)
        for (int k = optionen.first(); k <= optionen.last(); ++k)
            if (optionen(k).value())
                stand().*wahl = k + 1;
}

void GSAGFI::AuswahlFarbenZeigen() {
    bool mitFoerder = false;
    Check1.each([&](const CheckBox& feld) { mitFoerder = mitFoerder || feld.value(); });
    for (const auto* felder : {&Check1, &Check2, &Check5})
        felder->each([](CheckBox& feld) { feld.BackColor = auswahlfarbe(feld.value()); });
    Label7.each([&](Label& label) { label.BackColor = auswahlfarbe(mitFoerder); });
    for (const auto& [optionen, wahl] : Optionsgruppen)
        for (int k = optionen.first(); k <= optionen.last(); ++k)
            optionen(k).BackColor = auswahlfarbe(stand().*wahl == k + 1);
    if (!stand().ZensurSatz.empty())
        Label9.each([](Label& label) { label.BackColor = farben::Aktiv; });
    if (!LernTeil2.empty())
        Label6.BackColor = farben::Aktiv;
}

void GSAGFI::Check1_Click(int) {
    stand().FoerderSatz = FoerderSatzBilden(
        Label7(0).Caption, ListeVerbinden(gewaehlteTexte(Check1), Letzte), Label7(1).Caption);
    FoerderAGTextBilden();
    AuswahlFarbenZeigen();
}

void GSAGFI::Option6_Click(int Index) {
    stand().AGSatz = Option6(Index).Caption;
    stand().AGWahl = Index + 1;
    AuswahlFarbenZeigen();
    FoerderAGTextBilden();
}

void GSAGFI::FoerderAGTextBilden() {
    textVon(SeiteFoerder) = ersetzt(FoerderAGVerbinden(stand().FoerderSatz, stand().AGSatz));
    Text1.setText(textVon(SeiteFoerder));
    Gespeichert = false;
}

void GSAGFI::Option1_Click(int Index) {
    AuswahlMerken();
    const Text& interesse = Option1(Index).Caption;
    stand().InteressenSatz =
        Option1(0).value() && Option1(0).Caption == KeinEintrag
            ? Text()
            : InteressenSatzBilden(Liste.Kinder[AktuellerSchueler].Vorname, interesse);
    AuswahlFarbenZeigen();
    InteressenTextBilden();
}

void GSAGFI::Check3_Click(int) {
    AuswahlMerken();
    stand().SportSatz.clear();
    Check3.each([&](const CheckBox& feld) {
        if (feld.value())
            stand().SportSatz += Bausteine.SportTexte[*feld.index()] + u". ";
    });
    InteressenTextBilden();
}

void GSAGFI::InteressenTextBilden() {
    textVon(SeiteInteressen) =
        ersetzt(InteressenVerbinden(stand().InteressenSatz, stand().SportSatz));
    TexteAnzeigen();
}

void GSAGFI::Check2_Click(int) {
    AuswahlMerken();
    stand().ZensurSatz = ZensurSatzBilden({Check2(0).value(), Check2(1).value(), Check2(2).value()},
                                          {Check2(0).Caption, Check2(1).Caption, Check2(2).Caption},
                                          Label9(0).Caption, Label9(1).Caption);
    BemerkungenTextBilden();
    AuswahlFarbenZeigen();
}

void GSAGFI::Option2_Click(int Index) {
    AuswahlMerken();
    LernTeil1 = MitLeerzeichen(Option2(Index).Caption);
    Check5.each([](CheckBox& feld) { feld.Enabled = true; });
    AuswahlFarbenZeigen();
    BemerkungenTextBilden();
}

void GSAGFI::Check5_Click(int) {
    AuswahlMerken();
    stand().LernListe = MitLeerzeichen(ListeVerbinden(gewaehlteTexte(Check5), Letzte));
    BemerkungenTextBilden();
    Option3.each([](OptionButton& option) { option.Enabled = true; });
    AuswahlFarbenZeigen();
}

void GSAGFI::Option3_Click(int Index) {
    stand().UrteilWahl = Index + 1;
    LernTeil2 = UrteilBilden(Option3(Index).Caption, Label6.Caption);
    BemerkungenTextBilden();
    AuswahlFarbenZeigen();
}

void GSAGFI::Option4_Click(int Index) {
    AuswahlMerken();
    stand().VersetzungsSatz = Option4(Index).Caption + u".";
    AuswahlFarbenZeigen();
    BemerkungenTextBilden();
}

void GSAGFI::BemerkungenTextBilden() {
    textVon(SeiteBemerkungen) = ersetzt(BemerkungenVerbinden(
        {stand().ZensurSatz, LernTeil1, stand().LernListe, LernTeil2, stand().VersetzungsSatz}));
    TexteAnzeigen();
}

} // namespace zeugnis
