#include "behaviour/avsv_editor.h"

#include "common/editor_common.h"
#include "common/entry_common.h"
#include "common/screen_names.h"
#include "common/word_launch.h"
#include "controls/program.h"
#include "files/file_catalogue.h"
#include "files/module_files.h"

namespace zeugnis {
namespace {

constexpr int Zeilenfarbzahl = 5;
constexpr int Aktuell = 1; // the button that loads the current wording

// In the order of `Dateinamen`.
constexpr std::array<TextView, 4> AktuelleDateien = std::to_array<TextView>(
    {dateien::AVKategorien, dateien::TexteAV, dateien::SVKategorien, dateien::TexteSV});
// The same files in the order in which the Standard copies are renewed.
constexpr auto ZuKopieren = std::to_array<TextView>(
    {u"AVKategorien.Txt", u"SVKategorien.Txt", u"TexteAV.Txt", u"TexteSV.Txt"});

Farbwert farbe(int eintrag) { return FarbtafelEditoren()[eintrag]; }

} // namespace

Text LeerzeichenBereinigen(const Text& text) {
    const size_t stelle = text.find(u"  ");
    if (stelle == Text::npos)
        return text;
    return trimmed(text.substr(0, stelle)) + u" " + trimmed(text.substr(stelle + 1));
}

void GSAVSVAenderung::load() {
    Farbzaehler = 0;
    Geladen = false;
    Command7(0).Visible = Command5.Visible = false;
    Command2.Enabled = Command3.Enabled = Text1.Enabled = false;
    Text2.each([](TextBox& feld) { feld.Enabled = false; });
    Command8(0).BackColor = farbe(editorfarben::Aktiv);
    programm().machine().clipboard.clear();
}

void GSAVSVAenderung::Command1_Click(int Index) {
    if (!FortfahrenFragen(programm())) {
        programm().unload(name());
        return;
    }
    Command2.Enabled = Command3.Enabled = Text1.Enabled = true;
    Text2.each([](TextBox& feld) { feld.Enabled = true; });
    for (size_t i = 0; i < Dateinamen.size(); ++i)
        Dateinamen.at(i) = Index == Aktuell
                               ? Text(AktuelleDateien.at(i))
                               : Text(dateien::Standard) + Standardname(AktuelleDateien.at(i));
    FormulierungenAV =
        FormulierungenLadenAV(programm().directory(), {Dateinamen[0], Dateinamen[1]});
    FormulierungenSV =
        FormulierungenLadenSV(programm().directory(), {Dateinamen[2], Dateinamen[3]});
    Command2_Click();
    Command4(0).BackColor = farbe(editorfarben::Gewaehlt);
    Command1.each([](Button& taste) { taste.Visible = false; });
    Command5.Visible = true;
    Geladen = true;
}

void GSAVSVAenderung::AbschnittWaehlen(Abschnitt abschnitt) {
    const bool istAV = abschnitt == Abschnitt::AV;
    Gespeichert = false;
    for (int k = KategorienSV; k < KategorienAV; ++k)
        Command4(k).Visible = istAV;
    Command2.BackColor = farbe(istAV ? editorfarben::Gewaehlt : editorfarben::Ruhend);
    Command3.BackColor = farbe(istAV ? editorfarben::Ruhend : editorfarben::Gewaehlt);
    EingabenUebernehmen();
    Bereich = abschnitt;
    (istAV ? KategorieAV : KategorieSV) = 1;
    HinweisZeigen();
    TastenBeschriften();
    EditorZeigen();
    EditorFarben();
}

void GSAVSVAenderung::TastenBeschriften() {
    for (int k = 0; k < KategorienVon(Bereich); ++k)
        Command4(k).Caption = bausteine().Kategorienamen[k];
    Command4.each([](Button& taste) { taste.BackColor = farbe(editorfarben::Ruhend); });
    Command4(0).BackColor = farbe(editorfarben::Gewaehlt);
}

void GSAVSVAenderung::Command4_Click(int Index) {
    if (Bereich == Abschnitt::Keiner)
        return;
    Gespeichert = false;
    EingabenUebernehmen();
    KategorieAV = KategorieSV = Index + 1;
    TastenBeschriften();
    Command4(0).BackColor = farbe(editorfarben::Ruhend);
    Command4(Index).BackColor = farbe(editorfarben::Gewaehlt);
    EditorZeigen();
    EditorFarben();
    HinweisZeigen();
}

void GSAVSVAenderung::EditorZeigen() {
    Text1.setText(bausteine().Kategorienamen[kategorie()]);
    Text2.each(
        [&](TextBox& feld) { feld.setText(bausteine().Zeilen[kategorie()][*feld.index()]); });
}

void GSAVSVAenderung::EditorFarben() {
    Text2(0).BackColor = farbe(editorfarben::Ruhend);
    for (int zeile = 1; zeile <= 9; ++zeile)
        Text2(zeile).BackColor = farbe(bausteine().Zeilenfarben[zeile - 1][kategorie()]);
}

void GSAVSVAenderung::EingabenUebernehmen() {
    if (Bereich == Abschnitt::Keiner)
        return;
    bausteine().Kategorienamen[kategorie()] = Text1.text();
    Text2.each([&](TextBox& feld) {
        bausteine().Zeilen[kategorie()][*feld.index()] =
            LeerzeichenBereinigen(trimmed(feld.text()));
    });
}

void GSAVSVAenderung::Command7_Click(int Index) {
    if (Bereich == Abschnitt::Keiner)
        return;
    Gespeichert = false;
    Text2(Index).BackColor = farbe(Farbzaehler);
    Farbzaehler = (Farbzaehler + 1) % Zeilenfarbzahl;
    FarbenUebernehmen();
}

void GSAVSVAenderung::FarbenUebernehmen() {
    for (int zeile = 1; zeile <= 9; ++zeile)
        for (int nummer = 0; nummer < Zeilenfarbzahl; ++nummer)
            if (Text2(zeile).BackColor == farbe(nummer))
                bausteine().Zeilenfarben[zeile - 1][kategorie()] = nummer;
}

void GSAVSVAenderung::Text2_DblClick(int Index) { EinfuegungInsFeld(Text2(Index)); }

void GSAVSVAenderung::Command8_Click(int Index) {
    if (Index == 2)
        WordStarten(programm(), word::Hilfe(8));
    else
        EinfuegungenSchalten(programm(),
                             {.Tasten = Command8,
                              .Aktiv = farbe(editorfarben::Aktiv),
                              .Ruhend = farbe(editorfarben::Ruhend),
                              .Entladen = true},
                             Index);
}

void GSAVSVAenderung::Command5_Click() {
    if (!SicherheitshalberFragen(
            programm(), u"Sie überschreiben jetzt die aktuellen Formulierungen mit dem hier in "
                        u"allen Bereichen sichtbaren Text. Beim Arbeits- und Sozialverhalten "
                        u"stehen dann nur die neuen Formulierungen als Textbausteine zur "
                        u"Verfügung. Wollen Sie das wirklich ?"))
        return;
    EingabenUebernehmen();
    FormulierungenSchreiben();
}

void GSAVSVAenderung::FormulierungenSchreiben() {
    for (int k = 0; k < KategorienAV; ++k) {
        Text& zeile = FormulierungenAV.Zeilen[k][k];
        zeile = LeerzeichenBereinigen(zeile);
    }
    zeugnis::FormulierungenSchreiben(programm().directory(), FormulierungenAV, FormulierungenSV);
    Gespeichert = true;
}

// What stands in the boxes of the category on display is not taken over here: a change of category
// or the save button does that.
void GSAVSVAenderung::Command6_Click() {
    programm().machine().clipboard.clear();
    if (!Gespeichert && Geladen &&
        SicherheitshalberFragen(programm(), u"Sie haben eventuelle Änderungen noch nicht "
                                            u"gespeichert. Wollen Sie noch speichern ?"))
        FormulierungenSchreiben();
    MitEinfuegungenVerlassen(*this);
}

void GSAVSVAenderung::Label1_DblClick() {
    if (Geladen)
        StandardUeberschreibenFragen(programm(), Passwort);
    StandardUeberschreiben(programm(), Passwort, ZuKopieren);
}

} // namespace zeugnis
