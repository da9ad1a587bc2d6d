#include "editors/editor12.h"

#include "common/editor_common.h"
#include "common/entry_common.h"
#include "common/word_launch.h"
#include "controls/program.h"
#include "files/school_data.h"

namespace zeugnis {
namespace {

constexpr int SeiteZahlen = 6; // the button of "Zahlen und Operationen"
constexpr int NurJahr2Ab = 27; // the boxes of it that year 1 does not have
constexpr int Standard = 0;    // the button that loads the Standard wording

Farbwert farbe(int eintrag) { return FarbtafelEditoren()[eintrag]; }

} // namespace

bool GSAenderung12::istJahr1() const { return IstZahl(Jahrgangsziffer, 1); }

void GSAenderung12::load() {
    StammdatenLesen(Text29);
    Geladen = Gespeichert = false;
    Command5.Visible = false;
}

void GSAenderung12::Command3_Click(int Index) {
    Geladen = true;
    Command1.each([](Button& taste) {
        taste.BackColor = farbe(editorfarben::Ruhend);
        taste.Enabled = true;
    });
    Command3.each([](Button& taste) { taste.Enabled = false; });
    Command2(0).BackColor = farbe(editorfarben::Aktiv);
    Command2(0).Enabled = true;
    Label4.Visible = false;
    Frame1.Visible = true;
    Command1(ErsteSeite).BackColor = Frame1.BackColor;
    HinweisNachLaden();
    if (!FortfahrenOderSchliessen())
        return;
    Command5.Enabled = Command5.Visible = true;
    Command5.BackColor = farbe(editorfarben::Aktiv);
    TexteLesen(Index == Standard, istJahr1() ? u"1" : u"2");
    TexteZeigen();
}

void GSAenderung12::Command1_Click(int Index) {
    Command1.each([](Button& taste) { taste.BackColor = farbe(editorfarben::Ruhend); });
    for (int seite = 0; seite < Seitenzahl; ++seite)
        rahmen(seite).Visible = seite == Index - ErsteSeite;
    Command1(Index).BackColor = rahmen(Index - ErsteSeite).BackColor;
    HinweisZeigen(Index);
    if (Index == SeiteZahlen && istJahr1())
        for (int i = NurJahr2Ab; i <= Text5.last(); ++i)
            Text5(i).Visible = false;
    TexteZeigen();
}

void GSAenderung12::Command2_Click(int Index) {
    EinfuegungenSchalten(
        programm(), {Command2, farbe(editorfarben::Aktiv), farbe(editorfarben::Ruhend)}, Index);
}

void GSAenderung12::Command5_Click() {
    if (Geladen)
        SpeichernBestaetigen();
    SpeichernWennJa();
}

// Whatever has been loaded, the current files are written.
std::vector<Text> GSAenderung12::Zieldateien() const { return AktuelleDateien(Jahrgangsziffer); }

void GSAenderung12::Command8_Click() { WordStarten(programm(), word::Hilfe(6)); }

void GSAenderung12::Label1_DblClick() {
    if (!Geladen)
        return;
    StandardFragen();
    StandardKopieren();
}

} // namespace zeugnis
