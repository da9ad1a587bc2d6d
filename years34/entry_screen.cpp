#include "years34/entry_screen.h"

#include "common/ag_sentence.h"
#include "common/screen_names.h"
#include "common/text_input.h"
#include "common/word_launch.h"
#include "controls/program.h"
#include "files/file_catalogue.h"
#include "years34/colours.h"

namespace zeugnis {

using namespace jahrgang34;

namespace {

constexpr int FelderDerSchule = 9;

template <typename T>
void abwaehlen(const ControlArray<T>& felder) {
    felder.each([](T& feld) {
        feld.setValue(false);
        feld.BackColor = farben::Neutral;
    });
}

} // namespace

void GSAGFI::load() {
    OhneBereich = true;
    NamenEinlesen();
    Jahrgang = Liste.Klasse.substr(0, 1);
    Label5.Caption = Liste.Klasse;
    Command1(1).BackColor = farben::Verlassen;
    Command1(1).Enabled = true;
    Bausteine = TextbausteineLaden(programm().directory(), Jahrgang);
    BeschriftungenSetzen();
    Speicher = TexteEinlesen(programm().directory());
    Gespeichert = true;
    TexteAnzeigen();
}

void GSAGFI::NamenEinlesen() {
    Liste = NamenLaden(programm().directory());
    Letzte = Liste.Schuelerzahl;
    const Ordnerwechsel in(programm().directory(), dateien::Daten);
    Schule = BasisdatenLesen(programm().directory(), FelderDerSchule);
    for (int i = 0; i < Liste.Schuelerzahl; ++i)
        Combo1.addItem(Liste.Kinder[i].Nachname + u",  " + Liste.Kinder[i].Vorname);
    AGNamenAnfuehren(Liste);
}

void GSAGFI::BildnamenBilden() {
    for (int i = 0; i < Liste.Schuelerzahl; ++i)
        Bildname[i] = BildnameVon(Liste.Kinder[i]);
}

void GSAGFI::AGSaetzeBilden() {
    const AGSaetze saetze = AGSaetzeVon(Liste.Kinder[AktuellerSchueler]);
    Option6(0).Caption = saetze.Satz;
    Option6(1).Caption = saetze.Liste;
}

void GSAGFI::Combo1_Click() {
    Command2.each([](Button& taste) { taste.Enabled = true; });
    Label2.Caption = u"Klicken Sie oben auf den Bereich, den Sie bearbeiten wollen!";
    LernTeil1.clear();
    LernTeil2.clear();
    Label9.each([](Label& label) { label.BackColor = farben::Neutral; });
    Picture2.Visible = false;
    AktuellerSchueler = Combo1.listIndex();
    SchuelerEingabenLeeren();
    BildnamenBilden();
    SchuelerBildLaden(Picture1, Bildname[AktuellerSchueler] + u".jpg");
    AGSaetzeBilden();
    TexteAnzeigen();
    for (int seite = 0; seite < Seitenzahl; ++seite)
        SperreNachFeld(seite);
    if (!Label2.Visible)
        SperreAnzeigen();
}

void GSAGFI::Command2_Click(int Index) {
    Seite = Index;
    AuswahlFarbenZeigen();
    Label2.Visible = false;
    Command1(0).Enabled = true;
    Command1(0).BackColor = farben::Aktiv;
    Command2.each([](Button& taste) { taste.BackColor = farben::SeiteRuht; });
    OhneBereich = false;
    for (int seite = 0; seite < Seitenzahl; ++seite)
        rahmen(seite).Visible = textfeld(seite).Visible = seite == Seite;
    if (sperreVon(Seite) == 0)
        AuswahlFarbenZeigen();
    TexteAnzeigen();
    SperreAnzeigen();
    NeuTasteAktualisieren();
    Command2(Seite).BackColor = rahmen(Seite).BackColor;
}

void GSAGFI::Command1_Click(int Index) {
    if (Index == 0)
        AllesSpeichern();
    else if (Index == 1)
        Beenden();
    else
        EingabeNeu();
}

void GSAGFI::AllesSpeichern() {
    TexteSpeichern(programm().directory(), Liste, Speicher, programm().machine().calendar.today());
    Gespeichert = true;
}

void GSAGFI::SpeicherFrageStellen() {
    const Antwort antwort = programm().machine().dialogs.message(
        {.text = u"Wollen Sie die Eintragungen noch speichern?",
         .tasten = Tasten::JaNein,
         .symbol = Symbol::Frage});
    if (antwort == Antwort::Ja)
        AllesSpeichern();
}

void GSAGFI::Beenden() {
    if (!Gespeichert && !OhneBereich)
        SpeicherFrageStellen();
    BereichEingabenLeeren();
    SchuelerEingabenLeeren();
    AuswahlFarbenZeigen();
    programm().load(bildschirme::GsStart);
    MitEinfuegungenVerlassen(*this);
}

void GSAGFI::EingabeNeu() {
    BereichEingabenLeeren();
    sperreVon(Seite) = 0;
    SperreAnzeigen();
    Gespeichert = false;
    NeuTasteAktualisieren();
}

void GSAGFI::TexteAnzeigen() {
    for (int seite = 0; seite < Seitenzahl; ++seite)
        textfeld(seite).setText(textVon(seite));
    Gespeichert = false;
    if (!Label2.Visible)
        NeuTasteAktualisieren();
}

void GSAGFI::NeuTasteAktualisieren() {
    const bool mitText = !textfeld(Seite).text().empty();
    Command1(2).Enabled = mitText;
    Command1(2).BackColor = mitText ? farben::Aktiv : Picture1.BackColor;
}

void GSAGFI::SperreAnzeigen() {
    const int sperre = sperreVon(Seite);
    if (IstSperre(sperre)) {
        Picture2.Visible = sperre == 1;
        rahmen(Seite).Enabled = sperre == 0;
    }
    if (sperre == 1 || Seite == SeiteBemerkungen)
        Command1(2).Enabled = true;
}

void GSAGFI::SperreNachFeld(int seite) {
    sperreVon(seite) = textfeld(seite).text().empty() ? 0 : 1;
}

void GSAGFI::SchuelerEingabenLeeren() {
    for (int seite = 0; seite < Seitenzahl; ++seite)
        SeiteLeeren(seite, false);
}

void GSAGFI::SeiteLeeren(int seite, bool mitText) {
    if (seite == SeiteFoerder)
        FoerderLeeren(mitText);
    else if (seite == SeiteInteressen)
        InteressenLeeren();
    else
        BemerkungenLeeren(mitText);
}

// Taking off a tick runs its handler at once, for the pupil of this moment, so the order counts.
void GSAGFI::FoerderLeeren(bool mitText) {
    abwaehlen(Check1);
    abwaehlen(Option6);
    stand().AGWahl = 0;
    if (mitText) {
        textVon(SeiteFoerder).clear();
        stand().FoerderSatz.clear();
        stand().AGSatz.clear();
    }
    Text1.setText({});
}

// The text in memory stays, unless a tick that is taken off composes it anew.
void GSAGFI::InteressenLeeren() {
    stand().InteressenWahl = 0;
    abwaehlen(Option1);
    Text2.setText({});
    stand().InteressenSatz.clear();
    Check3.each([](CheckBox& feld) { feld.setValue(false); });
}

void GSAGFI::BemerkungenLeeren(bool mitText) {
    stand().LernWahl = stand().UrteilWahl = stand().VersetzungWahl = 0;
    abwaehlen(Option2);
    abwaehlen(Check2);
    abwaehlen(Check5);
    abwaehlen(Option3);
    abwaehlen(Option4);
    Label6.BackColor = farben::Neutral;
    Text3.setText({});
    LernTeil1.clear();
    LernTeil2.clear();
    stand().LernListe.clear();
    stand().ZensurSatz.clear();
    if (mitText)
        textVon(SeiteBemerkungen).clear();
    stand().VersetzungsSatz.clear();
}

void GSAGFI::Text_Click(int seite) {
    Gespeichert = false;
    SperreNachFeld(seite);
    SperreAnzeigen();
    Command1(1).Caption = u"Alle Eingaben beenden";
    EinfuegungenAnbieten(einfuegetasten());
}

void GSAGFI::Text_DblClick(int seite) {
    TextBox& feld = textfeld(seite);
    feld.setText(ersetzt(MitEinfuegung(programm(), feld, TextregelnJahrgaenge)));
}

void GSAGFI::Text_LostFocus(int seite) {
    textVon(seite) = textfeld(seite).text();
    SperreNachFeld(seite);
}

Text GSAGFI::ersetzt(const Text& text) const {
    return PlatzhalterErsetzen(text, EinsetzwerteVon(Liste.Kinder[AktuellerSchueler], Schule),
                               TextregelnJahrgaenge);
}

Einfuegetasten GSAGFI::einfuegetasten() const { return {Command7, farben::Aktiv, farben::Neutral}; }

void GSAGFI::Command7_Click(int Index) {
    EinfuegungenSchalten(programm(), einfuegetasten(), Index);
}

void GSAGFI::Command8_Click() { WordStarten(programm(), word::Hilfe(4)); }

} // namespace zeugnis
