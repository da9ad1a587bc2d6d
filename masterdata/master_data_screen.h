#pragma once

#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "files/school_data.h"
#include "masterdata/class_list.h"
#include "platform/machine.h"

namespace zeugnis {

/// The master data screen: school data, class list, the path of the administration program's data,
/// working groups and picture names. Whoever changes school or pupil data agrees beforehand that
/// all report contents of the class are lost. It has no way back but to end the program.
class GsBasis : public Screen {
  public:
    explicit GsBasis(Programm& programm);
    void load() override { BasisLaden(); }

    void Combo1_Click();
    void Command1_Click(int Index);
    void Command2_Click(int Index);
    void Command3_Click() { SchuldatenFreigeben(); }
    void Command4_Click(int Index);
    void Command5_Click();
    void Command6_Click() { SchuelerSortieren(); }
    void Command7_Click(int Index);
    void Command8_Click();
    void List1_Click();
    void Option1_Click(int Index);
    void SibankPfad_Click();
    void Text1_KeyPress(int Index, char16_t& Taste);
    void Text_LostFocus();
    void Text3_DblClick(int Index);

    /// Whether closing the window now would lose what has been typed.
    [[nodiscard]] bool Ungesichert() const;

    Schuldaten Schule;
    Text SibankPfad;
    std::array<Text, 2> Standardpfade;
    Klassenliste Liste;
    int AktuellerSchueler = 0;
    Text GewaehlteAG;

    bool Gespeichert = true;       ///< false since a text box was left
    bool SpeicherLoeschen = false; ///< the stores are blanked at the save; never taken back
    Antwort LetzteAntwort = Antwort::Ok;
    /// The first characters that the key filter has last seen. They lag one key behind.
    Text ErsteZifferKlasse;
    Text ErsteZifferSchuljahr;

    Frame Frame1{*this, u"Frame1"};                              ///< school data
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 10};         ///< school data, by Schulfelder
    ControlArray<Button> Command1{*this, u"Command1", 0, 1};     ///< save, end the program
    Button Command3{*this, u"Command3"};                         ///< unlocks the school data
    Label Label5{*this, u"Label5"};                              ///< in front of the standard paths
    ControlArray<Button> Command7{*this, u"Command7", 0, 1};     ///< puts a standard path in
    Button Command5{*this, u"Command5"};                         ///< unlocks the pupil data
    ComboBox Combo1{*this, u"Combo1"};                           ///< pupils by number
    ControlArray<TextBox> Text2{*this, u"Text2", 1, 4};          ///< pupil data, by Schuelerfelder
    ControlArray<OptionButton> Option1{*this, u"Option1", 0, 1}; ///< boy (0), girl (1)
    ControlArray<Label> Label3{*this, u"Label3", 6, 6};          ///< heading of the working groups
    Label Label4{*this, u"Label4"};                              ///< how to choose a working group
    ListBox List1{*this, u"List1"};                              ///< working groups of the school
    ControlArray<Button> Command2{*this, u"Command2", 0, 1};     ///< add a group, clear the list
    ControlArray<TextBox> Text3{*this, u"Text3", 0, 3};          ///< the pupil's working groups
    ControlArray<Button> Command4{*this, u"Command4", 0, 2};     ///< new list, delete, add pupil
    Button Command6{*this, u"Command6"};                         ///< sorts the class
    SortedListBox List2{*this, u"List2"};                        ///< hidden: does the sorting
    Button Command8{*this, u"Command8"};                         ///< help

  private:
    void EntwurfSetzen();
    void HandlerVerbinden();

    void BasisLaden();
    void SchuldatenZeigen();
    void MaskeUebernehmen();
    void SchuldatenFreigeben();
    void SpeichernNachfragen();
    void BasisSpeichern();
    void AllesSpeichern();
    void HalbjahrBerichtigen();
    void ZeugnislisteStarten();
    void SpeichernAnbieten();

    void NamenLaden();
    void SchuelerZeigen();
    void SchuelerUebernehmen();
    void SchuelerdatenFreigeben();
    void SchuelerBearbeiten();
    void ListeNeuAnlegen();
    void ListeNeuBeginnen();
    void SchuelerLoeschen();
    void SchuelerHinzufuegen();
    void SchuelerSortieren();
    void ErstenWaehlen();

    Antwort fragen(TextView text);
    [[nodiscard]] Schueler& schueler() { return Liste.Kinder[AktuellerSchueler]; }
};

/// The box of the administration program's path: the one that is open from the start.
inline constexpr int SibankFeld = 6;

/// A text box of the school data, by its index in Text1, and what it stands for.
struct Schulfeld {
    TextView Beschriftung;
    Text& (*Wert)(GsBasis& basis);
};
extern const std::array<Schulfeld, 11> Schulfelder;

/// A text box of the current pupil, by its index in Text2; index 0 is not used.
struct Schuelerfeld {
    TextView Beschriftung;
    Text Schueler::*Wert;
};
inline constexpr std::array<Schuelerfeld, 5> Schuelerfelder = std::to_array<Schuelerfeld>({
    {{}, nullptr},
    {u"Nachname:", &Schueler::Nachname},
    {u"Vorname:", &Schueler::Vorname},
    {u"geboren am:", &Schueler::Geburtsdatum},
    {u"in:", &Schueler::Geburtsort},
});

} // namespace zeugnis
