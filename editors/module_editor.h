#pragma once

#include "controls/control_array.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "files/module_files.h"

#include <array>
#include <span>
#include <vector>

namespace zeugnis {

class Bausteineditor;

/// Boxes that show one column of a module file, box by row.
struct Feldreihe {
    int Textfeld; ///< the number of the array: 3 for Text3
    int Ab;       ///< its first box
    int Anzahl;
    int Datei; ///< the place in the editor's table of files
    int Spalte = 1;
    int Zeile = 0;                                        ///< the first row
    bool Rot = false;                                     ///< the program sets this text by itself
    bool (*Gilt)(const Bausteineditor& editor) = nullptr; ///< when the boxes show this; or always
};

/// What the editors of the year groups do alike: the modules are loaded once, Standard or current,
/// shown in boxes, taken back from them, and written.
class Bausteineditor : public Screen {
  public:
    Text Klasse;
    Text Jahrgangsziffer; ///< the first character of the class
    Text Schuljahr;
    Text Halbjahr;
    /// By the table of files, the names that the load has read; empty before.
    std::vector<Text> Dateinamen;
    bool Geladen = false;
    bool Gespeichert = false;
    bool SpeichernJa = false; ///< the answer to the question before a save
    Text Passwort;

    /// The text array of this number.
    [[nodiscard]] virtual const ControlArray<TextBox>& textfeld(int nummer) const = 0;
    /// Whether a box shows what the program sets by itself, and whether a save drops what is typed
    /// there.
    [[nodiscard]] bool IstRot(const TextBox& feld) const;
    [[nodiscard]] bool WirdVerworfen(const TextBox& feld) const;
    /// Whether a save now would leave the current modules as they are.
    [[nodiscard]] bool SpeichertDaneben() const;

    /// A box that shows a module, and where a save writes it.
    struct Platz {
        TextBox& Feld;
        Text Datei; ///< seen from the folder Daten
        int Zeile;  ///< the record, from 1
        int Spalte; ///< its field, the running number being 0
    };
    /// All of them; none before a load.
    [[nodiscard]] std::vector<Platz> Plaetze() const;

    /// Asks before it leaves what has been loaded without a save.
    void Command6_Click();

  protected:
    /// What one editor says and does its own way.
    struct Regeln {
        std::span<const Moduldatei> Dateien;
        std::span<const Feldreihe> Felder; ///< in the order of filling and taking back
        std::span<const TextView> StandardZuKopieren;
        TextView SpeichernFrage;
        TextView EndeFrage;
    };

    Bausteineditor(Programm& programm, TextView name, TextView title, const Regeln& regeln);

    /// Keeps double quotes out of the boxes of these arrays, takes all boxes over when one of them
    /// is left, and inserts on a double click.
    void FelderVerbinden(int erstes, int letztes);

    /// Reads class, school year and half-year, and shows them in the two boxes.
    void StammdatenLesen(const ControlArray<TextBox>& info);

    /// Asks whether to go on; on No the screen is gone, with the insertion window, and the caller
    /// must return.
    [[nodiscard]] bool FortfahrenOderSchliessen();

    /// Sets `Dateinamen` and reads the files, from the folder Standard or from Daten.
    void TexteLesen(bool standard, const Text& jahrgang);
    void TexteZeigen();
    void TexteUebernehmen();

    void SpeichernBestaetigen();
    /// Writes the files if the answer was Yes.
    void SpeichernWennJa();
    void StandardFragen();
    void StandardKopieren();

    /// The names under which a save writes, by the table of files.
    [[nodiscard]] virtual std::vector<Text> Zieldateien() const = 0;
    /// Those of the current modules.
    [[nodiscard]] std::vector<Text> AktuelleDateien(const Text& jahrgang) const;

  private:
    void TexteSchreiben();
    // `action(box, cell)` for all boxes that show one, in the order of the table.
    template <typename Action>
    void jedesFeld(Action action);
    [[nodiscard]] bool gehoertDazu(const Moduldatei& datei) const;
    [[nodiscard]] const Feldreihe* roteReihe(const TextBox& feld) const;

    Regeln m_regeln;
    std::vector<Bausteintabelle> m_tabellen;
};

} // namespace zeugnis
