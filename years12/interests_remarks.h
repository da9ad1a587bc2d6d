#pragma once

#include "platform/text.h"

#include <array>

/// The texts of the areas 0 and 7, before the expansion of placeholders.
namespace zeugnis::jahrgang12 {

/// "Lena liest gern." Choice 0 is the one for no entry and gives no sentence.
Text InteressensatzBilden(const Text& vorname, int wahl, const Text& beschriftung);

/// What area 7 is composed of. All but the inscriptions are part texts.
struct Bemerkungsteile {
    Text AGSatz;
    Text FesteBemerkung;
    std::array<Text, 8> Faecher;
    Text Einleitung;        ///< inscription in front of the list of subjects
    Text GewaehlterSchluss; ///< tail of the list in the first half-year
    Text FesterSchluss;     ///< inscription that is the tail in the second half-year
    Text Versetzung;
};

/// `trenner8` stands between the list and the Versetzung; the composition sets it to a line end
/// where there is a Versetzung, and leaves it as it is where there is none.
Text BemerkungenVerbinden(const Bemerkungsteile& teile, TextView halbjahr, Text& trenner8);

} // namespace zeugnis::jahrgang12
