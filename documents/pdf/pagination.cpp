#include "documents/pdf/pagination.h"

namespace zeugnis::dokumente {
namespace {

Twips topOf(const std::vector<Strip>& strips, size_t index, size_t first, Twips bottomBefore) {
    if (index == first)
        return strips[index].headAbove;
    return bottomBefore + strips[index - 1].spaceAfter + strips[index].spaceBefore;
}

// The strip behind the last one on the page that begins with `first`.
size_t endOfPage(const std::vector<Strip>& strips, size_t first, Twips pageHeight) {
    Twips bottom = 0;
    for (size_t i = first; i < strips.size(); ++i) {
        bottom = topOf(strips, i, first, bottom) + strips[i].height;
        if (i == first)
            continue;
        if (strips[i].startsPage)
            return i;
        if (bottom <= pageHeight)
            continue;
        size_t allowed = i;
        while (allowed > first && !strips[allowed].mayBreakBefore)
            --allowed;
        return allowed > first ? allowed : i;
    }
    return strips.size();
}

} // namespace

std::vector<Place> paginate(const std::vector<Strip>& strips, Twips pageHeight) {
    std::vector<Place> places;
    size_t first = 0;
    for (int page = 0; first < strips.size(); ++page) {
        const size_t end = endOfPage(strips, first, pageHeight);
        Twips bottom = 0;
        for (size_t i = first; i < end; ++i) {
            const Twips y = topOf(strips, i, first, bottom);
            places.push_back({.page = page, .y = y});
            bottom = y + strips[i].height;
        }
        first = end;
    }
    return places;
}

} // namespace zeugnis::dokumente
