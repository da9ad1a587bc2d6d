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

Text aufgezaehlt(const std::vector<Text>& woerter) {
    Text text;
    for (size_t i = 0; i < woerter.size(); ++i) {
        if (i > 0)
            text += i + 1 == woerter.size() ? u" und " : u", ";
        text += woerter[i];
    }
    return text;
}

} // namespace zeugnis::dokumente
