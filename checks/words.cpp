#include "checks/words.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr auto Abkuerzungen = std::to_array<TextView>({
    u"bzw",
    u"usw",
    u"etc",
    u"ca",
    u"Dr",
    u"Nr",
    u"St",
    u"evtl",
    u"ggf",
    u"vgl",
    u"inkl",
    u"Std",
});

bool istZiffer(char16_t zeichen) { return zeichen >= u'0' && zeichen <= u'9'; }

bool verbindet(TextView text, size_t i) {
    const char16_t zeichen = text[i];
    return (zeichen == u'-' || zeichen == u'\'' || zeichen == u'’') && i + 1 < text.size() &&
           IstBuchstabe(text[i + 1]);
}

} // namespace

bool IstKlein(char16_t zeichen) {
    return (zeichen >= u'a' && zeichen <= u'z') ||
           (zeichen >= u'ß' && zeichen <= u'ÿ' && zeichen != u'÷') || zeichen == u'š' ||
           zeichen == u'ž' || zeichen == u'œ';
}

bool IstGross(char16_t zeichen) {
    return (zeichen >= u'A' && zeichen <= u'Z') ||
           (zeichen >= u'À' && zeichen <= u'Þ' && zeichen != u'×') || zeichen == u'Š' ||
           zeichen == u'Ž' || zeichen == u'Œ' || zeichen == u'Ÿ';
}

bool IstBuchstabe(char16_t zeichen) { return IstKlein(zeichen) || IstGross(zeichen); }

std::vector<Wort> WoerterVon(TextView text) {
    std::vector<Wort> woerter;
    for (size_t i = 0; i < text.size(); ++i) {
        if (!IstBuchstabe(text[i]))
            continue;
        size_t ende = i;
        while (ende < text.size() &&
               (IstBuchstabe(text[ende]) || (ende > i && verbindet(text, ende))))
            ++ende;
        woerter.push_back({text.substr(i, ende - i), i});
        i = ende;
    }
    return woerter;
}

bool IstAbkuerzungspunkt(TextView text, size_t stelle) {
    if (stelle == 0 || text[stelle] != u'.')
        return false;
    if (istZiffer(text[stelle - 1]))
        return true;
    size_t anfang = stelle;
    while (anfang > 0 && IstBuchstabe(text[anfang - 1]))
        --anfang;
    const TextView wort = text.substr(anfang, stelle - anfang);
    return wort.size() == 1 ||
           std::find(Abkuerzungen.begin(), Abkuerzungen.end(), wort) != Abkuerzungen.end();
}

std::vector<Satz> SaetzeVon(TextView text) {
    std::vector<Satz> saetze;
    size_t anfang = 0;
    const auto schliesse = [&](size_t ende) {
        const size_t erstes = text.find_first_not_of(u" \r\n", anfang);
        if (erstes < ende)
            saetze.push_back({erstes, ende});
        anfang = ende;
    };
    for (size_t i = 0; i < text.size(); ++i) {
        const bool einzeln = (i == 0 || text[i - 1] != u'.') && text.substr(i + 1, 1) != u".";
        const bool punkt = text[i] == u'.' && einzeln && !IstAbkuerzungspunkt(text, i);
        if (punkt || text[i] == u'!' || text[i] == u'?')
            schliesse(i + 1);
        else if (text[i] == u'\n')
            schliesse(i);
    }
    schliesse(text.size());
    return saetze;
}

} // namespace zeugnis
