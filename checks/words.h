#pragma once

#include "platform/text.h"

#include <vector>

namespace zeugnis {

bool IstBuchstabe(char16_t zeichen);
bool IstKlein(char16_t zeichen);
bool IstGross(char16_t zeichen);

/// A word and where it stands in its text. Hyphens and apostrophes inside belong to it.
struct Wort {
    TextView Text;
    size_t Stelle = 0;
};

/// The words of a text, which must outlive them.
std::vector<Wort> WoerterVon(TextView text);

/// Both ends of a sentence in its text. A full stop behind a number or an abbreviation ends none.
struct Satz {
    size_t Anfang = 0;
    size_t Ende = 0; ///< behind its last character
};
std::vector<Satz> SaetzeVon(TextView text);

/// Whether the full stop at this place belongs to a number or to an abbreviation.
bool IstAbkuerzungspunkt(TextView text, size_t stelle);

} // namespace zeugnis
