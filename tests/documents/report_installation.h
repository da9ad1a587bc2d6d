#pragma once

#include "behaviour/avsv_stores.h"
#include "files/school_data.h"
#include "tests/support/test_installation.h"

namespace zeugnis::test {

Schueler schueler(const Text& vorname, const Text& nachname, const Text& geburtsdatum = {},
                  const Text& geburtsort = {});

/// A child and what has been written about it.
struct Zeugniskind {
    Schueler Kind;
    Text AV;
    Text SV;
    std::vector<Text> Bereiche = {}; ///< the sections of its pair of years, from the first on
};

/// The text "Satz 1 …" to "Satz count …", each sentence a good half line long.
Text saetze(int count);

/// What the reports need: class list, school data and texts, written as the program writes them.
class ReportInstallation : public TemporaryFolder {
  public:
    ReportInstallation();

    /// Writes all files in Daten.
    void write(const std::vector<Zeugniskind>& kinder, const Text& klasse = u"3a");
    using TemporaryFolder::write;

    /// Changes a file as a word processor would.
    void edit(const char* name) const;

    Schuldaten Schule;
};

} // namespace zeugnis::test
