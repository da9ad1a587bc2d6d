#include "checks/sentence_checks.h"

#include "checks/words.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr size_t Umgebung = 24;

// These never stand with a capital letter in the midst of a sentence.
constexpr auto NurAmAnfang = std::to_array<TextView>({
    u"Beim", u"Im",   u"In",   u"Auf",  u"Von", u"Mit", u"Das",    u"Den",    u"Der", u"Die", u"Er",
    u"Es",   u"Auch", u"Alle", u"Nach", u"Für", u"Zu",  u"Eigene", u"Geübte", u"Bei", u"An",
});

// What is the child's, if it is a boy and if it is a girl. "sie" and "ihr" may mean others too.
constexpr auto MaennlicheWoerter = std::to_array<TextView>({
    u"er",
    u"Er",
    u"ihm",
    u"Ihm",
    u"ihn",
    u"seine",
    u"Seine",
    u"seinen",
    u"seiner",
    u"seinem",
    u"seines",
    u"Sein",
    u"Seinen",
    u"Seinem",
    u"Seiner",
});
// In a girl's text it may be what she does something with.
constexpr TextView MeintAuchAnderes = u"ihn";
constexpr auto WeiblicheWoerter = std::to_array<TextView>({
    u"sie",
    u"Sie",
    u"ihr",
    u"Ihr",
    u"ihre",
    u"Ihre",
    u"ihren",
    u"ihrer",
    u"ihrem",
    u"Ihren",
});

template <size_t Anzahl>
bool enthaelt(const std::array<TextView, Anzahl>& liste, TextView wort) {
    return std::find(liste.begin(), liste.end(), wort) != liste.end();
}

Text abHier(const Text& text, size_t stelle) {
    const size_t ende = std::min(text.find(u'\n', stelle), text.size());
    Text stueck = text.substr(stelle, std::min(ende - stelle, Umgebung));
    if (ende - stelle > Umgebung)
        stueck = stueck.substr(0, stueck.find_last_of(u' ')) + u" …";
    return stueck;
}

bool gehtEinWortVoraus(const Text& text, size_t stelle) {
    return stelle >= 2 && text[stelle - 1] == u' ' && IstBuchstabe(text[stelle - 2]);
}

} // namespace

void AnfaengePruefen(const Text& text, std::vector<Befundstelle>& befunde) {
    for (const Satz& satz : SaetzeVon(text)) {
        const size_t erster = text.find_first_not_of(u"(„‚'\"", satz.Anfang);
        if (erster < satz.Ende && IstKlein(text[erster]))
            befunde.push_back({Textmangel::KleinerAnfang, abHier(text, erster)});
    }
}

void LeerzeichenPruefen(const Text& text, std::vector<Befundstelle>& befunde) {
    constexpr TextView Zeichen = u".,;:!?";
    for (size_t i = 1; i + 1 < text.size(); ++i)
        if (Zeichen.find(text[i]) != TextView::npos && IstBuchstabe(text[i - 1]) &&
            IstBuchstabe(text[i + 1]) && !IstAbkuerzungspunkt(text, i)) {
            const size_t wort = text.find_last_of(u" \n", i);
            befunde.push_back({Textmangel::FehlendesLeerzeichen,
                               abHier(text, wort == Text::npos ? 0 : wort + 1)});
        }
}

void EndenPruefen(const Text& text, std::vector<Befundstelle>& befunde) {
    for (size_t anfang = 0; anfang < text.size();) {
        const size_t ende = std::min(text.find(u'\n', anfang), text.size());
        const size_t letztes = text.find_last_not_of(u" “”‘'\")", ende - (ende > 0 ? 1 : 0));
        const bool leer = letztes == Text::npos || letztes < anfang || ende == anfang;
        if (!leer && TextView(u".!?").find(text[letztes]) == TextView::npos) {
            const size_t wort = text.find_last_of(u" \n", letztes);
            befunde.push_back(
                {Textmangel::OffenesEnde,
                 text.substr(wort == Text::npos ? anfang : wort + 1, letztes - wort)});
        }
        anfang = ende + 1;
    }
}

void FugenPruefen(const Text& text, const Bausteinwoerter& bausteine,
                  std::vector<Befundstelle>& befunde) {
    for (const Wort& wort : WoerterVon(text)) {
        if (!IstGross(wort.Text.front()) || !gehtEinWortVoraus(text, wort.Stelle))
            continue;
        const bool beginnt =
            enthaelt(NurAmAnfang, wort.Text) ||
            std::any_of(bausteine.Satzanfaenge.begin(), bausteine.Satzanfaenge.end(),
                        [&](const Text& anfang) {
                            return text.compare(wort.Stelle, anfang.size(), anfang) == 0;
                        });
        if (beginnt)
            befunde.push_back({Textmangel::Zusammengelaufen, abHier(text, wort.Stelle)});
    }
}

void FuerwoerterPruefen(const Text& text, const Textumstand& umstand,
                        std::vector<Befundstelle>& befunde) {
    const bool istJunge = umstand.Geschlecht == u"m";
    if (!istJunge && umstand.Geschlecht != u"w")
        return;
    for (const Satz& satz : SaetzeVon(text)) {
        const TextView ganzer = TextView(text).substr(satz.Anfang, satz.Ende - satz.Anfang);
        TextView fremdes;
        bool eigenes = false;
        for (const Wort& wort : WoerterVon(ganzer)) {
            const bool fremd =
                istJunge ? enthaelt(WeiblicheWoerter, wort.Text)
                         : wort.Text != MeintAuchAnderes && enthaelt(MaennlicheWoerter, wort.Text);
            if (fremd && fremdes.empty())
                fremdes = wort.Text;
            // For a boy "sie" may be what he does something with; then he is there himself.
            eigenes = eigenes || (istJunge && (enthaelt(MaennlicheWoerter, wort.Text) ||
                                               wort.Text.starts_with(umstand.Vorname)));
        }
        if (!fremdes.empty() && !eigenes)
            befunde.push_back({Textmangel::AnderesGeschlecht, Text(fremdes)});
    }
}

} // namespace zeugnis
