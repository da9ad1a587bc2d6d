#pragma once

#include "platform/working_directory.h"

#include <set>
#include <vector>

namespace zeugnis {

/// What the modules of the class are made of. Texts are composed from them alone, so a word of a
/// composed text that none of them holds has been mutilated.
struct Bausteinwoerter {
    std::set<Text> Woerter;         ///< in the forms for both sexes
    std::vector<Text> Satzanfaenge; ///< the first words of what opens a sentence
};

/// Reads the module files that are there, from the program folder. Fails as readWholeFile does.
Bausteinwoerter BausteinwoerterLesen(Arbeitsverzeichnis& verzeichnis);

/// The marks of Platzhalter.txt; none if there is no such file. Fails as the record reader does.
std::vector<Text> PlatzhalterLesen(Arbeitsverzeichnis& verzeichnis);

} // namespace zeugnis
