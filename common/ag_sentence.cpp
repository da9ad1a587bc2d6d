#include "common/ag_sentence.h"

#include <algorithm>

namespace zeugnis {
namespace {

// By the number of names: what stands behind the first three fields, and the two group words.
struct Verbindung {
    std::array<TextView, 3> Trenner;
    TextView ImSatz;
    TextView InDerListe;
};
constexpr TextView EineAG = u" der Arbeitsgemeinschaft ";
constexpr TextView MehrereAGs = u" den Arbeitsgemeinschaften ";
constexpr TextView EineAGListe = u"Arbeitsgemeinschaft: ";
constexpr TextView MehrereAGsListe = u"Arbeitsgemeinschaften: ";
constexpr std::array<Verbindung, 5> Verbindungen = std::to_array<Verbindung>({
    {{u"'?????"
      u"'",
      u"", u""},
     EineAG,
     EineAGListe},
    {{u"", u"", u""}, EineAG, EineAGListe},
    {{u" und ", u"", u""}, MehrereAGs, MehrereAGsListe},
    {{u", ", u" und ", u""}, MehrereAGs, MehrereAGsListe},
    {{u", ", u", ", u" und "}, MehrereAGs, MehrereAGsListe},
});

} // namespace

void AGNamenAnfuehren(Namensliste& liste) {
    for (Schueler& kind : liste.Kinder)
        for (Text& name : kind.AG)
            if (!name.empty())
                name.insert(0, 1, u'\'').push_back(u'\'');
}

AGSaetze AGSaetzeVon(const Schueler& kind) {
    const auto& [ag1, ag2, ag3, ag4] = kind.AG;
    const auto leere = std::count(kind.AG.begin(), kind.AG.end(), Text());
    const Verbindung& verbindung = Verbindungen.at(kind.AG.size() - static_cast<size_t>(leere));
    const auto& [t1, t2, t3] = verbindung.Trenner;
    const Text namen = ag1 + Text(t1) + ag2 + Text(t2) + ag3 + Text(t3) + ag4;
    return {kind.Vorname + u" hat an" + Text(verbindung.ImSatz) + namen + u" teilgenommen",
            Text(verbindung.InDerListe) + namen};
}

} // namespace zeugnis
