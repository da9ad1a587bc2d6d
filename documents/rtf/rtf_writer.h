#pragma once

#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// The document in Rich Text, which every word processor reads. `pages` holds the number of pages
/// of each section; programs that cannot count them show these numbers.
std::string rtfFromDocument(const Document& document, const std::vector<int>& pages);

} // namespace zeugnis::dokumente
