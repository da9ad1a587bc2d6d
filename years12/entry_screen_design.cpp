// What stands on the screen before it loads, and which routine answers which event.

#include "common/screen_names.h"
#include "common/text_input.h"
#include "years12/entry_screen.h"

namespace zeugnis {

using namespace jahrgang12;

Kompetenzen::Kompetenzen(Programm& programm)
    : Screen(programm, bildschirme::Kompetenzen, u"Interessen, Kompetenzen und Bemerkungen") {
    for (const Gruppe& eine : Gruppen)
        m_options.emplace_back(*this, eine.Name, eine.ErsterKnopf, eine.LetzterKnopf,
                               &Frame1(eine.Seite));
    for (const Seitenlabel& eines : Seitenlabels)
        m_labels[eines.Nummer] = std::make_unique<Label>(
            *this, u"Label" + textFromNumber(eines.Nummer), std::nullopt, &Frame1(eines.Seite));
    EntwurfSetzen();
    HandlerVerbinden();
}

void Kompetenzen::EntwurfSetzen() {
    Label1.Caption = u"Zeugnistexte für Interessen, Kompetenzen, Bemerkungen  - 1. und 2. "
                     u"Schuljahr für Klasse:";
    Label7.Caption = u"Wählen Sie bitte einen Namen aus der Liste aus!";
    Combo1.Inscription = u"Namensliste";
    for (int b = 0; b < Bereichszahl; ++b) {
        Command1(b).Caption = bereich(b).Knopf;
        Command1(b).ToolTip = bereich(b).Hinweis;
        Frame1(b).Caption = bereich(b).Name;
        Frame1(b).Visible = Text1(b).Visible = false;
    }
    Command2.Caption = u"Alle Texte speichern";
    Command2.ToolTip = u"Die Texte der ganzen Klasse speichern";
    Command3.Caption = u"Abbrechen";
    Command3.ToolTip = u"Zurück zum Startmenü";
    Command4.Caption = u"Aktuelle Eingabe neu";
    Command4.ToolTip = u"Die Eingabe für den aktuellen Schüler löschen";
    Command7(0).Caption = u"Einfügung zeigen";
    Command7(1).Caption = u"Einfügung schließen";
    Command7.each([](Button& taste) { taste.Enabled = false; });
    label(6).Caption = u"  In den quadratischen  Feldern ist eine Mehrfachauswahl möglich !";
    label(16).Caption = u"Schwimmabzeichenerwerb:";
    label(28).Caption = u"Jugendsportabzeichenerwerb:";
    Picture2.Visible = false;
}

void Kompetenzen::HandlerVerbinden() {
    using Diese = Kompetenzen;
    Combo1.onChange = [this] { Combo1_Change(); };
    Combo1.onClick = [this] { Combo1_Click(); };
    Command1.on(&Control::onClick, this, &Diese::Command1_Click);
    Command2.onClick = [this] { Command2_Click(); };
    Command3.onClick = [this] { Command3_Click(); };
    Command4.onClick = [this] { Command4_Click(); };
    Command7.on(&Control::onClick, this, &Diese::Command7_Click);
    Command8.onClick = [this] { Command8_Click(); };
    for (int g = 0; g < Gruppenzahl; ++g)
        options(g).each([this, g](OptionButton& knopf) {
            knopf.onClick = [this, g, index = *knopf.index()] { Option_Click(g, index); };
        });
    Check1.on(&Control::onClick, this, &Diese::Check1_Click);
    Check2.on(&Control::onClick, this, &Diese::Check2_Click);
    Check3.on(&Control::onClick, this, &Diese::Check3_Click);
    Text1.on(&Control::onClick, this, &Diese::Text1_Click);
    Text1.on(&Control::onDblClick, this, &Diese::Text1_DblClick);
    Text1.on(&Control::onLostFocus, this, &Diese::Text1_LostFocus);
    Text1.each([this](TextBox& feld) {
        feld.onKeyPress = [this](char16_t& taste) { AnfuehrungszeichenTaste(programm(), taste); };
    });
}

} // namespace zeugnis
