#include "editors/editor34.h"

#include "common/editor_common.h"
#include "common/entry_common.h"
#include "common/word_launch.h"
#include "controls/program.h"

namespace zeugnis {
namespace {

constexpr int Standard = 0; // the button that loads the Standard wording

Farbwert farbe(int eintrag) { return FarbtafelEditoren()[eintrag]; }

} // namespace

void GSAenderung34::load() {
    StammdatenLesen(Text5);
    Geladen = Gespeichert = false;
    Command5.Visible = false;
    Command6.BackColor = farbe(editorfarben::Rot);
    Command7(0).BackColor = farbe(editorfarben::Aktiv);
    Command7(1).Enabled = false;
    Command7(1).BackColor = farbe(editorfarben::Grau);
    Command2.each([](Button& taste) { taste.Enabled = false; });
}

void GSAenderung34::Command1_Click(int Index) {
    Geladen = true;
    Label5.Visible = false;
    Command2.each([](Button& taste) {
        taste.Enabled = true;
        taste.BackColor = farbe(editorfarben::Grau);
    });
    if (!FortfahrenOderSchliessen())
        return;
    Frame1.Visible = true;
    Command5.BackColor = farbe(editorfarben::Aktiv);
    Command2(0).BackColor = Frame1.BackColor;
    Command1.each([](Button& taste) { taste.Enabled = false; });
    HinweisZeigen(0);
    TexteLesen(Index == Standard, Jahrgangsziffer);
    Command5.Visible = true;
    TexteZeigen();
}

void GSAenderung34::Command2_Click(int Index) {
    AktuelleSeite = Index;
    Command2.each([](Button& taste) { taste.BackColor = farbe(editorfarben::Grau); });
    for (int seite = 0; seite < Seitenzahl; ++seite)
        rahmen(seite).Visible = seite == Index;
    Command2(Index).BackColor = rahmen(Index).BackColor;
    HinweisZeigen(Index);
}

void GSAenderung34::Command7_Click(int Index) {
    EinfuegungenSchalten(
        programm(), {Command7, farbe(editorfarben::Aktiv), farbe(editorfarben::Ruhend)}, Index);
}

void GSAenderung34::Command5_Click() {
    SpeichernBestaetigen();
    SpeichernWennJa();
}

// The files that were loaded are written: after the Standard wording, those with "Standard" in
// their names, in Daten. The entry screen does not read these.
std::vector<Text> GSAenderung34::Zieldateien() const { return Dateinamen; }

void GSAenderung34::Command8_Click() { WordStarten(programm(), word::Hilfe(7)); }

void GSAenderung34::Label1_DblClick() {
    if (Geladen)
        StandardFragen();
    StandardKopieren();
}

} // namespace zeugnis
