#include "years12/area_composition.h"

namespace zeugnis::jahrgang12 {
namespace {

constexpr int Option15 = gruppeNamens(u"Option15");
constexpr int Option35 = gruppeNamens(u"Option35");

} // namespace

Text TeiltextBilden(int nummer, const Text& beschriftung, const Text& oeffnung,
                    const Teiltexte& bisher) {
    const Gruppe& eine = gruppe(nummer);
    // Both stand behind the same label: Option15 goes on with the sentence that Option35 opened.
    if (nummer == Option15 && !bisher[Option35].empty())
        return u" " + beschriftung + Text(eine.Nach);
    Text text(eine.Vor);
    if (eine.Oeffnung != 0)
        text += oeffnung + u" ";
    return text + beschriftung + Text(eine.Nach);
}

Text TeiltexteVerbinden(int seite, const Teiltexte& teile) {
    Text text;
    for (int nummer = 0; nummer < Gruppenzahl; ++nummer)
        if (gruppe(nummer).Seite == seite && !teile[nummer].empty())
            text += teile[nummer] + Text(gruppe(nummer).Fuge);
    return bereich(seite).Getrimmt ? trimmed(text) : text;
}

} // namespace zeugnis::jahrgang12
