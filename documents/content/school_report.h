#pragma once

#include "documents/content/class_data.h"
#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// All that the reports of a class are made from.
struct Zeugnisdaten {
    Stammdaten Stamm;
    AVSVSpeicher AVSV;
    Bereichstexte Bereiche; ///< of the years 1 and 2 or of the years 3 and 4
};

/// Reads the files in Daten. Fails with invalid-call if there is no child in the class list.
Zeugnisdaten ZeugnisdatenLesen(Arbeitsverzeichnis& verzeichnis);

/// The reports of the class, one section per child in the order of the class list.
Document ZeugnisseBilden(const Zeugnisdaten& daten);

} // namespace zeugnis::dokumente
