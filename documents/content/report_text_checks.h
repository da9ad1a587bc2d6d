#pragma once

#include "checks/text_checks.h"
#include "documents/content/class_data.h"

/// The checks of texts and data, as sentences for the teacher.
namespace zeugnis::dokumente {

/// A sentence about a section, and the words that can be learnt because of it.
struct Textbefund {
    Text Satz;
    std::vector<Text> Woerter = {};
};

/// What is noticed in a printed text; one sentence for each kind.
std::vector<Textbefund> TextbefundeVon(const Text& gedruckt, const Textumstand& umstand);

/// All that is known without a dictionary: the names of class, school and working groups.
std::set<Text> NamenDerKlasse(const Stammdaten& stamm);

/// Birth date, place of birth or sex that is missing, as one sentence; empty if nothing is.
Text FehlendeAngaben(const Schueler& kind);

/// The same of the school.
Text FehlendeSchulangaben(const Schuldaten& schule);

} // namespace zeugnis::dokumente
