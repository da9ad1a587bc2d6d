#pragma once

#include "documents/content/report_list.h"
#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// The list on paper: all children of the class on one page.
Document ZeugnislisteBilden(const Stammdaten& daten, const Schuelertabelle<Eintrag>& eintraege);

} // namespace zeugnis::dokumente
