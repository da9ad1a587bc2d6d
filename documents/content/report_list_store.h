#pragma once

#include "documents/content/report_list.h"

/// How the class list document is opened, begun anew and kept safe. Dates are dd.mm.yyyy.
namespace zeugnis::dokumente {

/// The list as it was read, and how to find out whether that still holds.
struct Listenstand {
    Stammdaten Stamm;
    Zeugnisliste Liste;
    std::optional<std::string> Bytes; ///< of the file; nothing if there is none
    Text Hinweis;                     ///< what the teacher has to know; mostly empty
};

/// What to go on with if the file is damaged.
enum class Nachschaden {
    BesterStand, ///< what was last saved, or what is left in the file
    NurDatei,    ///< what is left in the file
};

/// Reads master data and list. What cannot stay in the file is kept in a dated copy first: entries
/// without a child, or all of a damaged file. Of a file that is gone the entries that were last
/// saved go to a dated copy. Fails as the readers of the master data do, and if the copy cannot be
/// written.
Listenstand ZeugnislisteOeffnen(Arbeitsverzeichnis& verzeichnis, const Text& heute,
                                Nachschaden danach = Nachschaden::BesterStand);

/// Begins the list anew for the present class. Former entries go to a dated copy.
Listenstand ZeugnislisteNeuBeginnen(Arbeitsverzeichnis& verzeichnis, const Text& heute);

enum class Listenlage {
    Unveraendert,
    AndereKlasse, ///< class list or school data have been changed
    NeuerStand,   ///< the list has been changed, and is whole
    Schaden,      ///< the file is gone or damaged, and was not so before
};
struct Listenpruefung {
    Listenlage Lage = Listenlage::Unveraendert;
    Text Satz; ///< German: the damage
};

/// How the files stand to what was read. Fails as the readers of the master data do.
Listenpruefung ListeVergleichen(Arbeitsverzeichnis& verzeichnis, const Listenstand& stand);

/// Writes the entries, which then are those of the state. After a failure the state knows what the
/// file holds now.
void ListenstandSchreiben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                          const Schuelertabelle<Eintrag>& eintraege);

/// Keeps these entries in a dated copy. Returns its name, or an empty one if there are none.
Text EintraegeAufheben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                       const Schuelertabelle<Eintrag>& eintraege, const Text& heute);

/// Keeps what the file holds in a dated copy. Returns its name, or an empty one if it holds
/// nothing.
Text DateiAufheben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                   const Text& heute);

/// What a dated copy of the list is called.
Text KopienameFuer(const Stammdaten& daten, const Text& heute);

/// The youngest dated copy of the list that can be read and holds entries, or an empty name.
Text LetzteKopie(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten);

} // namespace zeugnis::dokumente
