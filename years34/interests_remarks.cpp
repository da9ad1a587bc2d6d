#include "years34/interests_remarks.h"

#include <algorithm>

namespace zeugnis::jahrgang34 {
namespace {

// What stands behind the first and behind the second mark, by the boxes that are set.
struct Zensurzeile {
    Zensurwahl Wahl;
    TextView NachErster;
    TextView NachZweiter;
};
constexpr auto Zensurzeilen = std::to_array<Zensurzeile>({
    {{true, false, false}, u"", u""},
    {{false, true, false}, u"", u""},
    {{false, false, true}, u"", u""},
    {{true, true, false}, u" und ", u""},
    {{true, false, true}, u" und ", u""},
    {{false, true, true}, u"", u" und "},
    {{true, true, true}, u", ", u" und "},
});

Text wenn(bool gewaehlt, const Text& text) { return gewaehlt ? text : Text(); }

} // namespace

Text InteressenSatzBilden(const Text& vorname, const Text& interesse) {
    return vorname + u" " + interesse + u".";
}

Text ZensurSatzBilden(const Zensurwahl& wahl, const std::array<Text, Zensuren>& namen,
                      const Text& anfang, const Text& schluss) {
    const auto* zeile = std::find_if(Zensurzeilen.begin(), Zensurzeilen.end(),
                                     [&](const Zensurzeile& eine) { return eine.Wahl == wahl; });
    if (zeile == Zensurzeilen.end())
        return {};
    const Text liste = wenn(wahl[0], namen[0]) + Text(zeile->NachErster) + wenn(wahl[1], namen[1]) +
                       Text(zeile->NachZweiter) + wenn(wahl[2], namen[2]);
    return anfang + u" " + liste + u" " + schluss + u".";
}

Text MitLeerzeichen(const Text& text) { return text.empty() ? text : text + u" "; }

Text UrteilBilden(const Text& urteil, const Text& schluss) {
    return urteil.empty() ? urteil : urteil + u", " + schluss + u".";
}

Text BemerkungenVerbinden(const Bemerkungsteile& teile) {
    const auto zeilenendeBei = [](const Text& teil) {
        return Text(teil.empty() ? u"" : Zeilenende);
    };
    return teile.ZensurSatz + zeilenendeBei(teile.ZensurSatz) + teile.LernTeil1 + teile.LernListe +
           teile.LernTeil2 + zeilenendeBei(teile.VersetzungsSatz) + teile.VersetzungsSatz;
}

} // namespace zeugnis::jahrgang34
