// What stands on the screen before and after it has loaded its modules, and which routine answers
// which event.

#include "common/screen_names.h"
#include "common/text_input.h"
#include "years34/entry_screen.h"

namespace zeugnis {
namespace {

// The rows of a table from `zeile` on, one per control.
template <typename T, int Zeilen>
void beschriften(const ControlArray<T>& felder, const Tabelle<Text, Zeilen>& texte, int zeile = 0) {
    felder.each([&](T& feld) { feld.Caption = texte[zeile++]; });
}

} // namespace

GSAGFI::GSAGFI(Programm& programm) : Screen(programm, bildschirme::GSAGFI, u"Förder Interessen") {
    EntwurfSetzen();
    HandlerVerbinden();
}

void GSAGFI::EntwurfSetzen() {
    Label1.Caption = u"Eingabe von Förder, Arbeitsgemeinschaften, Interessen und Fähigkeiten und "
                     u"Bemerkungen";
    Label2.Caption = u"Wählen Sie bitte einen Namen aus!";
    Combo1.Inscription = u"Namensliste";
    Command1(0).Caption = u"Alle Texte speichern";
    Command1(0).ToolTip = u"Texteingaben der ganzen Klasse speichern";
    Command1(1).Caption = u"Abbrechen";
    Command1(1).ToolTip = u"Zurück zum Startmenü";
    Command1(2).Caption = u"Aktuelle Eingabe neu";
    Command1(2).ToolTip = u"Die Eingabe für den aktuellen Schüler löschen";
    Command2(0).Caption = u"Förderteilnahme und AG";
    Command2(0).ToolTip = u"Teilnahme am Förderunterricht und Arbeitsgemeinschaften auswählen";
    Command2(1).Caption = u"Interessen";
    Command2(1).ToolTip = u"Besondere Interessen auswählen";
    Command2(2).Caption = u"Bemerkungen";
    Command2(2).ToolTip = u"Bemerkungen, Lernfortschritt und Versetzungsbemerkungen";
    Command7(0).Caption = u"Einfügungen zeigen";
    Command7(1).Caption = u"Einfügungen verbergen";

    Frame1.Caption = u"Förderteilnahme und Arbeitsgemeinschaften";
    Label3.Caption = u"Förderteilnahme";
    Label4.Caption = u"AG";
    Label8.Caption = u"Bei den quadratischen Feldern sind Mehrfachauswahlen möglich. Ein "
                     u"Zweitklick löscht die Eingabe.";
    Frame2.Caption = u"Interessen";
    Label16(0).Caption = u"Schwimmabzeichenerwerb:";
    Label16(1).Caption = u"Sportabzeichenerwerb:";
    Label16(2).Caption = u"Radfahrprüfung:";
    Frame3.Caption = u"Bemerkungen und Versetzung";
    Label10.Caption = u"In den quadratischen  Feldern ist eine Mehrfachauswahl möglich ! Ein "
                      u"Zweitklick löscht die Eingabe.";

    for (const auto* tasten : {&Command1, &Command2, &Command7})
        tasten->each([](Button& taste) { taste.Enabled = false; });
    Check5.each([](CheckBox& feld) { feld.Enabled = false; });
    Option3.each([](OptionButton& option) { option.Enabled = false; });
    for (int seite = 0; seite < jahrgang34::Seitenzahl; ++seite)
        rahmen(seite).Visible = textfeld(seite).Visible = false;
    Picture2.Visible = false;
}

void GSAGFI::BeschriftungenSetzen() {
    Label7(0).Caption = Bausteine.FoerderTexte[0];
    beschriften(Check1, Bausteine.FoerderTexte, 1);
    Label7(1).Caption = Bausteine.FoerderTexte[7];
    beschriften(Option1, Bausteine.InteressenTexte);
    beschriften(Check2, Bausteine.ZensurTexte);
    Label9(0).Caption = Bausteine.ZensurTexte[3];
    beschriften(Option2, Bausteine.BemerkungenA);
    beschriften(Check5, Bausteine.BemerkungenB);
    beschriften(Option3, Bausteine.BemerkungenC);
    Label6.Caption = Bausteine.BemerkungenD[0];
    Option6(2).Caption = Bausteine.AGTexte[0];
    Option6(3).Caption = Bausteine.AGTexte[1];
    if (IstZahl(Schule.Halbjahr, 1)) {
        Label9(1).Caption = Bausteine.ZensurTexte[4];
        beschriften(Option4, Bausteine.VersetzungHalbjahr1);
    } else if (IstZahl(Schule.Halbjahr, 2)) {
        Label9(1).Caption = Bausteine.ZensurTexte[5];
        beschriften(Option4, Bausteine.VersetzungHalbjahr2);
    }
}

void GSAGFI::HandlerVerbinden() {
    Combo1.onClick = [this] { Combo1_Click(); };
    Command1.on(&Control::onClick, this, &GSAGFI::Command1_Click);
    Command2.on(&Control::onClick, this, &GSAGFI::Command2_Click);
    Command7.on(&Control::onClick, this, &GSAGFI::Command7_Click);
    Command8.onClick = [this] { Command8_Click(); };
    Check1.on(&Control::onClick, this, &GSAGFI::Check1_Click);
    Check2.on(&Control::onClick, this, &GSAGFI::Check2_Click);
    Check3.on(&Control::onClick, this, &GSAGFI::Check3_Click);
    Check5.on(&Control::onClick, this, &GSAGFI::Check5_Click);
    Option1.on(&Control::onClick, this, &GSAGFI::Option1_Click);
    Option2.on(&Control::onClick, this, &GSAGFI::Option2_Click);
    Option3.on(&Control::onClick, this, &GSAGFI::Option3_Click);
    Option4.on(&Control::onClick, this, &GSAGFI::Option4_Click);
    Option6.on(&Control::onClick, this, &GSAGFI::Option6_Click);
    for (int seite = 0; seite < jahrgang34::Seitenzahl; ++seite) {
        TextBox& feld = textfeld(seite);
        feld.onClick = [this, seite] { Text_Click(seite); };
        feld.onDblClick = [this, seite] { Text_DblClick(seite); };
        feld.onLostFocus = [this, seite] { Text_LostFocus(seite); };
        feld.onKeyPress = [this](char16_t& taste) { AnfuehrungszeichenTaste(programm(), taste); };
    }
}

} // namespace zeugnis
