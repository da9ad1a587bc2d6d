#pragma once

#include "documents/content/class_data.h"

#include <vector>

namespace zeugnis::dokumente {

/// One section of a report between its head and its end.
struct Abschnittsplan {
    enum class Quelle { AVSV, Bereiche, Noten };

    Quelle Woher = Quelle::Bereiche;
    size_t Nummer = 0; ///< of the text in its store
    TextView Ueberschrift;
    TextView Fach = {}; ///< the subject that it is one part of; empty for none
};

inline constexpr TextView Notenueberschrift = u"Leistungen in den Fächern";

/// The sections of a year in the order in which the report shows them.
std::vector<Abschnittsplan> AbschnitteFuer(int jahrgang, const Zeugnisaufbau& aufbau);

} // namespace zeugnis::dokumente
