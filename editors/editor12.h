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

    Label Label1{*this, u"Label1"};
    ControlArray<Button> Command1{*this, u"Command1", ErsteSeite, ErsteSeite + Seitenzahl - 1};
    ControlArray<Button> Command3{*this, u"Command3", 0, 1};
    Label Label4{*this, u"Label4"};
    Frame Frame1{*this, u"Frame1"};
    Frame Frame2{*this, u"Frame2"};
    Frame Frame3{*this, u"Frame3"};
    Frame Frame4{*this, u"Frame4"};
    Frame Frame5{*this, u"Frame5"};
    Frame Frame6{*this, u"Frame6"};
    Frame Frame7{*this, u"Frame7"};
    Frame Frame8{*this, u"Frame8"};
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 15, &Frame1};
    ControlArray<TextBox> Text2{*this, u"Text2", 0, 11, &Frame2};
    ControlArray<TextBox> Text3{*this, u"Text3", 0, 32, &Frame3};
    ControlArray<TextBox> Text4{*this, u"Text4", 0, 31, &Frame4};
    ControlArray<TextBox> Text5{*this, u"Text5", 0, 32, &Frame5};
    ControlArray<TextBox> Text6{*this, u"Text6", 0, 20, &Frame6};
    ControlArray<TextBox> Text7{*this, u"Text7", 0, 26, &Frame7};
    ControlArray<TextBox> Text8{*this, u"Text8", 0, 21, &Frame8};
    ControlArray<Label> Label2{*this, u"Label2", 0, 1, &Frame8};
    Label Label3{*this, u"Label3"};
    ControlArray<TextBox> Text29{*this, u"Text29", 0, 1};
    ControlArray<Button> Command2{*this, u"Command2", 0, 1};
    Button Command5{*this, u"Command5"};
    Button Command6{*this, u"Command6"};
    Button Command8{*this, u"Command8"};

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
