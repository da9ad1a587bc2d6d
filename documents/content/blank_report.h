#pragma once

#include "documents/content/class_data.h"
#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// The report of the class's year without a child and without texts, to be filled in by hand.
Document LeerformularBilden(const Stammdaten& stamm);

} // namespace zeugnis::dokumente
