// What stands on the screen before it loads, and which routine answers which event.

#include "common/screen_names.h"
#include "common/text_input.h"
#include "masterdata/master_data_screen.h"

namespace zeugnis {

GsBasis::GsBasis(Programm& programm) : Screen(programm, bildschirme::GsBasis, u"GsBasis") {
    EntwurfSetzen();
    HandlerVerbinden();
}

void GsBasis::EntwurfSetzen() {
    const auto sperren = [](Control& control) { control.Enabled = false; };
    const auto verbergen = [](Control& control) { control.Visible = false; };

    Frame1.Caption = u"Basisdaten";
    Command1(0).Caption = u"Basisdaten speichern";
    Command1(0).ToolTip = u"Alle Basisdaten abspeichern";
    Command1(1).Caption = u"Ende";
    Command1(1).ToolTip = u"Das Programm insgesamt beenden";
    Command3.Caption = u"Schuldaten ändern";
    Command3.ToolTip = u"Die Grunddaten für die Zeugniserstellung";
    Text1.each(sperren);
    Text1(SibankFeld).Enabled = true;
    Command1(0).Enabled = false;

    Label5.Caption = u"Standardpfad eintragen für";
    Command7(0).Caption = u"SibankPlus";
    Command7(1).Caption = u"Sibwin";
    Command7.each([](Button& taste) { taste.ToolTip = u"Klicken für Eintragung"; });

    Command5.Caption = u"bearbeiten";
    Command5.ToolTip = u"Schülerdaten ändern oder eingeben";
    Combo1.ToolTip = u"Nummer in der Liste wählen";
    Option1(0).Caption = u"männlich";
    Option1(1).Caption = u"weiblich";
    Command4(0).Caption = u"Gesamtliste neu anlegen";
    Command4(1).Caption = u"aktuellen Schüler löschen";
    Command4(2).Caption = u"Schüler hinzufügen";
    Command6.Caption = u"Schüler alphabetisch sortieren";
    Command6.ToolTip = u"Alfabetische Sortierung";
    Text2.each(sperren);
    Text3.each(sperren);
    Option1.each(sperren);
    Command4.each(verbergen);
    verbergen(Command6);
    verbergen(List2);

    Label3(6).Caption = u"Arbeitsgemeinschaften:";
    Label4.Caption = u"Arbeitsgemeinschaft auswählen und durch Doppelklick in die unteren Zeilen "
                     u"einfügen. Die AG kann auch direkt unten hineingeschrieben werden.";
    Command2(0).Caption = u"AG-Liste erstellen oder ergänzen";
    Command2(0).ToolTip = u"Eine Liste der Arbeitsgemeinschaften erstellen";
    Command2(1).Caption = u"AG-Liste löschen";
    Command2(1).ToolTip = u"AG-Liste insgesamt löschen";
    sperren(List1);
    Command2.each(sperren);
}

void GsBasis::HandlerVerbinden() {
    using Diese = GsBasis;
    Combo1.onClick = [this] { Combo1_Click(); };
    Command1.on(&Control::onClick, this, &Diese::Command1_Click);
    Command2.on(&Control::onClick, this, &Diese::Command2_Click);
    Command3.onClick = [this] { Command3_Click(); };
    Command4.on(&Control::onClick, this, &Diese::Command4_Click);
    Command5.onClick = [this] { Command5_Click(); };
    Command6.onClick = [this] { Command6_Click(); };
    Command7.on(&Control::onClick, this, &Diese::Command7_Click);
    Command8.onClick = [this] { Command8_Click(); };
    List1.onClick = [this] { List1_Click(); };
    Option1.on(&Control::onClick, this, &Diese::Option1_Click);
    Text1(SibankFeld).onClick = [this] { SibankPfad_Click(); };
    Text3.on(&Control::onDblClick, this, &Diese::Text3_DblClick);

    const auto verlassen = [this](TextBox& feld) {
        feld.onLostFocus = [this] { Text_LostFocus(); };
    };
    Text1.each(verlassen);
    Text2.each(verlassen);
    Text3.each(verlassen);

    Text2.each([](TextBox& feld) { AnfuehrungszeichenFernhalten(feld); });
    Text1.each([this](TextBox& feld) {
        AnfuehrungszeichenFernhalten(feld);
        feld.onKeyPress = [this, index = *feld.index()](char16_t& taste) {
            Text1_KeyPress(index, taste);
        };
    });
    // Text3 takes pasted quotes as they are.
    Text3.each([this](TextBox& feld) {
        feld.onKeyPress = [this](char16_t& taste) { AnfuehrungszeichenTaste(programm(), taste); };
    });
}

} // namespace zeugnis
