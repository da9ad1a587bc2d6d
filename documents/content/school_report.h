#pragma once

#include "documents/content/report_list.h"
#include "documents/model/document.h"

namespace zeugnis::dokumente {

/// All that the reports of a class are made from.
struct Zeugnisdaten {
    Stammdaten Stamm;
    Abschnittstexte AVSV;
    Abschnittstexte Bereiche;               ///< of the years 1 and 2 or of the years 3 and 4
    std::optional<Zeugnisliste> Liste = {}; ///< absences and grades, if there are any yet
};

/// Texts that a screen holds now, in place of those of their store.
struct OffeneTexte {
    const Speicherdatei* Anstelle = nullptr; ///< one of `speicherdateien`
    Abschnittstexte Texte;
};

/// What stands under one heading.
struct Abschnittstext {
    TextView Ueberschrift;
    const Text& Inhalt;
};

/// The texts of a child, in the order in which the report shows them.
std::vector<Abschnittstext> AbschnitteVon(const Zeugnisdaten& daten, int platz);

/// Reads the files of the installation, but not the store that texts are open in place of. Fails
/// with invalid-call if there is no child in the class list.
Zeugnisdaten ZeugnisdatenLesen(Arbeitsverzeichnis& verzeichnis, const OffeneTexte& offen = {});

/// The texts in `daten` that come from a store; null if reports of this class take none from it.
Abschnittstexte* TexteAus(Zeugnisdaten& daten, const Speicherdatei& speicher);

/// Whether the remarks say that the conference does not move the child up.
bool IstNichtVersetzt(const Zeugnisdaten& daten, int platz);

/// The report of one child, which is also the title of the document. The `source` of a paragraph
/// is the place of its section among AbschnitteFuer.
Document ZeugnisBilden(const Zeugnisdaten& daten, int platz);

/// The reports of the class, one section per child in the order of the class list.
Document ZeugnisseBilden(const Zeugnisdaten& daten);

} // namespace zeugnis::dokumente
