#pragma once

#include "common/entry_common.h"
#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "files/pupil_list.h"
#include "files/school_data.h"
#include "years34/module_files.h"
#include "years34/stores.h"

namespace zeugnis {

/// The screen on which the report of years 3 and 4 is written, pupil by pupil, on three pages. A
/// choice composes the text of its page anew; a page that is locked takes no choices.
class GSAGFI : public Screen {
  public:
    explicit GSAGFI(Programm& programm);
    void load() override;

    void Combo1_Click();
    void Command1_Click(int Index);
    void Command2_Click(int Index);
    void Command7_Click(int Index);
    void Command8_Click();
    void Check1_Click(int Index);
    void Check2_Click(int Index);
    void Check3_Click(int Index);
    void Check5_Click(int Index);
    void Option1_Click(int Index);
    void Option2_Click(int Index);
    void Option3_Click(int Index);
    void Option4_Click(int Index);
    void Option6_Click(int Index);
    /// `seite`: the page of the box, 0 for Text1.
    void Text_Click(int seite);
    void Text_DblClick(int seite);
    void Text_LostFocus(int seite);

    /// The pieces of one pupil's texts and the numbers of his or her choices, 0 for none. They live
    /// in memory only.
    struct Arbeitsstand {
        Text FoerderSatz;
        Text AGSatz;
        Text InteressenSatz;
        Text SportSatz;
        Text ZensurSatz;
        Text LernListe;
        Text VersetzungsSatz;
        int AGWahl = 0;
        int InteressenWahl = 0;
        int LernWahl = 0;
        int UrteilWahl = 0;
        int VersetzungWahl = 0;
    };

    Namensliste Liste;
    Schuldaten Schule; ///< without the last field
    Text Jahrgang;
    jahrgang34::Textbausteine Bausteine;
    jahrgang34::Speicher34 Speicher;
    Schuelertabelle<Arbeitsstand> Staende;
    Schuelertabelle<Text> Bildname;

    int AktuellerSchueler = 0;
    int Seite = 0;
    bool Gespeichert = false;
    bool OhneBereich = true; ///< no page has been opened
    Text LernTeil1;          ///< of the pupil on screen, as LernTeil2
    Text LernTeil2;
    int Letzte = 0; ///< the place of the last item that a list had; before that the class size

    Label Label1{*this, u"Label1"};                          ///< title
    Label Label2{*this, u"Label2"};                          ///< what to do now
    Label Label5{*this, u"Label5"};                          ///< class
    ComboBox Combo1{*this, u"Combo1"};                       ///< pupils
    PictureBox Picture1{*this, u"Picture1"};                 ///< the pupil
    PictureBox Picture2{*this, u"Picture2"};                 ///< lock sign
    ControlArray<Button> Command1{*this, u"Command1", 0, 2}; ///< save all, leave, text anew
    ControlArray<Button> Command2{*this, u"Command2", 0, 2}; ///< pages
    ControlArray<Button> Command7{*this, u"Command7", 0, 1}; ///< insertion window: show, hide
    Button Command8{*this, u"Command8"};                     ///< help

    Frame Frame1{*this, u"Frame1"};              ///< page of support and working groups
    Label Label3{*this, u"Label3", {}, &Frame1}; ///< heading of support
    Label Label4{*this, u"Label4", {}, &Frame1}; ///< heading of working groups
    Label Label8{*this, u"Label8", {}, &Frame1}; ///< hint on several choices
    ControlArray<Label> Label7{*this, u"Label7", 0, 1, &Frame1};          ///< around the support
    ControlArray<CheckBox> Check1{*this, u"Check1", 0, 5, &Frame1};       ///< kinds of support
    ControlArray<OptionButton> Option6{*this, u"Option6", 0, 3, &Frame1}; ///< working groups
    TextBox Text1{*this, u"Text1"};                                       ///< text of the page

    Frame Frame2{*this, u"Frame2"};                                        ///< page of interests
    ControlArray<OptionButton> Option1{*this, u"Option1", 0, 13, &Frame2}; ///< interests
    ControlArray<Label> Label16{*this, u"Label16", 0, 2, &Frame2};  ///< headings of the badges
    ControlArray<CheckBox> Check3{*this, u"Check3", 0, 6, &Frame2}; ///< badges
    TextBox Text2{*this, u"Text2"};                                 ///< text of the page

    Frame Frame3{*this, u"Frame3"};                                 ///< page of remarks
    Label Label10{*this, u"Label10", {}, &Frame3};                  ///< hint on several choices
    ControlArray<Label> Label9{*this, u"Label9", 0, 1, &Frame3};    ///< around the marks
    ControlArray<CheckBox> Check2{*this, u"Check2", 0, 2, &Frame3}; ///< marks that differ
    ControlArray<OptionButton> Option2{*this, u"Option2", 0, 2, &Frame3}; ///< opens the remark
    ControlArray<CheckBox> Check5{*this, u"Check5", 0, 4, &Frame3};       ///< its items
    ControlArray<OptionButton> Option3{*this, u"Option3", 0, 1, &Frame3}; ///< judgement
    Label Label6{*this, u"Label6", {}, &Frame3};                          ///< closes the remark
    ControlArray<OptionButton> Option4{*this, u"Option4", 0, 3, &Frame3}; ///< moving up
    TextBox Text3{*this, u"Text3"};                                       ///< text of the page

    /// By page.
    const std::array<Frame*, jahrgang34::Seitenzahl> Rahmen =
        std::to_array<Frame*>({&Frame1, &Frame2, &Frame3});
    const std::array<TextBox*, jahrgang34::Seitenzahl> Textfelder =
        std::to_array<TextBox*>({&Text1, &Text2, &Text3});

  private:
    void EntwurfSetzen();
    void HandlerVerbinden();

    void NamenEinlesen();
    void BeschriftungenSetzen();
    void BildnamenBilden();
    void AGSaetzeBilden();
    void AllesSpeichern();
    void SpeicherFrageStellen();
    void Beenden();
    void EingabeNeu();

    void AuswahlMerken();
    void AuswahlFarbenZeigen();
    void FoerderAGTextBilden();
    void InteressenTextBilden();
    void BemerkungenTextBilden();

    void TexteAnzeigen();
    void NeuTasteAktualisieren();
    void SperreAnzeigen();
    void SperreNachFeld(int seite);
    void BereichEingabenLeeren() { SeiteLeeren(Seite, true); }
    void SchuelerEingabenLeeren();
    void SeiteLeeren(int seite, bool mitText);
    void FoerderLeeren(bool mitText);
    void InteressenLeeren();
    void BemerkungenLeeren(bool mitText);

    // An array of options and where its choice is kept.
    struct Optionsgruppe {
        const ControlArray<OptionButton>& Optionen;
        int Arbeitsstand::*Wahl;
    };
    const std::array<Optionsgruppe, 5> Optionsgruppen = std::to_array<Optionsgruppe>({
        {Option6, &Arbeitsstand::AGWahl},
        {Option1, &Arbeitsstand::InteressenWahl},
        {Option2, &Arbeitsstand::LernWahl},
        {Option3, &Arbeitsstand::UrteilWahl},
        {Option4, &Arbeitsstand::VersetzungWahl},
    });

    [[nodiscard]] Arbeitsstand& stand() { return Staende[AktuellerSchueler]; }
    [[nodiscard]] Text& textVon(int seite) { return Speicher.Texte[seite][AktuellerSchueler]; }
    [[nodiscard]] int& sperreVon(int seite) { return Speicher.Sperren[seite][AktuellerSchueler]; }
    [[nodiscard]] TextBox& textfeld(int seite) const {
        return *Textfelder.at(static_cast<size_t>(seite));
    }
    [[nodiscard]] Frame& rahmen(int seite) const { return *Rahmen.at(static_cast<size_t>(seite)); }
    [[nodiscard]] Text ersetzt(const Text& text) const;
    [[nodiscard]] Einfuegetasten einfuegetasten() const;
};

} // namespace zeugnis
