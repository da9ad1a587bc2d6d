#pragma once

#include "documents/content/school_report.h"

/// What a careful colleague would notice in the reports of a class before they are printed.
namespace zeugnis::dokumente {

/// `Platz` of what concerns no single child.
inline constexpr int AlleKinder = -1;

struct Befund {
    int Platz = AlleKinder;
    Text Kind = {};          ///< its name as it stands on every page of its report
    TextView Abschnitt = {}; ///< the heading below which it stands; empty for none
    Text Satz;
};

/// Child by child in the order of the class list; what concerns all comes first. `platzhalter` are
/// the marks that must not be left in a text, for example "<Vorname>".
std::vector<Befund> ZeugnissePruefen(const Zeugnisdaten& daten,
                                     const std::vector<Text>& platzhalter);

/// The marks of Platzhalter.txt; none if there is no such file. Fails as the record reader does.
std::vector<Text> PlatzhalterLesen(Arbeitsverzeichnis& verzeichnis);

} // namespace zeugnis::dokumente
