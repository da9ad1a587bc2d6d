#pragma once

#include "documents/model/styles.h"

#include <vector>

namespace zeugnis::dokumente {

/// What is set on a page as a whole: a line, a table row, a picture.
struct Strip {
    Twips height = 0;
    Twips spaceBefore = 0; ///< not at the top of a page
    Twips spaceAfter = 0;  ///< not at the bottom of a page
    bool mayBreakBefore = true;
    bool startsPage = false;
    Twips headAbove = 0; ///< what is repeated above it if it comes first on a page
};

struct Place {
    int page = 0; ///< from 0
    Twips y = 0;  ///< of the upper edge, from the top of the text area
};

/// Sets the strips on pages one after the other; the places come in the order of the strips.
/// Where they do not fit, it breaks at the last strip that allows it, and where none does, at the
/// first that does not fit. A strip higher than the page gets a page of its own.
std::vector<Place> paginate(const std::vector<Strip>& strips, Twips pageHeight);

} // namespace zeugnis::dokumente
