// Loading and leaving, and what the buttons, the list of names and the text boxes do.

#include "years12/entry_screen.h"

#include "common/ag_sentence.h"
#include "common/entry_common.h"
#include "common/screen_names.h"
#include "common/text_input.h"
#include "common/word_launch.h"
#include "controls/program.h"

#include <algorithm>

namespace zeugnis {

using namespace jahrgang12;

namespace {

// The one page that can be opened before a child is chosen.
constexpr int OffeneSeite = 2;

Einfuegetasten einfuegetasten(const Kompetenzen& screen) {
    return {screen.Command7, farbe(farben::Markiert), farbe(farben::Neutral)};
}

} // namespace

void Kompetenzen::load() {
    Command1.each([](Button& taste) { taste.Enabled = *taste.index() == OffeneSeite; });
    Command2.Enabled = Command4.Enabled = false;
    Command3.BackColor = farbe(farben::Verlassen);
    NamenEintragen();
    Jahrgang = Liste.Klasse.substr(0, 1);
    Bausteine = BausteineLaden(programm().directory(), Jahrgang);
    SpeicherLaden(programm().directory(), Speicher);
    TexteAnzeigen();
    Label2.Caption = Liste.Klasse;
}

void Kompetenzen::NamenEintragen() {
    Liste = NamenLaden(programm().directory());
    for (int i = 0; i < Liste.Schuelerzahl; ++i)
        Combo1.addItem(Liste.Kinder[i].Nachname + u",  " + Liste.Kinder[i].Vorname);
    AGNamenAnfuehren(Liste);
}

void Kompetenzen::AlleSpeichern() {
    SpeicherSchreiben(programm().directory(), Liste, Speicher,
                      programm().machine().calendar.today());
    Gespeichert = true;
}

void Kompetenzen::SpeichernFragen() {
    const Antwort antwort = programm().machine().dialogs.message(
        {.text = u"Wollen Sie die Eintragungen noch speichern?",
         .tasten = Tasten::JaNein,
         .symbol = Symbol::Frage});
    if (antwort == Antwort::Ja)
        AlleSpeichern();
}

void Kompetenzen::Combo1_Change() {
    Command4.BackColor = farbe(farben::Neutral);
    Command4.Enabled = false;
}

void Kompetenzen::Combo1_Click() {
    if (!NameGewaehlt) {
        BeschriftungenSetzen();
        Label7.Caption = u"Klicken Sie oben auf den Bereich, den Sie bearbeiten möchten!";
        Command1.each([](Button& taste) { taste.Enabled = true; });
    }
    VorigesKindVerlassen();
    aktSchueler = Combo1.listIndex();
    // Taking a tick off counts as a click, and the child is already the new one.
    for (const auto* kaesten : {&Check1, &Check2, &Check3})
        kaesten->each([](CheckBox& kasten) { kasten.setValue(false); });
    MarkierungLoeschen();
    WahlMarkieren();
    SchuelerBildLaden(Picture1, BildnameVon(kind()) + u".jpg");
    ZwischentexteSetzen();
    TexteAnzeigen();
    AGSatzBilden();
    if (NameGewaehlt)
        SperreZeigen();
    Gespeichert = false;
    Command1_Click(aktSeite);
    NameGewaehlt = true;
}

void Kompetenzen::VorigesKindVerlassen() {
    for (const Abwahlschritt& schritt : Abwahlschritte) {
        const int wahl = eingaben().Wahl[schritt.WahlVon];
        options(schritt.Gruppe)(std::max(wahl, gruppe(schritt.Gruppe).ErsterKnopf)).setValue(false);
    }
    for (int b = 0; b < Bereichszahl; ++b)
        if (!Text1(b).text().empty())
            Speicher.Sperre[b][aktSchueler] = 1;
}

void Kompetenzen::Command1_Click(int Index) {
    Label7.Visible = false;
    aktSeite = Index;
    MarkierungLoeschen();
    WahlMarkieren();
    SeiteZeigen();
    SeiteFaerben();
    if (NameGewaehlt)
        ZwischentexteSetzen();
    Command2.Enabled = true;
    Command2.BackColor = farbe(farben::Markiert);
    if (IstSperre(sperre())) {
        const bool gesperrt = sperre() == 1;
        Command4.BackColor = farbe(gesperrt ? farben::Rot : farben::Neutral);
        Command4.Enabled = gesperrt;
    }
    SperreZeigen();
}

void Kompetenzen::Command2_Click() { AlleSpeichern(); }

void Kompetenzen::Command3_Click() {
    if (Label7.Visible)
        Gespeichert = true;
    if (!Gespeichert)
        SpeichernFragen();
    MitEinfuegungenVerlassen(*this);
}

void Kompetenzen::Command4_Click() {
    SeiteNeu();
    MarkierungLoeschen();
    WahlMarkieren();
    Command4.BackColor = farbe(farben::Neutral);
    Command4.Enabled = false;
}

void Kompetenzen::Command7_Click(int Index) {
    EinfuegungenSchalten(programm(), einfuegetasten(*this), Index);
}

void Kompetenzen::Command8_Click() { WordStarten(programm(), word::Hilfe(3)); }

void Kompetenzen::Text1_Click(int) {
    EinfuegungenAnbieten(einfuegetasten(*this));
    Command4.Enabled = true;
    Command4.BackColor = farbe(farben::Rot);
    if (!Text1(aktSeite).text().empty())
        sperre() = 1;
    Command3.Caption = u"Alle Eingaben beenden";
    SperreZeigen();
    Gespeichert = false;
}

void Kompetenzen::Text1_DblClick(int Index) {
    TextBox& feld = Text1(Index);
    feld.setText(ersetzt(MitEinfuegung(programm(), feld, TextregelnJahrgaenge)));
}

void Kompetenzen::Text1_LostFocus(int Index) {
    Speicher.Bereichstext[aktSeite][aktSchueler] = Text1(Index).text();
    Gespeichert = false;
}

} // namespace zeugnis
