#pragma once

#include "documents/content/report_layout.h"
#include "documents/model/document.h"
#include "files/pupil_records.h"
#include "files/school_data.h"

#include <vector>

namespace zeugnis::dokumente {

/// Whose documents these are: the master data as they stand on disk.
struct Stammdaten {
    Schuldaten Schule;
    Namensliste Liste;
    int Jahrgang = 0;
    Text Halbjahr; ///< "2" for year 1 whatever the file says: it has no report for the first half
    Zeugnisaufbau Aufbau = {};
    std::optional<Image> Kopfbild = {}; ///< the picture that the layout names; not read here
};

/// Fails with invalid-call if there is no class, as the readers of Namen.Txt, Basisdaten.txt and
/// the layout do, and with type-mismatch for
/// a class that does not begin with a digit or a half-year that is no number.
Stammdaten StammdatenLesen(Arbeitsverzeichnis& verzeichnis);

/// The name of a class document without its extension: "3a" + "Zeugnisse" + "3" + "2".
Text Klassenstamm(const Stammdaten& daten, TextView art);

/// Texts by section, in the order of their store, and by child.
using Abschnittstexte = std::vector<Schuelertabelle<Text>>;

/// The texts on work and social behaviour. Fails with invalid-call if they are those of another
/// class list: a child must never get the text of another.
Abschnittstexte AVSVTexteLesen(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste);

/// The store of the sections that only this pair of years has.
const Speicherdatei& BereichsspeicherVon(const Stammdaten& daten);

/// Those of the sections that only this pair of years has. Fails likewise.
Abschnittstexte BereichstexteLesen(Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten);

} // namespace zeugnis::dokumente
