#pragma once

#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "years12/area_composition.h"
#include "years12/stores.h"

namespace zeugnis {

/// The screen on which interests, competences and remarks of years 1 and 2 are written, child by
/// child and page by page.
class Kompetenzen : public Screen {
  public:
    explicit Kompetenzen(Programm& programm);
    void load() override;

    void Combo1_Change();
    void Combo1_Click();
    void Command1_Click(int Index);
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command7_Click(int Index);
    void Command8_Click();
    void Option_Click(int nummer, int Index);
    void Check1_Click(int Index);
    void Check2_Click(int Index);
    void Check3_Click(int Index);
    void Text1_Click(int Index);
    void Text1_DblClick(int Index);
    void Text1_LostFocus(int Index);

    /// A box and what it adds to the text while it is ticked.
    struct Kasten {
        Text Teiltext;
        int Haken = 0;
    };

    /// The choices for one child. They live as long as the screen; only the texts are stored.
    struct Eingaben {
        /// That of Option1 is the sentence on the interests.
        jahrgang12::Teiltexte Teiltext;
        jahrgang12::Gruppentabelle<int> Wahl;
        Tabelle<int, 4> Sporthaken;
        Tabelle<Kasten, 2> Bemerkungskasten;
        Tabelle<Kasten, 8> Fachkasten;
        Text Sporttext;
    };

    Namensliste Liste;
    jahrgang12::Bausteine Bausteine;
    jahrgang12::Speicher12 Speicher;
    Schuelertabelle<Eingaben> Eingegeben;
    Text Jahrgang;
    Text Trenner8; ///< one for the whole class, and emptied by the reset of page 7 alone
    int aktSchueler = 0;
    int aktSeite = 0;
    bool NameGewaehlt = false;
    bool Gespeichert = false;

    Label Label1{*this, u"Label1"};          ///< title
    Label Label2{*this, u"Label2"};          ///< class
    ComboBox Combo1{*this, u"Combo1"};       ///< pupils
    Label Label7{*this, u"Label7"};          ///< what to do now
    PictureBox Picture1{*this, u"Picture1"}; ///< the pupil
    PictureBox Picture2{*this, u"Picture2"}; ///< lock sign
    ControlArray<Button> Command1{*this, u"Command1", 0, jahrgang12::Bereichszahl - 1}; ///< pages
    ControlArray<Frame> Frame1{*this, u"Frame1", 0,
                               jahrgang12::Bereichszahl - 1}; ///< the choices of a page
    ControlArray<CheckBox> Check1{*this, u"Check1", 0, 3,
                                  &Frame1(jahrgang12::SeiteInteressen)}; ///< badges
    ControlArray<CheckBox> Check2{
        *this, u"Check2", 0, 1,
        &Frame1(jahrgang12::SeiteBemerkungen)}; ///< working groups, fixed remark
    ControlArray<CheckBox> Check3{*this, u"Check3", 0, 7,
                                  &Frame1(jahrgang12::SeiteBemerkungen)}; ///< subjects to practise
    ControlArray<TextBox> Text1{*this, u"Text1", 0,
                                jahrgang12::Bereichszahl - 1}; ///< texts of the areas
    Button Command2{*this, u"Command2"};                       ///< save all
    Button Command3{*this, u"Command3"};                       ///< leave
    Button Command4{*this, u"Command4"};                       ///< starts the page's text anew
    ControlArray<Button> Command7{*this, u"Command7", 0, 1};   ///< insertion window: show, hide
    Button Command8{*this, u"Command8"};                       ///< help

    /// The arrays of options and the labels of the pages, as the tables of competence_areas.h name
    /// them: options(group)(Index), label(Nummer).
    [[nodiscard]] const ControlArray<OptionButton>& options(int nummer) const {
        return m_options[static_cast<size_t>(nummer)];
    }
    [[nodiscard]] Label& label(int nummer) const { return *m_labels[nummer]; }

  private:
    void EntwurfSetzen();
    void HandlerVerbinden();

    void NamenEintragen();
    void AlleSpeichern();
    void SpeichernFragen();

    void BeschriftungenSetzen();
    void ZwischentexteSetzen();
    void AGSatzBilden();
    void MarkierungLoeschen();
    void WahlMarkieren();
    void BemerkungenMarkieren();
    void SeiteZeigen();
    void SeiteFaerben();
    void SperreZeigen();
    void TexteAnzeigen();

    void VorigesKindVerlassen();
    void TextBilden(int seite);
    void KastenSetzen(const CheckBox& kasten, Kasten& eingabe, TextView nach);
    void SeiteNeu();
    void BemerkungenNeu();

    [[nodiscard]] bool istJahr(int jahr) const { return IstZahl(Jahrgang, jahr); }
    [[nodiscard]] bool istHalbjahr(int halbjahr) const {
        return IstZahl(Bausteine.Schule.Halbjahr, halbjahr);
    }
    [[nodiscard]] Eingaben& eingaben() { return Eingegeben[aktSchueler]; }
    [[nodiscard]] const Schueler& kind() const { return Liste.Kinder[aktSchueler]; }
    [[nodiscard]] int& sperre() { return Speicher.Sperre[aktSeite][aktSchueler]; }
    [[nodiscard]] Text ersetzt(const Text& text) const;
    [[nodiscard]] Text interessen();
    [[nodiscard]] Text bemerkungen();

    std::vector<ControlArray<OptionButton>> m_options;
    Tabelle<std::unique_ptr<Label>, jahrgang12::HoechstesLabel + 1> m_labels;
};

} // namespace zeugnis
