#pragma once

#include "editors/module_editor.h"

namespace zeugnis {

/// The screen on which the text modules of years 3 and 4 are reworded, page by page.
class GSAenderung34 final : public Bausteineditor {
  public:
    explicit GSAenderung34(Programm& programm);
    void load() override;

    void Command1_Click(int Index);
    void Command2_Click(int Index);
    void Command5_Click();
    void Command7_Click(int Index);
    void Command8_Click();
    void Label1_DblClick();

    static constexpr int Seitenzahl = 3;
    int AktuelleSeite = 0; ///< 0 to 2, the page button pressed last

    Label Label1{*this, u"Label1"};
    ControlArray<Button> Command2{*this, u"Command2", 0, Seitenzahl - 1};
    ControlArray<Button> Command1{*this, u"Command1", 0, 1};
    Label Label5{*this, u"Label5"};
    Frame Frame1{*this, u"Frame1"};
    Label Label3{*this, u"Label3", {}, &Frame1};
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 7, &Frame1};
    Label Label4{*this, u"Label4", {}, &Frame1};
    ControlArray<TextBox> Text2{*this, u"Text2", 0, 3, &Frame1};
    Frame Frame2{*this, u"Frame2"};
    ControlArray<TextBox> Text3{*this, u"Text3", 0, 13, &Frame2};
    Frame Frame3{*this, u"Frame3"};
    ControlArray<TextBox> Text4{*this, u"Text4", 0, 20, &Frame3};
    Label Label2{*this, u"Label2"};
    ControlArray<TextBox> Text5{*this, u"Text5", 0, 1};
    ControlArray<Button> Command7{*this, u"Command7", 0, 1};
    Button Command5{*this, u"Command5"};
    Button Command6{*this, u"Command6"};
    Button Command8{*this, u"Command8"};

    /// The frame of page 0 to 2.
    [[nodiscard]] Frame& rahmen(int seite);
    [[nodiscard]] const ControlArray<TextBox>& textfeld(int nummer) const override;

  private:
    [[nodiscard]] std::vector<Text> Zieldateien() const override;
    void EntwurfSetzen();
    void HandlerVerbinden();
    void HinweisZeigen(int seite);
};

} // namespace zeugnis
