#pragma once

#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// The text that the review window hands over, with its words in their order: the lines of
/// underscores become rules, and the names below them stand out like the headings of the sections.
/// Any other text becomes its paragraphs. Fails with invalid-call if there is no text.
Document AnzeigetextBilden(TextView text);

} // namespace zeugnis::dokumente
