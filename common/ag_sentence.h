#pragma once

#include "files/pupil_list.h"

namespace zeugnis {

/// What the report screens of all years say about a pupil's working groups. Years 1 and 2 use the
/// sentence only. Neither has a full stop.
struct AGSaetze {
    Text Satz;  ///< "Lena hat an der Arbeitsgemeinschaft 'Chor' teilgenommen"
    Text Liste; ///< "Arbeitsgemeinschaft: 'Chor'"
};

/// Puts the names of all working groups in the list in single quotes, as the report screens do
/// once, when they have read the class list. Empty names stay empty.
void AGNamenAnfuehren(Namensliste& liste);

/// The names as they stand, joined as if the fields were filled from the first on. Without any
/// name a marker stands in its place.
AGSaetze AGSaetzeVon(const Schueler& kind);

} // namespace zeugnis
