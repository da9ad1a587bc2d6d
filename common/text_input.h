#pragma once

#include "platform/text.h"

#include <functional>

namespace zeugnis {

class Programm;
class TextBox;
struct Textregeln;

/// A double quote would end a field in the data files. These two keep it out of a text box: one
/// for typed keys, one for text that arrives otherwise. Both tell the user.
void AnfuehrungszeichenTaste(Programm& programm, char16_t& taste);
void AnfuehrungszeichenAenderung(Programm& programm, TextBox& feld);

/// Connects both to a box. `danach` runs at the end of each change.
void AnfuehrungszeichenFernhalten(TextBox& feld, std::function<void()> danach = {});

/// The first `anzahl` double quotes become apostrophes, silently.
Text AnfuehrungszeichenErsetzen(Text text, int anzahl);

/// The text of the box with the clipboard's text behind the end of its selection, or as it is if
/// the clipboard is empty. The box is not changed.
Text MitEinfuegung(Programm& programm, const TextBox& feld, const Textregeln& regeln);

} // namespace zeugnis
