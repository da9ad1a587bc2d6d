#pragma once

#include "controls/control_array.h"
#include "controls/screen.h"
#include "files/school_data.h"

namespace zeugnis {

/// The first screen and the spine of the program: it shows who the installation is for, opens all
/// other screens, starts Word and ends the program. It reads its files once, at load.
class GsStart : public Screen {
  public:
    explicit GsStart(Programm& programm);
    void load() override { StartseiteLaden(); }

    void Command1_Click(int Index);
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();
    void Command9_Click(int Index);
    void Picture1_Click();
    void Picture1_DblClick();
    void Timer1_Timer();

    Schuldaten Schule;
    Text Klasse;
    int Jahrgang = 0;
    int AktiverKnopf = 0;
    /// The file that BildWechseln shows next, and the one that LehrerbildLaden loads.
    Text Bildname;

    ControlArray<Button> Command1{*this, u"Command1", 0, 7}; ///< what to do, by Ziele; 7 ends
    Button Command2{*this, u"Command2"};                     ///< shows the tools instead
    Button Command3{*this, u"Command3"};                     ///< back from the tools
    Button Command4{*this, u"Command4"};                     ///< writes the reports
    Button Command5{*this, u"Command5"};                     ///< list of grades and absences
    Button Command6{*this, u"Command6"};                     ///< opens the finished reports
    Button Command7{*this, u"Command7"};                     ///< panel of lists
    Button Command8{*this, u"Command8"};                     ///< help
    ControlArray<Button> Command9{*this, u"Command9", 0, 3}; ///< help on printing
    ControlArray<Label> Label1{*this, u"Label1", 0, 2};      ///< class, school year, half-year
    Label Label2{*this, u"Label2"};                          ///< what to do now
    Label Label3{*this, u"Label3"};                          ///< trade mark of the word processor
    Label Label4{*this, u"Label4"};                          ///< "Klassenleitung:"
    Label Label5{*this, u"Label5"};                          ///< class teacher
    Label Label6{*this, u"Label6"};                          ///< school
    PictureBox Picture1{*this, u"Picture1"}; ///< head picture, which can be animated
    PictureBox Picture2{*this, u"Picture2"}; ///< class teacher
    Timer Timer1{*this, u"Timer1"};          ///< drives the animation

  private:
    void EntwurfSetzen();
    void HandlerVerbinden();
    void StartseiteLaden();
    void DatenLaden();
    void LehrerbildLaden();
    void BildWechseln();
    void HalbjahrBerichtigen();
    void AnsichtZeigen(bool werkzeugkiste);
};

} // namespace zeugnis
