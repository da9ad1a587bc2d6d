#include "checks/other_names.h"

#include "checks/words.h"

#include <algorithm>

namespace zeugnis {
namespace {

bool gehoertZumWort(char16_t zeichen) {
    return IstBuchstabe(zeichen) || (zeichen >= u'0' && zeichen <= u'9') || zeichen == u'-';
}

// Where the word stands, with no letter to its left or right.
size_t wortstelle(TextView text, TextView wort, size_t ab) {
    for (size_t i = text.find(wort, ab); i != TextView::npos; i = text.find(wort, i + 1)) {
        const size_t ende = i + wort.size();
        if ((i == 0 || !gehoertZumWort(text[i - 1])) &&
            (ende == text.size() || !gehoertZumWort(text[ende])))
            return i;
    }
    return TextView::npos;
}

Text ohneEigenenNamen(Text text, const Schueler& kind) {
    for (const Text& name : {kind.Vorname, kind.Vorname + u"s", kind.Nachname}) {
        if (trimmed(name).empty() || name == u"s")
            continue;
        for (size_t i = wortstelle(text, name, 0); i != Text::npos; i = wortstelle(text, name, i))
            text.replace(i, name.size(), u"#");
    }
    return text;
}

} // namespace

std::vector<Text> FremdeVornamen(const Text& text, const Namensliste& liste, int platz) {
    const Text rest = ohneEigenenNamen(text, liste.Kinder[platz]);
    std::vector<Text> namen;
    for (int anderer = 0; anderer < liste.Schuelerzahl; ++anderer) {
        const Text name = trimmed(liste.Kinder[anderer].Vorname);
        const bool gefunden = !name.empty() && wortstelle(rest, name, 0) != Text::npos;
        if (gefunden && std::find(namen.begin(), namen.end(), name) == namen.end())
            namen.push_back(name);
    }
    return namen;
}

} // namespace zeugnis
