#pragma once

#include "editors/module_editor.h"

namespace zeugnis {

/// The screen on which the text modules of years 1 and 2 are reworded, page by page.
class GSAenderung12 final : public Bausteineditor {
  public:
    explicit GSAenderung12(Programm& programm);
    void load() override;

    void Command1_Click(int Index);
    void Command2_Click(int Index);
    void Command3_Click(int Index);
    void Command5_Click();
    void Command8_Click();
    void Label1_DblClick();

    static constexpr int ErsteSeite = 2; ///< the page buttons are Command1(2) to Command1(9)
    static constexpr int Seitenzahl = 8;

    Label Label1{*this, u"Label1"}; ///< title; a double click renews the Standard
    ControlArray<Button> Command1{*this, u"Command1", ErsteSeite,
                                  ErsteSeite + Seitenzahl - 1};   ///< pages
    ControlArray<Button> Command3{*this, u"Command3", 0, 1};      ///< load Standard, current
    Label Label4{*this, u"Label4"};                               ///< what to do now
    Frame Frame1{*this, u"Frame1"};                               ///< interests
    Frame Frame2{*this, u"Frame2"};                               ///< speaking
    Frame Frame3{*this, u"Frame3"};                               ///< reading
    Frame Frame4{*this, u"Frame4"};                               ///< writing
    Frame Frame5{*this, u"Frame5"};                               ///< numbers
    Frame Frame6{*this, u"Frame6"};                               ///< measuring
    Frame Frame7{*this, u"Frame7"};                               ///< space and shape
    Frame Frame8{*this, u"Frame8"};                               ///< remarks and moving up
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 15, &Frame1}; ///< modules of Frame1
    ControlArray<TextBox> Text2{*this, u"Text2", 0, 11, &Frame2}; ///< of Frame2
    ControlArray<TextBox> Text3{*this, u"Text3", 0, 32, &Frame3}; ///< of Frame3
    ControlArray<TextBox> Text4{*this, u"Text4", 0, 31, &Frame4}; ///< of Frame4
    ControlArray<TextBox> Text5{*this, u"Text5", 0, 32, &Frame5}; ///< of Frame5
    ControlArray<TextBox> Text6{*this, u"Text6", 0, 20, &Frame6}; ///< of Frame6
    ControlArray<TextBox> Text7{*this, u"Text7", 0, 26, &Frame7}; ///< of Frame7
    ControlArray<TextBox> Text8{*this, u"Text8", 0, 21, &Frame8}; ///< of Frame8
    ControlArray<Label> Label2{*this, u"Label2", 0, 1, &Frame8};  ///< set by the program
    Label Label3{*this, u"Label3"};                               ///< hints
    ControlArray<TextBox> Text29{*this, u"Text29", 0, 1};         ///< class, school year, half-year
    ControlArray<Button> Command2{*this, u"Command2", 0, 1};      ///< placeholders: show, hide
    Button Command5{*this, u"Command5"};                          ///< save all
    Button Command6{*this, u"Command6"};                          ///< leave
    Button Command8{*this, u"Command8"};                          ///< help

    /// The frame and the text array of page 0 to 7.
    [[nodiscard]] Frame& rahmen(int seite);
    [[nodiscard]] const ControlArray<TextBox>& textfeld(int nummer) const override;

  private:
    [[nodiscard]] std::vector<Text> Zieldateien() const override;
    void EntwurfSetzen();
    void HandlerVerbinden();
    void HinweisNachLaden();
    void HinweisZeigen(int taste);
    [[nodiscard]] bool istJahr1() const;
};

} // namespace zeugnis
