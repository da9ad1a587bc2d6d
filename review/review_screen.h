#pragma once

#include "controls/control_array.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "files/pupil_list.h"
#include "files/school_data.h"

#include <vector>

namespace zeugnis {

/// The screen that shows the texts of the whole class, in the sections that the teacher chooses,
/// and passes them to Word through the clipboard. It only reads.
class GsAnzeige : public Screen {
  public:
    explicit GsAnzeige(Programm& programm);
    void load() override { AnzeigeLaden(); }

    void Check1_Click(int Index);
    void Command1_Click(int Index);
    void Command8_Click();

    static constexpr int Abschnittszahl = 11; ///< the boxes Check1(0) to Check1(10)

    /// All headings that can stand in the text.
    static std::vector<Text> Ueberschriften();

    Schuldaten Schule;
    Namensliste Liste;
    int Jahrgang = 0;
    /// The texts of a section, by its box and by child. Those of the other years stay empty.
    Tabelle<Schuelertabelle<Text>, Abschnittszahl> Texte;
    Tabelle<bool, Abschnittszahl> Gewaehlt;

    Label Label2{*this, u"Label2"}; ///< class and half-year
    Label Label1{*this, u"Label1"}; ///< what to do now
    Frame Frame1{*this, u"Frame1"}; ///< the sections
    ControlArray<CheckBox> Check1{*this, u"Check1", 0, Abschnittszahl - 1,
                                  &Frame1};                  ///< sections to show
    TextBox Text1{*this, u"Text1"};                          ///< the texts
    ControlArray<Button> Command1{*this, u"Command1", 0, 2}; ///< show, hand over to Word, leave
    Button Command8{*this, u"Command8"};                     ///< help

  private:
    void EntwurfSetzen();
    void AnzeigeLaden();
    void TexteLesen();
    void TextLaden();
    [[nodiscard]] Text KlassenTextBilden() const;
    void KopfSetzen(const Text& klassentext);
    void TextInZwischenablage();
    [[nodiscard]] bool etwasGewaehlt() const;
    /// Years 1 and 2, whose sections differ from those of years 3 and 4.
    [[nodiscard]] bool istUnten() const { return Jahrgang < 3; }
};

} // namespace zeugnis
