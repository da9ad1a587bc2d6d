#pragma once

#include "documents/content/report_checks.h"

/// What the conference on the reports looks at: the class on one landscape table.
namespace zeugnis::dokumente {

/// A class with the lines that can be an overall rating, and what the checks have found.
struct Konferenzdaten {
    Zeugnisdaten Zeugnisse;
    std::vector<Text> GesamtAV;
    std::vector<Text> GesamtSV;
    std::vector<Befund> Befunde;
};

/// Fails as the readers of reports, modules and marks do.
Konferenzdaten KonferenzdatenLesen(Arbeitsverzeichnis& verzeichnis);

/// Child, both overall ratings, absences, the sentences on moving up, hints and room for notes.
Document KonferenzblattBilden(const Konferenzdaten& daten);

} // namespace zeugnis::dokumente
