#pragma once

#include "documents/content/report_list.h"

#include <optional>
#include <string>

/// What can befall the file of a list from outside, and what is left then.
namespace zeugnis::dokumente {

/// The bytes of a file, or nothing if there is none. Fails as readWholeFile does.
std::optional<std::string> InhaltVon(const Arbeitsverzeichnis& verzeichnis, TextView datei);

/// A German sentence if the file is gone, empty, cut, in another encoding, not readable as a list
/// of this class's year, or holds fewer records than there are children. Empty if it is whole.
Text SchadenDerListe(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                     const std::optional<std::string>& bytes);

/// What the list goes on with after damage.
struct Rest {
    std::vector<Listenzeile> Zeilen;
    Text Satz; ///< German: where it comes from
};

/// The most complete of what is in the file and, unless `nurDatei`, what was last saved.
Rest RestDerListe(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                  const std::string& bytes, bool nurDatei);

/// The list as it was last saved under the net, if it holds entries: its bytes.
std::optional<std::string> ZuletztGespeichert(const Arbeitsverzeichnis& verzeichnis,
                                              const Stammdaten& daten);

} // namespace zeugnis::dokumente
