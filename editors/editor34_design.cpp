// The tables of the screen: its files, which box shows which cell; what stands on it before it
// loads, and which routine answers which event.

#include "common/editor_common.h"
#include "common/screen_names.h"
#include "editors/editor34.h"
#include "files/school_data.h"

namespace zeugnis {
namespace {

enum Datei { Foerder, Zensur, Interessen, Versetzung3, Versetzung4, Bemerkungen, AG, Dateienzahl };

constexpr auto Dateien = std::to_array<Moduldatei>(
    {moduldateien::Foerder34, moduldateien::Zensurabweichung, moduldateien::Interessen34,
     moduldateien::Versetzung3, moduldateien::Versetzung4, moduldateien::Bemerkungen34,
     moduldateien::AG});
static_assert(Dateien.size() == Dateienzahl);

bool imHalbjahr1(const Bausteineditor& editor) { return IstZahl(editor.Halbjahr, 1); }
bool imHalbjahr2(const Bausteineditor& editor) { return IstZahl(editor.Halbjahr, 2); }

// Text2(0), Text2(1) and Text4(0) show no cell.
constexpr auto Feldertafel = std::to_array<Feldreihe>({
    {1, 0, 8, Foerder},
    {2, 2, 2, AG},
    {3, 0, 1, Interessen, 1, 0, true},
    {3, 1, 13, Interessen, 1, 1},
    {4, 1, 1, Zensur, 1, 3, true},
    {4, 2, 3, Zensur},
    {4, 5, 1, Zensur, 1, 4, true, imHalbjahr1},
    {4, 5, 1, Zensur, 1, 5, true, imHalbjahr2},
    {4, 6, 3, Bemerkungen, 1},
    {4, 9, 5, Bemerkungen, 2},
    {4, 14, 2, Bemerkungen, 3},
    {4, 16, 1, Bemerkungen, 4, 0, true},
    {4, 17, 4, Versetzung3, 1, 0, false, imHalbjahr1},
    {4, 17, 4, Versetzung3, 2, 0, false, imHalbjahr2},
    {4, 17, 4, Versetzung4, 1, 0, false, imHalbjahr1},
    {4, 17, 4, Versetzung4, 2, 0, false, imHalbjahr2},
});

constexpr auto ZuKopieren = std::to_array<TextView>(
    {u"Förder34.Txt", u"Zensurabweichung.Txt", u"Interessen34.Txt", u"Versetzung3.Txt",
     u"Versetzung4.Txt", u"Bemerkungen34.Txt", u"AG.Txt"});

constexpr TextView HinweisPunkt = u"Der Punkt am Ende wird vom Programm gesetzt. Kommata bitte nur "
                                  u"in der Mitte des Textes einfügen.";
constexpr TextView HinweisRot =
    u"Der rote Text ist zwar veränderbar, wird aber automatisch gesetzt.";
constexpr TextView HinweisBlau = u"In den blau hinterlegten Feldern ist Mehrfachauswahl möglich.";
constexpr TextView HinweisPlatzhalter = u"Nutzen Sie für die Platzhalter die Textvorgaben !";

constexpr int SeiteInteressen = 1;

} // namespace

GSAenderung34::GSAenderung34(Programm& programm)
    : Bausteineditor(
          programm, bildschirme::GSAenderung34, u"34Änderung",
          {.Dateien = Dateien,
           .Felder = Feldertafel,
           .StandardZuKopieren = ZuKopieren,
           .SpeichernFrage =
               u"Sie überschreiben jetzt die aktuellen Formulierungen mit dem hier in allen "
               u"Bereichen sichtbaren Text. Im Programm für das 3. und 4. Schuljahr stehen dann "
               u"nur die neuen Formulierungen zur Verfügung. Wollen Sie das wirklich ?",
           .EndeFrage = u"Sie haben eventuelle Änderungen noch nicht gespeichert. Wollen Sie die "
                        u"Änderungen noch speichern?"}) {
    EntwurfSetzen();
    HandlerVerbinden();
}

Frame& GSAenderung34::rahmen(int seite) {
    const std::array<Frame*, Seitenzahl> alle = std::to_array<Frame*>({&Frame1, &Frame2, &Frame3});
    return *alle.at(static_cast<size_t>(seite));
}

const ControlArray<TextBox>& GSAenderung34::textfeld(int nummer) const {
    const std::array<const ControlArray<TextBox>*, 4> alle =
        std::to_array<const ControlArray<TextBox>*>({&Text1, &Text2, &Text3, &Text4});
    return *alle.at(static_cast<size_t>(nummer - 1));
}

void GSAenderung34::HinweisZeigen(int seite) {
    Text zeilen = Text(HinweisPunkt) + Text(Zeilenende);
    if (seite != SeiteInteressen)
        zeilen += Text(HinweisRot) + Text(Zeilenende) + Text(HinweisBlau) + Text(Zeilenende);
    Label2.Caption = zeilen + Text(HinweisPlatzhalter);
}

void GSAenderung34::EntwurfSetzen() {
    Label1.Caption = u"Eingabefenster zur Änderung der Textbausteine";
    Label2.Caption = u"Hinweise zur Änderung";
    Label3.Caption = u"Förderteilnahme";
    Label4.Caption = u"AG";
    Label5.Caption = u"Laden Sie zuerst die gewünschten Textbausteine und wählen Sie danach den "
                     u"Bereich, den Sie bearbeiten möchten!";
    Command1(0).Caption = u"Standardtextbausteine laden";
    Command1(0).ToolTip = u"Die Standardformulierungen des Programmes laden";
    Command1(1).Caption = u"Aktuelle Textbausteine laden";
    Command1(1).ToolTip = u"Die augenblicklich aktuellen Formulierungen laden";
    Command2(0).Caption = u"Förderteilnahme und AG";
    Command2(1).Caption = u"Interessen";
    Command2(2).Caption = u"Bemerkungen";
    Command5.Caption = u"Alles als aktuelle Formulierungen speichern";
    Command5.ToolTip = u"Die augenblicklichen Formulierungen als aktuelle Formulierungen speichern";
    Command6.Caption = u"Beenden";
    Command6.ToolTip = u"Zurück zum Startmenü";
    Command7(0).Caption = u"Textvorgaben für Platzhalter anzeigen";
    Command7(1).Caption = u"Textvorgaben für Platzhalter verbergen";

    Frame1.Caption = Frame2.Caption = u"Vorname";
    Frame3.Caption = u"Bemerkungen";
    for (int seite = 0; seite < Seitenzahl; ++seite)
        rahmen(seite).Visible = false;
    for (TextBox* feld : {&Text2(0), &Text2(1)})
        feld->setText(u"In diesem Feld werden die aus der Datenbank übernommenen "
                      u"Arbeitsgemeinschaften automatisch angezeigt.");
    Text4(0).setText(u"Hier stehen Bemerkungen zum Schwimm- und Sportabzeichen und zur "
                     u"Radfahrprüfung. Sie sind durch das Programm gesteuert und nicht "
                     u"veränderbar.");
    for (TextBox* feld : {&Text2(0), &Text2(1), &Text4(0), &Text5(0), &Text5(1)})
        feld->Locked = true;
    for (TextBox* feld : {&Text2(0), &Text2(1), &Text3(0), &Text4(0)})
        feld->BackColor = FarbeVorgegeben;
    for (int i = 1; i <= 6; ++i)
        Text1(i).BackColor = FarbeMehrfachwahl;
    for (const int i : {2, 3, 4, 9, 10, 11, 12, 13})
        Text4(i).BackColor = FarbeMehrfachwahl;
}

void GSAenderung34::HandlerVerbinden() {
    using Diese = GSAenderung34;
    Label1.onDblClick = [this] { Label1_DblClick(); };
    Command1.on(&Control::onClick, this, &Diese::Command1_Click);
    Command2.on(&Control::onClick, this, &Diese::Command2_Click);
    Command5.onClick = [this] { Command5_Click(); };
    Command6.onClick = [this] { Command6_Click(); };
    Command7.on(&Control::onClick, this, &Diese::Command7_Click);
    Command8.onClick = [this] { Command8_Click(); };
    FelderVerbinden(1, 4);
}

} // namespace zeugnis
