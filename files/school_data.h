#pragma once

#include "platform/working_directory.h"

namespace zeugnis {

/// The one record of Basisdaten.txt, its fields in their order.
struct Schuldaten {
    Text Schulname;
    Text Schulzusatz;
    Text Schulanschrift;
    Text Ausgabeort;
    Text Ausgabedatum;
    Text Schuljahr; ///< "2005/2006"
    Text Halbjahr;  ///< "1" or "2"
    Text NaechstesSchuljahr;
    Text Konferenzdatum;
    Text Klassenleitung; ///< also the stem of a picture file
};

inline constexpr int BasisdatenFelder = 10;

/// Reads the first `felder` fields of Basisdaten.txt in the working directory; the others stay
/// empty. Fails with end-of-file if there are fewer.
Schuldaten BasisdatenLesen(const Arbeitsverzeichnis& verzeichnis, int felder);

/// The school year behind the one that begins with the year of the first four characters:
/// "2006/2007" for "2005/2006". Fails with type-mismatch if they are no number.
Text NaechstesSchuljahrNach(const Text& schuljahr);

/// Whether a text such as the half-year is this number. A text that is no number is none.
bool IstZahl(TextView text, int zahl);

/// Writes Basisdaten.txt in the working directory as it stands.
void BasisdatenSchreiben(const Arbeitsverzeichnis& verzeichnis, const Schuldaten& daten);

} // namespace zeugnis
