#pragma once

#include "files/pupil_list.h"

#include <vector>

namespace zeugnis {

class GsBasis;

enum class Uebernahme {
    Ersetzen,  ///< a new list
    Anhaengen, ///< behind the pupils that are there; a list of one blank pupil is replaced
};

/// How many pupils of the open master data a list would stand behind.
int VorhandeneKinder(const GsBasis& basis, Uebernahme art);

/// Types the children into the shown master data, as a hand would, and saves. The screen asks its
/// own question before the pupil data are unlocked; with a No nothing happens and the result is
/// false. The stores are blanked as by every change of the list.
bool KlassenlisteUebernehmen(GsBasis& basis, const std::vector<Schueler>& kinder, Uebernahme art);

} // namespace zeugnis
