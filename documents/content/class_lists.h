#pragma once

#include "documents/content/class_data.h"
#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// The children with birth dates and places, and columns to tick off.
Document KlassenlisteBilden(const Stammdaten& stamm);

/// The names before a grid of empty squares.
Document StrichlisteBilden(const Stammdaten& stamm);

/// A sheet for each child with lines to write on, to go with the report.
Document ZeugnisanlagenBilden(const Stammdaten& stamm);

} // namespace zeugnis::dokumente
