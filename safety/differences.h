#pragma once

#include "safety/journal.h"
#include "safety/paths.h"

namespace zeugnis::safety {

/// One text, number or record in which a file differs from its former content.
struct Difference {
    enum class Kind { Changed, OnlyFormer, OnlyNow };
    Kind kind = Kind::Changed;
    std::string file; ///< from the program folder
    Text pupil;       ///< "Ahlers, Tom"; empty in files that have none
    Text what;        ///< "Arbeitsverhalten", "Zeile 3, Spalte 2"
    Text former;
    Text current;
    size_t record = 0; ///< of the file as it is now; of the former one for OnlyFormer
    size_t field = 0;
};

/// What differs, in the order of the former content. A file that cannot be read now counts as
/// empty; one of no known form is compared line by line.
std::vector<Difference> differencesTo(const Paths& paths, const Former& former);

/// The same for several files.
std::vector<Difference> differencesTo(const Paths& paths, const std::vector<Former>& formers);

} // namespace zeugnis::safety
