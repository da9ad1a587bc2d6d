#include "behaviour/avsv_composition.h"

#include <array>
#include <span>

namespace zeugnis {
namespace {

// What stands in front of a part that is not empty.
enum class Fuge {
    Anfang,           ///< nothing
    UndAber,          ///< joined to the first part; alone it opens with the first name
    Pronomen,         ///< a new sentence about "Er" or "Sie"; alone it opens with the first name
    PronomenDativ,    ///< the same, with "Ihm" or "Ihr" for the lines that are worded so
    Satz,             ///< a new sentence that is complete
    VornameSatz,      ///< a new sentence that begins with the first name
    Absatz,           ///< a new line
    LeerzeichenAbsatz ///< a new line, with a blank before it
};

// By category.
constexpr std::array<Fuge, KategorienAV> FugenAV =
    std::to_array({Fuge::Anfang, Fuge::UndAber, Fuge::PronomenDativ, Fuge::Satz, Fuge::Satz,
                   Fuge::VornameSatz, Fuge::Absatz});
constexpr std::array<Fuge, KategorienSV> FugenSV = std::to_array(
    {Fuge::Anfang, Fuge::UndAber, Fuge::Pronomen, Fuge::Satz, Fuge::Satz, Fuge::LeerzeichenAbsatz});

// The first bad line of the first two categories. Line 5 lies on different sides, on purpose.
constexpr int SchlechteHaelfteZuerst = 5;
constexpr int SchlechteHaelfteDanach = 6;

bool mitDativ(int zeile) { return zeile == 5 || zeile == 9; }

TextView undOderAber(const Zeilenwahl& wahl) {
    const bool zuerstSchlecht = wahl[0] >= SchlechteHaelfteZuerst;
    const bool danachSchlecht = wahl[1] >= SchlechteHaelfteDanach;
    return zuerstSchlecht == danachSchlecht ? u" und " : u", aber ";
}

TextView pronomen(const Text& geschlecht, bool dativ) {
    if (geschlecht == u"m")
        return dativ ? u". Ihm " : u". Er ";
    if (geschlecht == u"w")
        return dativ ? u". Ihr " : u". Sie ";
    return {};
}

struct Satzbau {
    const Text& Vorname;
    const Text& Geschlecht;
    const Zeilenwahl& Wahl;

    // `allein`: all parts before are empty.
    [[nodiscard]] Text fuge(Fuge art, bool allein) const {
        switch (art) {
        case Fuge::Anfang:
            return {};
        case Fuge::UndAber:
            return allein ? Vorname + u" " : Text(undOderAber(Wahl));
        case Fuge::Pronomen:
            return allein ? Vorname + u" " : Text(pronomen(Geschlecht, false));
        case Fuge::PronomenDativ:
            return allein ? Vorname + u" " : Text(pronomen(Geschlecht, mitDativ(Wahl[2])));
        case Fuge::Satz:
            return allein ? u"" : u". ";
        case Fuge::VornameSatz:
            return (allein ? u"" : u". ") + Vorname + u" ";
        case Fuge::Absatz:
            return allein ? u"" : u".\r\n";
        case Fuge::LeerzeichenAbsatz:
            return allein ? u"" : u". \r\n";
        }
        return {};
    }

    [[nodiscard]] Text teil(int kategorie, const Zeilentabelle& zeilen) const {
        const int zeile = Wahl[kategorie];
        if (zeile == 0)
            return {};
        const Text& text = zeilen[kategorie][zeile];
        return kategorie == 0 ? Vorname + u" " + text : text;
    }
};

Text satzBauen(const Satzbau& satz, std::span<const Fuge> fugen, const Zeilentabelle& zeilen) {
    Text text;
    for (size_t k = 0; k < fugen.size(); ++k) {
        const Text teil = satz.teil(static_cast<int>(k), zeilen);
        if (!teil.empty())
            text += satz.fuge(fugen[k], text.empty()) + teil;
    }
    return text.empty() ? text : text + u".";
}

} // namespace

Text AVSatzBauen(const Text& vorname, const Text& geschlecht, const Zeilenwahl& wahl,
                 const Zeilentabelle& zeilen) {
    return satzBauen({vorname, geschlecht, wahl}, FugenAV, zeilen);
}

Text SVSatzBauen(const Text& vorname, const Text& geschlecht, const Zeilenwahl& wahl,
                 const Zeilentabelle& zeilen) {
    return satzBauen({vorname, geschlecht, wahl}, FugenSV, zeilen);
}

} // namespace zeugnis
