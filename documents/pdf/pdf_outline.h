#pragma once

#include "platform/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace zeugnis::dokumente {

struct Bookmark {
    Text title;
    int page = 0;       ///< from 0
    int fromBottom = 0; ///< in points
};

/// Adds what Qt's PDF writer has no call for: bookmarks, the language, that the window of the
/// reader shows the title, and the checksum of the .doc that the same document was written to. It
/// is appended as an update, as the format provides for. A file that is not laid out as Qt does
/// comes back as it was.
std::string withAdditions(std::string pdf, const std::vector<Bookmark>& bookmarks,
                          std::string_view docChecksum);

/// The checksum of the .doc that a .pdf was written with; empty if it names none.
std::string docChecksumIn(std::string_view pdf);

} // namespace zeugnis::dokumente
