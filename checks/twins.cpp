#include "checks/twins.h"

#include "checks/words.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr size_t GleichAbZeichen = 60;
constexpr size_t FastGleichAbWoertern = 30;
constexpr size_t Anders = 5; // of a hundred words

// Both of a pair count as the first.
constexpr auto Geschlechterformen = std::to_array<TextView>({
    u"er",
    u"sie",
    u"ihm",
    u"ihr",
    u"ihn",
    u"sein",
    u"seine",
    u"seinen",
    u"seinem",
    u"seiner",
    u"seines",
    u"ihre",
    u"ihren",
    u"ihrem",
    u"ihrer",
    u"ihres",
    u"schüler",
    u"schülerin",
});

Text klein(TextView wort) {
    Text kleines(wort);
    if (!kleines.empty() && IstGross(kleines.front()))
        kleines.front() = static_cast<char16_t>(kleines.front() + 0x20);
    return kleines;
}

bool istName(TextView wort, TextView name) {
    return !name.empty() && wort.substr(0, name.size()) == name &&
           (wort.size() == name.size() || wort.substr(name.size()) == u"s");
}

// FNV-1a
std::uint64_t zahlVon(TextView wort) {
    std::uint64_t zahl = 14695981039346656037U;
    for (const char16_t zeichen : wort)
        zahl = (zahl ^ zeichen) * 1099511628211U;
    return zahl;
}

// The words that both have, whatever their order: no longest common sequence has more.
size_t gemeinsameHoechstens(Vergleichswoerter eine, Vergleichswoerter andere) {
    std::sort(eine.begin(), eine.end());
    std::sort(andere.begin(), andere.end());
    Vergleichswoerter beide;
    std::set_intersection(eine.begin(), eine.end(), andere.begin(), andere.end(),
                          std::back_inserter(beide));
    return beide.size();
}

// Lengths of the longest common sequences of what is left of both from each place on.
class Gemeinsame {
  public:
    Gemeinsame(const Vergleichswoerter& eine, const Vergleichswoerter& andere)
        : m_breite(andere.size() + 1), m_laengen((eine.size() + 1) * m_breite) {
        for (size_t i = eine.size(); i-- > 0;)
            for (size_t j = andere.size(); j-- > 0;)
                m_laengen[i * m_breite + j] = eine[i] == andere[j]
                                                  ? ab(i + 1, j + 1) + 1
                                                  : std::max(ab(i + 1, j), ab(i, j + 1));
    }
    [[nodiscard]] size_t ab(size_t i, size_t j) const { return m_laengen[i * m_breite + j]; }

  private:
    size_t m_breite;
    std::vector<size_t> m_laengen;
};

bool reicht(size_t gemeinsame, size_t eine, size_t andere) {
    return 200 * gemeinsame >= (100 - Anders) * (eine + andere);
}

void anfuegen(std::vector<Textstelle>& stellen, const Wort& wort, bool nachbar) {
    if (nachbar && !stellen.empty())
        stellen.back().Laenge = wort.Stelle + wort.Text.size() - stellen.back().Anfang;
    else
        stellen.push_back({wort.Stelle, wort.Text.size()});
}

} // namespace

Vergleichswoerter VergleichswoerterVon(TextView text, TextView vorname) {
    const std::vector<Wort> namen = WoerterVon(vorname);
    Vergleichswoerter zahlen;
    for (const Wort& wort : WoerterVon(text)) {
        const Text kleines = klein(wort.Text);
        if (std::any_of(namen.begin(), namen.end(),
                        [&](const Wort& name) { return istName(wort.Text, name.Text); }))
            zahlen.push_back(0);
        else if (std::find(Geschlechterformen.begin(), Geschlechterformen.end(), kleines) !=
                 Geschlechterformen.end())
            zahlen.push_back(1);
        else
            zahlen.push_back(zahlVon(kleines));
    }
    return zahlen;
}

bool SindFastGleich(const Vergleichswoerter& eine, const Vergleichswoerter& andere) {
    const size_t wenigste = std::min(eine.size(), andere.size());
    if (wenigste < FastGleichAbWoertern || !reicht(wenigste, eine.size(), andere.size()) ||
        !reicht(gemeinsameHoechstens(eine, andere), eine.size(), andere.size()))
        return false;
    return reicht(Gemeinsame(eine, andere).ab(0, 0), eine.size(), andere.size());
}

bool SindGleich(TextView einer, TextView anderer) {
    return einer.size() > GleichAbZeichen && einer == anderer;
}

std::pair<std::vector<Textstelle>, std::vector<Textstelle>> UnterschiedeZwischen(TextView links,
                                                                                 TextView rechts) {
    const std::array texte = {WoerterVon(links), WoerterVon(rechts)};
    std::array<Vergleichswoerter, 2> zahlen;
    for (size_t seite = 0; seite < 2; ++seite)
        for (const Wort& wort : texte.at(seite))
            zahlen.at(seite).push_back(zahlVon(wort.Text));
    const Gemeinsame gemeinsame(zahlen[0], zahlen[1]);
    std::pair<std::vector<Textstelle>, std::vector<Textstelle>> stellen;
    size_t i = 0;
    size_t j = 0;
    bool nachbarLinks = false;
    bool nachbarRechts = false;
    while (i < zahlen[0].size() || j < zahlen[1].size()) {
        if (i < zahlen[0].size() && j < zahlen[1].size() && zahlen[0][i] == zahlen[1][j]) {
            ++i;
            ++j;
            nachbarLinks = nachbarRechts = false;
        } else if (j == zahlen[1].size() ||
                   (i < zahlen[0].size() && gemeinsame.ab(i + 1, j) >= gemeinsame.ab(i, j + 1))) {
            anfuegen(stellen.first, texte[0][i++], std::exchange(nachbarLinks, true));
        } else {
            anfuegen(stellen.second, texte[1][j++], std::exchange(nachbarRechts, true));
        }
    }
    return stellen;
}

} // namespace zeugnis
