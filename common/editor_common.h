#pragma once

#include "controls/control.h"
#include "platform/table.h"

#include <span>

namespace zeugnis {

class Programm;
class TextBox;

/// What the three editors of text modules do alike.

/// Their colours. 0 to 4 are also the colours that a line of work or social behaviour can have.
inline constexpr int Editorfarben = 8;
const Tabelle<Farbwert, Editorfarben>& FarbtafelEditoren();

namespace editorfarben {
inline constexpr int Ruhend = 0;
inline constexpr int Aktiv = 1;
inline constexpr int Gewaehlt = 4;
inline constexpr int Grau = 5;
inline constexpr int Rot = 6;
} // namespace editorfarben

/// A box that the teacher may choose several of, and one that the program fills by itself.
inline constexpr Farbwert FarbeMehrfachwahl = 0xFFFFC0;
inline constexpr Farbwert FarbeVorgegeben = 0x80FFFF;

/// Before a load. False if the teacher would rather not.
bool FortfahrenFragen(Programm& programm);

/// A question with Yes and No that No is the safe answer to.
bool SicherheitshalberFragen(Programm& programm, TextView frage);

/// Asks whether the Standard wording may be replaced and, on Yes, for the password, which goes to
/// `passwort`; on any other answer it keeps what it holds.
void StandardUeberschreibenFragen(Programm& programm, Text& passwort);

/// Copies these files of the folder Daten over their Standard copies, if the password is right.
/// Otherwise nothing happens and nothing is said.
void StandardUeberschreiben(Programm& programm, const Text& passwort,
                            std::span<const TextView> namen);

/// A double click: what is on the clipboard goes behind the word, and placeholders stay as they
/// are. Nothing happens to a locked box.
void EinfuegungInsFeld(TextBox& feld);

} // namespace zeugnis
