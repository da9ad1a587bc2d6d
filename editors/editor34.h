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

    Label Label1{*this, u"Label1"}; ///< title; a double click renews the Standard
    ControlArray<Button> Command2{*this, u"Command2", 0, Seitenzahl - 1}; ///< pages
    ControlArray<Button> Command1{*this, u"Command1", 0, 1};      ///< load Standard, current
    Label Label5{*this, u"Label5"};                               ///< what to do now
    Frame Frame1{*this, u"Frame1"};                               ///< support and working groups
    Label Label3{*this, u"Label3", {}, &Frame1};                  ///< heading of support
    ControlArray<TextBox> Text1{*this, u"Text1", 0, 7, &Frame1};  ///< support
    Label Label4{*this, u"Label4", {}, &Frame1};                  ///< heading of working groups
    ControlArray<TextBox> Text2{*this, u"Text2", 0, 3, &Frame1};  ///< working groups
    Frame Frame2{*this, u"Frame2"};                               ///< interests
    ControlArray<TextBox> Text3{*this, u"Text3", 0, 13, &Frame2}; ///< interests
    Frame Frame3{*this, u"Frame3"};                               ///< remarks
    ControlArray<TextBox> Text4{*this, u"Text4", 0, 20, &Frame3}; ///< remarks and moving up
    Label Label2{*this, u"Label2"};                               ///< hints
    ControlArray<TextBox> Text5{*this, u"Text5", 0, 1};           ///< class, school year, half-year
    ControlArray<Button> Command7{*this, u"Command7", 0, 1};      ///< placeholders: show, hide
    Button Command5{*this, u"Command5"};                          ///< save all
    Button Command6{*this, u"Command6"};                          ///< leave
    Button Command8{*this, u"Command8"};                          ///< help

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
