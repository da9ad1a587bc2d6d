#pragma once

#include "documents/content/report_checks.h"

/// A class in one line, for the page that the teacher starts from.
namespace zeugnis::dokumente {

/// Where a text is written.
struct Fundort {
    int Platz = 0;
    bool IstAVSV = false;
    int Seite = 0; ///< of the entry screen

    bool operator==(const Fundort&) const = default;
};

/// Where the section of that heading is written; nothing for one that no screen writes.
std::optional<Fundort> FundortVon(const Stammdaten& stamm, TextView ueberschrift, int platz);

struct Klassenbild {
    int Kinder = 0; ///< those with a name
    int Vollstaendig = 0;
    std::optional<Fundort> OhneText;
    std::optional<int> Hinweise; ///< on texts; empty as long as spelling has not been checked
    std::optional<Fundort> ErsterHinweis;
    std::optional<int> OhneNoten; ///< empty where there are no grades, or no list of them yet
};

/// `befunde` is all that was noticed; of a text that is missing or marked as seen as well as of
/// others. Without spelling they say nothing on hints.
Klassenbild KlassenbildVon(const Zeugnisdaten& daten, const std::vector<Befund>& befunde,
                           bool mitHinweisen);

/// "22 Kinder", "Texte vollständig bei 14", "3 Hinweise", "Noten fehlen bei 8". Without a child
/// only the first one; the last two are empty where nothing is to be said.
struct Klassensatz {
    Text Kinder;
    Text Texte;
    Text Hinweise;
    Text Noten;
};
Klassensatz KlassensatzVon(const Klassenbild& bild);

} // namespace zeugnis::dokumente
