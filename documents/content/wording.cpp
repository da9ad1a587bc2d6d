#include "documents/content/wording.h"

#include "documents/model/document.h"

namespace zeugnis::dokumente {

Text oderStrich(const Text& text) {
    Text sauber = printable(text);
    return sauber.empty() ? Text(u"–") : sauber;
}

Text verbunden(const Text& links, TextView dazwischen, const Text& rechts) {
    if (links.empty() || rechts.empty())
        return links + rechts;
    return links + Text(dazwischen) + rechts;
}

} // namespace zeugnis::dokumente
