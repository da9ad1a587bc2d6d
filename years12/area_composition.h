#pragma once

#include "years12/competence_areas.h"

namespace zeugnis::jahrgang12 {

/// The part texts of one child, by group.
using Teiltexte = Gruppentabelle<Text>;

/// What a group contributes with the button that shows `beschriftung` behind the opening label
/// `oeffnung`. `bisher` are the part texts so far.
Text TeiltextBilden(int nummer, const Text& beschriftung, const Text& oeffnung,
                    const Teiltexte& bisher);

/// The text of one of the areas 1 to 6 from all part texts of its page, in the order of the
/// groups, before the expansion of placeholders.
Text TeiltexteVerbinden(int seite, const Teiltexte& teile);

} // namespace zeugnis::jahrgang12
