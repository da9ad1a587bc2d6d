#pragma once

#include "platform/text.h"

#include <string>
#include <vector>

namespace zeugnis::dokumente {

struct Bookmark {
    Text title;
    int page = 0;    ///< from 0
    int fromTop = 0; ///< in points
};

/// Adds what Qt's PDF writer has no call for: bookmarks, the language, and that the window of the
/// reader shows the title. It is appended as an update, as the format provides for. A file that
/// is not laid out as Qt does comes back as it was.
std::string withBookmarks(std::string pdf, const std::vector<Bookmark>& bookmarks);

} // namespace zeugnis::dokumente
