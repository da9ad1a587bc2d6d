// What stands on the screen before it loads, and which routine answers which event.

#include "behaviour/avsv_colours.h"
#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "common/text_input.h"

namespace zeugnis {

GsArbeitsverhalten::GsArbeitsverhalten(Programm& programm)
    : Screen(programm, bildschirme::GsArbeitsverhalten, u"Arbeits- und Sozialverhalten") {
    EntwurfSetzen();
    HandlerVerbinden();
}

void GsArbeitsverhalten::EntwurfSetzen() {
    Label1.Caption = u"Zeugnistexte für Arbeits- und Sozialverhalten  -  für Klasse:";
    Label3.Caption = u"Wählen Sie aus der Namensliste das Kind aus, dessen Zeugnis Sie erstellen "
                     u"möchten!";
    Combo1.ToolTip = u"Namensliste";
    Command1.Caption = u"Arbeitsverhalten";
    Command1.ToolTip = u"Texte laden";
    Command2.Caption = u"Sozialverhalten";
    Command2.ToolTip = u"Texte laden";
    Command3.each([](Button& taste) { taste.Caption = u"Texte aufrufen"; });
    Command4.Caption = u"Alle Texte speichern";
    Command5.Caption = u"Abbrechen";
    Command5.ToolTip = u"Zurück zum Startmenü";
    Command6.Caption = u"Aktuelle Eingaben neu";
    Command7(0).Caption = u"Einfügung zeigen";
    Command7(1).Caption = u"Einfügung verbergen";
    Command7.each([](Button& taste) { taste.Enabled = false; });
    Text1(0).BackColor = FarbtafelAVSV()[8];
    Text1(1).BackColor = FarbtafelAVSV()[9];
    Picture4.Visible = false;
}

void GsArbeitsverhalten::HandlerVerbinden() {
    using Diese = GsArbeitsverhalten;
    Combo1.onClick = [this] { Combo1_Click(); };
    Command1.onClick = [this] { Command1_Click(); };
    Command2.onClick = [this] { Command2_Click(); };
    Command3.on(&Control::onClick, this, &Diese::Command3_Click);
    Command4.onClick = [this] { Command4_Click(); };
    Command5.onClick = [this] { Command5_Click(); };
    Command6.onClick = [this] { Command6_Click(); };
    Command7.on(&Control::onClick, this, &Diese::Command7_Click);
    Command8.onClick = [this] { Command8_Click(); };
    Option1.on(&Control::onClick, this, &Diese::Option1_Click);
    Text1.on(&Control::onClick, this, &Diese::Text1_Click);
    Text1.on(&Control::onDblClick, this, &Diese::Text1_DblClick);
    Text1.on(&Control::onLostFocus, this, &Diese::Text1_LostFocus);
    Text1.each([](TextBox& feld) { AnfuehrungszeichenFernhalten(feld); });
}

} // namespace zeugnis
