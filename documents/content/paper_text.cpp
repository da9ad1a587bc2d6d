#include "documents/content/paper_text.h"

#include "documents/model/document.h"

#include <algorithm>
#include <array>

namespace zeugnis::dokumente {
namespace {

constexpr char16_t FestesLeerzeichen = 0xA0;
constexpr char16_t Apostroph = u'’';
constexpr TextView Anfang = u"„";
constexpr TextView Ende = u"“";

// What an ordinal number stands in front of, in a report.
constexpr auto Gezaehltes = std::to_array<TextView>({
    u"Schul",
    u"Klasse",
    u"Halbjahr",
    u"Jahrgang",
    u"Lernjahr",
    u"Januar",
    u"Februar",
    u"März",
    u"April",
    u"Mai",
    u"Juni",
    u"Juli",
    u"August",
    u"September",
    u"Oktober",
    u"November",
    u"Dezember",
});

bool istZiffer(char16_t zeichen) { return zeichen >= u'0' && zeichen <= u'9'; }

bool istAussen(char16_t zeichen) {
    return zeichen == u' ' || zeichen == u'\n' || zeichen == FestesLeerzeichen;
}

Text ohneLeerzeilen(TextView text) {
    Text ohne;
    for (const char16_t zeichen : text) {
        if (zeichen == u'\n')
            ohne.erase(ohne.find_last_not_of(u" \n") + 1);
        ohne += zeichen;
    }
    return ohne;
}

Text mitFestenOrdnungszahlen(Text text) {
    for (size_t i = text.find(u". "); i != Text::npos; i = text.find(u". ", i + 1)) {
        const TextView danach = TextView(text).substr(i + 2);
        if (i > 0 && istZiffer(text[i - 1]) &&
            std::any_of(Gezaehltes.begin(), Gezaehltes.end(),
                        [&](TextView wort) { return danach.starts_with(wort); }))
            text[i + 1] = FestesLeerzeichen;
    }
    return text;
}

// A straight quote, or two single ones that stand for a double one.
size_t laengeDesZeichens(TextView text, size_t i) {
    if (text[i] == u'"')
        return 1;
    if (text[i] != u'\'')
        return 0;
    return text.substr(i, 2) == u"''" ? 2 : 1;
}

bool kannOeffnen(TextView text, size_t i, size_t laenge) {
    const bool davorFrei = i == 0 || istAussen(text[i - 1]) || text[i - 1] == u'(';
    return davorFrei && i + laenge < text.size() && !istAussen(text[i + laenge]);
}

bool kannSchliessen(TextView text, size_t i, size_t laenge) {
    if (i == 0 || istAussen(text[i - 1]))
        return false;
    constexpr TextView Danach = u" \n.,;:!?)";
    return i + laenge == text.size() || Danach.find(text[i + laenge]) != TextView::npos;
}

// Where the quotation that begins at `i` ends; npos if nothing closes it.
size_t schluss(TextView text, size_t i, size_t laenge) {
    const TextView zeichen = text.substr(i, laenge);
    for (size_t j = i + laenge; j < text.size(); ++j) {
        const size_t dort = laengeDesZeichens(text, j);
        if (dort == laenge && text.substr(j, laenge) == zeichen && kannSchliessen(text, j, laenge))
            return j;
        if (dort > 0)
            j += dort - 1;
    }
    return TextView::npos;
}

Text mitAnfuehrungszeichen(TextView text) {
    Text gesetzt;
    size_t ende = TextView::npos;
    for (size_t i = 0; i < text.size(); ++i) {
        const size_t laenge = laengeDesZeichens(text, i);
        if (laenge == 0) {
            gesetzt += text[i];
            continue;
        }
        if (i == ende) {
            gesetzt += Ende;
            ende = TextView::npos;
        } else if (const size_t danach = schluss(text, i, laenge); ende == TextView::npos &&
                                                                   danach != TextView::npos &&
                                                                   kannOeffnen(text, i, laenge)) {
            gesetzt += Anfang;
            ende = danach;
        } else if (text[i] == u'\'') {
            gesetzt += Text(laenge, Apostroph);
        } else {
            gesetzt += text[i];
        }
        i += laenge - 1;
    }
    return gesetzt;
}

} // namespace

Text AufPapier(TextView text) {
    return mitAnfuehrungszeichen(mitFestenOrdnungszahlen(ohneLeerzeilen(printable(text))));
}

} // namespace zeugnis::dokumente
