#pragma once

#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "platform/table.h"

namespace zeugnis {

/// The small window that offers phrases, or placeholders to the editors. A click puts an entry on
/// the clipboard; the clipboard is the whole link to the other screens.
class Einfuegungen : public Screen {
  public:
    explicit Einfuegungen(Programm& programm);
    void load() override;

    /// Whether entry 0 is the head of a list of placeholders, which stands for no text; and whether
    /// a click on it ends the program, as for the editors of the year groups.
    [[nodiscard]] bool mitKopfzeile() const { return !dientEingabe() && !List1.entries().empty(); }
    [[nodiscard]] bool KopfzeileBeendet() const;
    /// Without a chosen entry "Markierten Eintrag löschen" ends the program.
    [[nodiscard]] bool EintragGewaehlt() const { return List1.listIndex() >= 0; }

    void List1_Click();
    void Check1_Click();
    void Command1_Click(int Index);

    /// The main button pressed last, as it was when the window was loaded: whom it serves.
    int AktivForm = 0;
    Tabelle<Text, 31> PlatzhalterTexte;
    Tabelle<Text, 31> PlatzhalterHinweise;

    Label Label1{*this, u"Label1"};                          ///< how to insert
    ListBox List1{*this, u"List1"};                          ///< phrases or placeholders
    CheckBox Check1{*this, u"Check1"};                       ///< always in front
    ControlArray<Button> Command1{*this, u"Command1", 0, 2}; ///< delete, delete all, new phrase

  private:
    void PlatzhalterLesen();
    void TexteLesen();
    void PlatzhalterZeigen();
    void ListeSchreiben();
    void MarkiertenLoeschen();
    void AlleLoeschen();
    void NeuenEingeben();
    [[nodiscard]] bool dientEingabe() const { return AktivForm >= 0 && AktivForm <= 2; }
};

} // namespace zeugnis
