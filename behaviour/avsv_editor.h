#pragma once

#include "behaviour/avsv_modules.h"
#include "controls/control_array.h"
#include "controls/screen.h"
#include "controls/text_box.h"

#include <array>

namespace zeugnis {

/// The screen on which the lines of work and social behaviour, the names of the categories and the
/// colours of the lines are changed.
class GSAVSVAenderung : public Screen {
  public:
    explicit GSAVSVAenderung(Programm& programm);
    void load() override;

    void Command1_Click(int Index);
    void Command2_Click() { AbschnittWaehlen(Abschnitt::AV); }
    void Command3_Click() { AbschnittWaehlen(Abschnitt::SV); }
    void Command4_Click(int Index);
    void Command5_Click();
    void Command6_Click();
    void Command7_Click(int Index);
    void Command8_Click(int Index);
    void Label1_DblClick();
    void Text2_DblClick(int Index);

    Bausteine FormulierungenAV;
    Bausteine FormulierungenSV;
    /// Categories and lines of AV, then of SV, as the load reads them.
    std::array<Text, 4> Dateinamen;
    Abschnitt Bereich = Abschnitt::Keiner;
    int KategorieAV = 0; ///< counted from 1, up to the seven or six of the section
    int KategorieSV = 0;
    bool Geladen = false;
    bool Gespeichert = false;
    int Farbzaehler = 0; ///< the colour that the next click on any colour button gives, 0 to 4
    Text Passwort;

    Label Label1{*this, u"Label1"}; ///< title; a double click renews the Standard
    Label Label2{*this, u"Label2"}; ///< "Kategorie:"
    TextBox Text1{*this, u"Text1"}; ///< name of the category
    ControlArray<Label> Label5{*this, u"Label5", 0, 9};      ///< numbers of the lines
    ControlArray<TextBox> Text2{*this, u"Text2", 0, 9};      ///< lines
    Label Label4{*this, u"Label4"};                          ///< heading of the colours
    ControlArray<Button> Command7{*this, u"Command7", 0, 9}; ///< next colour for a line
    Control Line1{*this, u"Line1"};                          ///< how far a line should reach
    Label Label3{*this, u"Label3"};                          ///< hints
    ControlArray<Button> Command1{*this, u"Command1", 0, 1}; ///< load Standard, current
    Button Command2{*this, u"Command2"};                     ///< section AV
    Button Command3{*this, u"Command3"};                     ///< section SV
    ControlArray<Button> Command4{*this, u"Command4", 0, KategorienHoechstens - 1}; ///< categories
    ControlArray<Button> Command8{*this, u"Command8", 0, 2}; ///< placeholders: show, hide; help
    Button Command5{*this, u"Command5"};                     ///< save all
    Button Command6{*this, u"Command6"};                     ///< leave

  private:
    void EntwurfSetzen();
    void HandlerVerbinden();

    void AbschnittWaehlen(Abschnitt abschnitt);
    void TastenBeschriften();
    void EditorZeigen();
    void EditorFarben();
    void HinweisZeigen();
    void EingabenUebernehmen();
    void FarbenUebernehmen();
    void FormulierungenSchreiben();

    [[nodiscard]] Bausteine& bausteine() {
        return Bereich == Abschnitt::SV ? FormulierungenSV : FormulierungenAV;
    }
    /// The category on display, counted from 0 as the tables count.
    [[nodiscard]] int kategorie() const {
        return (Bereich == Abschnitt::SV ? KategorieSV : KategorieAV) - 1;
    }
};

/// The text with one blank in place of its first double one; a second one stays.
Text LeerzeichenBereinigen(const Text& text);

} // namespace zeugnis
