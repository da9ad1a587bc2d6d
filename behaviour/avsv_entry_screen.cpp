#include "behaviour/avsv_entry_screen.h"

#include "behaviour/avsv_colours.h"
#include "common/entry_common.h"
#include "common/placeholders.h"
#include "common/screen_names.h"
#include "common/text_input.h"
#include "common/word_launch.h"
#include "controls/program.h"

namespace zeugnis {
namespace {

Farbwert farbe(int eintrag) { return FarbtafelAVSV()[eintrag]; }

} // namespace

void GsArbeitsverhalten::load() {
    Bereich = Abschnitt::Keiner;
    Command3.each([](Button& taste) { taste.Visible = false; });
    for (Button* taste : {&Command1, &Command2, &Command4, &Command6})
        taste->Enabled = false;
    Frame1.Visible = false;
    Text1.each([](TextBox& feld) { feld.Visible = feld.Enabled = false; });
    Command6.BackColor = farbe(avsvfarben::Neutral);
    NamenEintragen();
    BausteineAV = TexteLadenAV(programm().directory());
    BausteineSV = TexteLadenSV(programm().directory());
    SpeicherEinlesen();
    BildnamenBilden();
    Command5.BackColor = farbe(avsvfarben::Verlassen);
}

void GsArbeitsverhalten::NamenEintragen() {
    Liste = NamenLaden(programm().directory());
    for (int i = 0; i < Liste.Schuelerzahl; ++i)
        Combo1.addItem(Liste.Kinder[i].Nachname + u"  " + Liste.Kinder[i].Vorname);
    Label2.Caption = Liste.Klasse;
}

void GsArbeitsverhalten::SpeicherEinlesen() {
    if (!SpeicherLaden(programm().directory(), Liste, Speicher))
        NamenlisteAbweichend();
}

void GsArbeitsverhalten::NamenlisteAbweichend() {
    const Antwort antwort = programm().machine().dialogs.message(
        {.text = u"Die Namensliste stimmt nicht mit den bisher gespeicherten Daten und "
                 u"Textinhalten überein. Sollen alle bisherigen Eintragungen gelöscht und die "
                 u"Dateien an Hand der Namensliste ganz neu angelegt werden ?",
         .tasten = Tasten::JaNein,
         .symbol = Symbol::Stopp});
    if (antwort != Antwort::Ja)
        return;
    SpeicherNeuAnlegen(programm().directory(), Liste);
    SpeicherEinlesen();
}

void GsArbeitsverhalten::AllesSchreiben() {
    SpeicherSchreiben(programm().directory(), Liste, Speicher,
                      programm().machine().calendar.today());
}

void GsArbeitsverhalten::BildnamenBilden() {
    for (int i = 0; i < Liste.Schuelerzahl; ++i)
        Bildname[i] = BildnameVon(Liste.Kinder[i]);
}

void GsArbeitsverhalten::BildZeigen() {
    Schueler = Combo1.listIndex();
    SchuelerBildLaden(Picture1, Bildname[Schueler] + u".JPG");
}

void GsArbeitsverhalten::Combo1_Click() {
    Gespeichert = false;
    Command1.Enabled = Command2.Enabled = true;
    Command6.Enabled = false;
    Command6.BackColor = farbe(avsvfarben::Neutral);
    if (Bereich == Abschnitt::Keiner)
        Label3.Caption = u"Wählen Sie mit den oberen Tasten den Bereich aus, den Sie bearbeiten "
                         u"möchten!";
    BildZeigen();
    SchuelerLeeren(Abschnitt::AV);
    SchuelerLeeren(Abschnitt::SV);
    ZeileAbwaehlen();
    SperrenErmitteln();
    if (Bereich != Abschnitt::Keiner)
        BereichWaehlen(Bereich);
    AllesSchreiben();
    for (const Abschnitt abschnitt : Abschnitte)
        textfeld(abschnitt).setText(Speicher.von(abschnitt).Texte[Schueler]);
}

void GsArbeitsverhalten::BereichWaehlen(Abschnitt abschnitt) {
    const bool istAV = abschnitt == Abschnitt::AV;
    const int kategorien = KategorienVon(abschnitt);
    TextBox& feld = textfeld(abschnitt);
    TextBox& anderesFeld = textfeld(istAV ? Abschnitt::SV : Abschnitt::AV);

    Gespeichert = false;
    Kategorie = 0;
    ZeileAbwaehlen();
    Bereich = abschnitt;
    Frame1.Visible = true;
    Text1.each([](TextBox& box) { box.Visible = true; });
    Label3.Visible = false;
    Frame1.BackColor = feld.BackColor;
    (istAV ? Command1 : Command2).BackColor = feld.BackColor;
    (istAV ? Command2 : Command1).BackColor = farbe(avsvfarben::Grau);
    Command3.each([&](Button& taste) {
        const int k = *taste.index();
        taste.Visible = k < kategorien;
        if (k < kategorien)
            taste.Caption = bausteine().Kategorienamen[k];
    });
    feld.Enabled = true;
    anderesFeld.Enabled = false;
    ZeilenZeigen();
    ZeilenFarben();
    for (int k = 1; k <= kategorien; ++k) {
        Command3_Click(k % kategorien);
        KategorieTasteFaerben();
    }
    SperreZeigen();
    Command4.Enabled = true;
    Command4.BackColor = farbe(avsvfarben::Aktiv);
    if (speicher().Gesperrt[Schueler] == 0)
        setFocus(Command3(0));
    else
        setFocus(feld);
}

void GsArbeitsverhalten::Command3_Click(int Index) {
    Gespeichert = false;
    Kategorie = Index;
    ZeileAbwaehlen();
    ZeilenZeigen();
    ZeilenFarben();
    KategorieTastenZurueck();
    KategorieTasteFaerben();
}

void GsArbeitsverhalten::ZeilenZeigen() {
    Frame1.Caption = bausteine().Kategorienamen[Kategorie];
    Option1.each([&](OptionButton& option) {
        option.Caption = bausteine().Zeilen[Kategorie][*option.index()];
    });
}

void GsArbeitsverhalten::ZeilenFarben() {
    if (Bereich == Abschnitt::SV && Kategorie >= KategorienSV)
        Kategorie = 0;
    for (int zeile = 1; zeile <= 9; ++zeile)
        Option1(zeile).BackColor = farbe(bausteine().Zeilenfarben[zeile - 1][Kategorie]);
}

void GsArbeitsverhalten::KategorieTastenGrau() {
    Command3.each([](Button& taste) { taste.BackColor = farbe(avsvfarben::Grau); });
}

void GsArbeitsverhalten::KategorieTastenZurueck() {
    Command3.each([](Button& taste) {
        if (taste.BackColor == farbe(avsvfarben::Gelb))
            taste.BackColor = farbe(avsvfarben::Grau);
    });
}

void GsArbeitsverhalten::KategorieTasteFaerben() {
    const int wahl = speicher().Wahl[Schueler][Kategorie];
    Command3(Kategorie).BackColor = wahl > 0 ? Option1(wahl).BackColor : farbe(avsvfarben::Gelb);
}

int GsArbeitsverhalten::gewaehlteZeile(int kategorie) const {
    return Bereich == Abschnitt::Keiner ? 0 : Speicher.von(Bereich).Wahl[Schueler][kategorie];
}

int GsArbeitsverhalten::gezeigteZeile(int kategorie) const {
    const int zeile = gewaehlteZeile(kategorie);
    const bool traegtFarbe = zeile > 0 && Command3(kategorie).BackColor ==
                                              farbe(bausteine().Zeilenfarben[zeile - 1][kategorie]);
    return traegtFarbe ? zeile : 0;
}

void GsArbeitsverhalten::ZeileAbwaehlen() { Option1(Zeile).setValue(false); }

void GsArbeitsverhalten::Option1_Click(int Index) {
    Zeile = Index;
    WahlMerken();
    TextBilden();
    TextErsetzen();
    KategorieTasteFaerben();
    Command5.Caption = u"Alle Eingaben beenden";
}

void GsArbeitsverhalten::WahlMerken() {
    if (Option1(Zeile).value())
        speicher().Wahl[Schueler][Kategorie] = Zeile;
}

void GsArbeitsverhalten::TextBilden() {
    const auto& kind = Liste.Kinder[Schueler];
    const auto satzBauen = Bereich == Abschnitt::AV ? AVSatzBauen : SVSatzBauen;
    speicher().Texte[Schueler] =
        satzBauen(kind.Vorname, kind.Geschlecht, speicher().Wahl[Schueler], bausteine().Zeilen);
}

void GsArbeitsverhalten::TextErsetzen() {
    Text& text = speicher().Texte[Schueler];
    text = ersetzt(text);
    textfeld(Bereich).setText(text);
}

Text GsArbeitsverhalten::ersetzt(const Text& text) const {
    const auto& kind = Liste.Kinder[Schueler];
    Einsetzwerte werte;
    werte.Vorname = kind.Vorname;
    werte.Geschlecht = kind.Geschlecht;
    return PlatzhalterErsetzen(text, werte, TextregelnArbeitsverhalten);
}

void GsArbeitsverhalten::SchuelerLeeren(Abschnitt abschnitt) {
    Speicher.von(abschnitt).Wahl[Schueler].fill(0);
    textfeld(abschnitt).setText({});
}

void GsArbeitsverhalten::SperrenErmitteln() {
    for (const Abschnitt abschnitt : Abschnitte) {
        Abschnittsspeicher& einer = Speicher.von(abschnitt);
        for (int i = 0; i < Schuelerplaetze; ++i)
            einer.Gesperrt[i] = einer.Texte[i].empty() ? 0 : 1;
    }
}

void GsArbeitsverhalten::SperreZeigen() {
    const bool gesperrt = speicher().Gesperrt[Schueler] != 0;
    Picture4.Visible = gesperrt;
    Frame1.Enabled = !gesperrt;
    if (gesperrt)
        Command4.Enabled = true;
    Command6.Enabled = gesperrt;
    Command6.BackColor = farbe(gesperrt ? avsvfarben::Rot : avsvfarben::Neutral);
}

void GsArbeitsverhalten::Text1_Click(int) {
    EinfuegungenAnbieten(einfuegetasten());
    ZeileAbwaehlen();
    KategorieTastenGrau();
    Command4.Enabled = true;
    Command4.BackColor = farbe(avsvfarben::Aktiv);
    speicher().Gesperrt[Schueler] = 1;
    SperreZeigen();
}

void GsArbeitsverhalten::Text1_DblClick(int Index) {
    TextBox& feld = Text1(Index);
    feld.setText(ersetzt(MitEinfuegung(programm(), feld, TextregelnArbeitsverhalten)));
}

void GsArbeitsverhalten::Text1_LostFocus(int Index) {
    Speicher.von(Index == 0 ? Abschnitt::AV : Abschnitt::SV).Texte[Schueler] = Text1(Index).text();
}

void GsArbeitsverhalten::Command4_Click() {
    Gespeichert = true;
    AllesSchreiben();
}

void GsArbeitsverhalten::Command5_Click() {
    Antwort antwort = Antwort::Nein;
    if (!Gespeichert)
        antwort = programm().machine().dialogs.message(
            {.text = u"Sollen alle bisherigen Eintragungen gespeichert werden ?",
             .tasten = Tasten::JaNeinAbbrechen,
             .symbol = Symbol::Frage});
    if (antwort == Antwort::Ja)
        AllesSchreiben();
    if (antwort == Antwort::Abbrechen)
        programm().unload(bildschirme::Einfuegungen);
    else
        MitEinfuegungenVerlassen(*this);
}

void GsArbeitsverhalten::Command6_Click() {
    speicher().Texte[Schueler].clear();
    speicher().Gesperrt[Schueler] = 0;
    SchuelerLeeren(Bereich);
    KategorieTastenGrau();
    Command3_Click(0);
    KategorieTasteFaerben();
    SperreZeigen();
    ZeileAbwaehlen();
    Frame1.Enabled = true;
    Command6.Enabled = false;
    Command6.BackColor = farbe(avsvfarben::Neutral);
    Label3.Visible = false;
    setFocus(Option1(0));
}

Einfuegetasten GsArbeitsverhalten::einfuegetasten() const {
    return {Command7, farbe(avsvfarben::Aktiv), farbe(avsvfarben::Neutral)};
}

void GsArbeitsverhalten::Command7_Click(int Index) {
    EinfuegungenSchalten(programm(), einfuegetasten(), Index);
}

void GsArbeitsverhalten::Command8_Click() { WordStarten(programm(), word::Hilfe(2)); }

} // namespace zeugnis
