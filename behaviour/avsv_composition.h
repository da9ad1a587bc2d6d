#pragma once

#include "behaviour/avsv_modules.h"

namespace zeugnis {

/// The chosen line per category, 0 to 9; 0 means nothing chosen.
using Zeilenwahl = Kategorietabelle<int>;

/// Compose the text of a section from the chosen lines: first name, pronoun, joining words and
/// full stops, before the expansion of placeholders. No choice at all gives an empty text.
/// "m" and "w" are told apart exactly; any other Geschlecht gets no pronoun.
Text AVSatzBauen(const Text& vorname, const Text& geschlecht, const Zeilenwahl& wahl,
                 const Zeilentabelle& zeilen);
Text SVSatzBauen(const Text& vorname, const Text& geschlecht, const Zeilenwahl& wahl,
                 const Zeilentabelle& zeilen);

} // namespace zeugnis
