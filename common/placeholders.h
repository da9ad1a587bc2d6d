#pragma once

#include "platform/text.h"

#include <span>

namespace zeugnis {

/// What placeholders are replaced by. Only a Geschlecht of exactly "m" gives the male forms.
struct Einsetzwerte {
    Text Vorname;
    Text Geschlecht;
    Text Schuljahr;
    Text NaechstesSchuljahr;
    Text Konferenzdatum;
};

struct Platzhalter;

/// In what the screens differ when they expand and insert.
struct Textregeln {
    int Durchgaenge;                       ///< how often each placeholder is looked for
    std::span<const Platzhalter> Bekannte; ///< in the order in which a pass takes them
    bool EndungAnhaengen;                  ///< "<in>" is inserted without a blank before it
};

extern const Textregeln TextregelnArbeitsverhalten;
extern const Textregeln TextregelnJahrgaenge; ///< both report screens of the year groups
extern const Textregeln TextregelnEditoren;   ///< insertion only: placeholders stay literally

/// Expands the placeholders, then cleans up full stops and blanks. Each pass takes only the first
/// occurrence of each placeholder; the clean-up eats the two characters behind what it mends.
Text PlatzhalterErsetzen(Text text, const Einsetzwerte& werte, const Textregeln& regeln);

/// Puts a text behind the first `stelle` characters, with the blanks that are needed there.
Text EinfuegungEinsetzen(const Text& text, size_t stelle, const Text& einfuegung,
                         const Textregeln& regeln);

} // namespace zeugnis
