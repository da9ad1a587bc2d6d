#include "checks/text_checks.h"

#include "checks/sentence_checks.h"
#include "checks/words.h"

#include <algorithm>
#include <array>

namespace zeugnis {
namespace {

constexpr size_t RestMindestens = 2; // letters that are left of a word
constexpr size_t WegHoechstens = 4;  // letters that the clean-up can eat in two passes

constexpr auto Einschraenkungen = std::to_array<TextView>({
    u"den Erwartungen mit Einschränkungen",
    u"nicht den Erwartungen",
});
constexpr auto Gruende = std::to_array<TextView>({
    u"noch",         u"nicht",     u"selten",        u"wenig",    u"manchmal", u"gelegentlich",
    u"häufig",       u"oft",       u"schwer",        u"Hilfe",    u"erst",     u"teilweise",
    u"unregelmäßig", u"wechselnd", u"muss",          u"benötigt", u"braucht",  u"kaum",
    u"nur",          u"ab und zu", u"zurückhaltend", u"sollte",   u"fällt",    u"Unterstützung",
    u"weil",         u"da ",
});
constexpr auto Versetzungsworte = std::to_array<TextView>({
    u"versetzt",
    u"rückt",
    u"wiederholt",
    u"überspringt",
    u"wechselt",
    u"Schuljahrgang",
    u"Eingangsstufe",
});

template <size_t Anzahl>
bool nennt(TextView text, const std::array<TextView, Anzahl>& worte) {
    return std::any_of(worte.begin(), worte.end(),
                       [&](TextView wort) { return text.find(wort) != TextView::npos; });
}

bool endetAufZischlaut(TextView name) {
    return !name.empty() && TextView(u"sßxzSXZ").find(name.back()) != TextView::npos;
}

bool istFalscheNamensform(TextView wort, TextView name) {
    if (name.empty() || !wort.starts_with(name))
        return false;
    const TextView rest = wort.substr(name.size());
    return rest == u"'s" || rest == u"’s" || (rest == u"s" && endetAufZischlaut(name));
}

Text kleinAmAnfang(TextView wort) {
    Text klein(wort);
    if (IstGross(klein.front()))
        klein.front() = static_cast<char16_t>(klein.front() + 0x20);
    return klein;
}

bool istBekannt(TextView wort, const Textumstand& umstand) {
    const Text genau(wort);
    const Text klein = kleinAmAnfang(wort);
    const auto in = [&](const std::set<Text>* menge) {
        return menge != nullptr && (menge->contains(genau) || menge->contains(klein));
    };
    return in(umstand.Bekannt) || in(umstand.Bausteine ? &umstand.Bausteine->Woerter : nullptr);
}

bool kenntWoerterbuch(TextView wort, const Rechtschreibung& buch) {
    return buch.kennt(wort) || buch.kennt(kleinAmAnfang(wort));
}

// Whether some word of the modules ends in this one, and no more is missing than could be eaten.
bool istWortrest(TextView wort, const Bausteinwoerter& bausteine) {
    return wort.size() >= RestMindestens &&
           std::any_of(bausteine.Woerter.begin(), bausteine.Woerter.end(), [&](const Text& ganzes) {
               return ganzes.size() > wort.size() && ganzes.size() <= wort.size() + WegHoechstens &&
                      TextView(ganzes).ends_with(wort);
           });
}

// All parts of a word with hyphens, or the word itself.
template <typename Kennt>
bool kenntTeile(TextView wort, Kennt kennt) {
    if (kennt(wort))
        return true;
    for (size_t anfang = 0; anfang < wort.size();) {
        const size_t ende = std::min(wort.find(u'-', anfang), wort.size());
        if (ende == wort.size() && anfang == 0)
            return false;
        if (!kennt(wort.substr(anfang, ende - anfang)))
            return false;
        anfang = ende + 1;
    }
    return true;
}

bool istRichtig(TextView wort, const Textumstand& umstand) {
    return kenntTeile(wort, [&](TextView teil) { return istBekannt(teil, umstand); }) ||
           (umstand.Woerterbuch != nullptr && kenntTeile(wort, [&](TextView teil) {
                return istBekannt(teil, umstand) || kenntWoerterbuch(teil, *umstand.Woerterbuch);
            }));
}

// In a placeholder, or with one in its midst: Schüler<in>, <ihr/sein>e.
bool gehoertZuPlatzhalter(TextView text, const Wort& wort) {
    const size_t ende = wort.Stelle + wort.Text.size();
    const size_t klammer = text.find_last_of(u"<>", wort.Stelle);
    const bool innen = klammer != TextView::npos && text[klammer] == u'<' &&
                       text.find(u'>', ende) != TextView::npos;
    const bool dahinter = wort.Stelle > 0 && text[wort.Stelle - 1] == u'>';
    return innen || dahinter || (ende < text.size() && text[ende] == u'<');
}

void woerterPruefen(const Text& text, const Textumstand& umstand,
                    std::vector<Befundstelle>& befunde) {
    for (const Wort& wort : WoerterVon(text)) {
        if (istFalscheNamensform(wort.Text, umstand.Vorname)) {
            befunde.push_back({Textmangel::Namensform, Text(wort.Text)});
            continue;
        }
        if (istRichtig(wort.Text, umstand))
            continue;
        if (umstand.Bausteine != nullptr && istWortrest(wort.Text, *umstand.Bausteine))
            befunde.push_back({Textmangel::Wortrest, Text(wort.Text)});
        else if (umstand.Woerterbuch != nullptr)
            befunde.push_back({Textmangel::Unbekannt, Text(wort.Text)});
    }
}

} // namespace

std::vector<Befundstelle> TextPruefen(const Text& text, const Textumstand& umstand) {
    std::vector<Befundstelle> befunde;
    AnfaengePruefen(text, befunde);
    LeerzeichenPruefen(text, befunde);
    EndenPruefen(text, befunde);
    if (umstand.Bausteine != nullptr)
        FugenPruefen(text, *umstand.Bausteine, befunde);
    FuerwoerterPruefen(text, umstand, befunde);
    woerterPruefen(text, umstand, befunde);
    return befunde;
}

std::vector<Wort> UnbekannteWoerter(TextView text, const Textumstand& umstand) {
    std::vector<Wort> unbekannte = WoerterVon(text);
    std::erase_if(unbekannte, [&](const Wort& wort) {
        return gehoertZuPlatzhalter(text, wort) ||
               (!istFalscheNamensform(wort.Text, umstand.Vorname) &&
                istRichtig(wort.Text, umstand));
    });
    return unbekannte;
}

bool IstUnbegruendetEingeschraenkt(const Text& text) {
    bool eingeschraenkt = false;
    bool begruendet = false;
    for (const Satz& satz : SaetzeVon(text)) {
        const TextView ganzer = TextView(text).substr(satz.Anfang, satz.Ende - satz.Anfang);
        if (nennt(ganzer, Einschraenkungen))
            eingeschraenkt = true;
        else
            begruendet = begruendet || nennt(ganzer, Gruende);
    }
    return eingeschraenkt && !begruendet;
}

bool NenntVersetzung(const Text& bemerkungen) { return nennt(bemerkungen, Versetzungsworte); }

} // namespace zeugnis
