#pragma once

#include "behaviour/avsv_modules.h"
#include "behaviour/avsv_stores.h"
#include "common/entry_common.h"
#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "files/pupil_list.h"

namespace zeugnis {

/// The screen on which the texts on work and social behaviour are written, pupil by pupil.
class GsArbeitsverhalten : public Screen {
  public:
    explicit GsArbeitsverhalten(Programm& programm);
    void load() override;

    void Combo1_Click();
    void Command1_Click() { BereichWaehlen(Abschnitt::AV); }
    void Command2_Click() { BereichWaehlen(Abschnitt::SV); }
    void Command3_Click(int Index);
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click(int Index);
    void Command8_Click();
    void Option1_Click(int Index);
    void Text1_Click(int Index);
    void Text1_DblClick(int Index);
    void Text1_LostFocus(int Index);

    /// The line of a category that is chosen for the child, 0 for none or before a section is.
    [[nodiscard]] int gewaehlteZeile(int kategorie) const;
    /// The same, as long as the category's button wears the colour of that line.
    [[nodiscard]] int gezeigteZeile(int kategorie) const;

    Namensliste Liste;
    Schuelertabelle<Text> Bildname;
    AVSVSpeicher Speicher;
    Bausteine BausteineAV;
    Bausteine BausteineSV;

    Abschnitt Bereich = Abschnitt::Keiner;
    int Schueler = 0;
    int Kategorie = 0;
    int Zeile = 0;
    bool Gespeichert = false;

    Label Label1{*this, u"Label1"};          ///< title
    Label Label2{*this, u"Label2"};          ///< class
    ComboBox Combo1{*this, u"Combo1"};       ///< pupils
    Label Label3{*this, u"Label3"};          ///< what to do now
    PictureBox Picture1{*this, u"Picture1"}; ///< the pupil
    PictureBox Picture4{*this, u"Picture4"}; ///< lock sign
    Button Command1{*this, u"Command1"};     ///< section AV
    Button Command2{*this, u"Command2"};     ///< section SV
    ControlArray<Button> Command3{*this, u"Command3", 0, KategorienHoechstens - 1}; ///< categories
    Frame Frame1{*this, u"Frame1"}; ///< the lines of a category
    ControlArray<OptionButton> Option1{*this, u"Option1", 0, 9, &Frame1}; ///< lines; 0 chooses none
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 1};      ///< text of AV (0) and SV (1)
    Button Command4{*this, u"Command4"};                     ///< save all
    Button Command5{*this, u"Command5"};                     ///< leave
    Button Command6{*this, u"Command6"};                     ///< starts the text anew
    ControlArray<Button> Command7{*this, u"Command7", 0, 1}; ///< insertion window: show, hide
    Button Command8{*this, u"Command8"};                     ///< help

  private:
    void EntwurfSetzen();
    void HandlerVerbinden();

    void NamenEintragen();
    void SpeicherEinlesen();
    void NamenlisteAbweichend();
    void AllesSchreiben();
    void BildnamenBilden();
    void BildZeigen();

    void BereichWaehlen(Abschnitt abschnitt);
    void ZeilenZeigen();
    void ZeilenFarben();
    void KategorieTastenGrau();
    void KategorieTastenZurueck();
    void KategorieTasteFaerben();
    void ZeileAbwaehlen();
    void WahlMerken();
    void TextBilden();
    void TextErsetzen();
    void SchuelerLeeren(Abschnitt abschnitt);
    void SperrenErmitteln();
    void SperreZeigen();

    [[nodiscard]] const Bausteine& bausteine() const {
        return Bereich == Abschnitt::SV ? BausteineSV : BausteineAV;
    }
    [[nodiscard]] Abschnittsspeicher& speicher() { return Speicher.von(Bereich); }
    [[nodiscard]] TextBox& textfeld(Abschnitt abschnitt) const {
        return Text1(abschnitt == Abschnitt::AV ? 0 : 1);
    }
    [[nodiscard]] Text ersetzt(const Text& text) const;
    [[nodiscard]] Einfuegetasten einfuegetasten() const;
};

} // namespace zeugnis
