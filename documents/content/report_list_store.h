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

/// Reads master data and list. What cannot stay in the file is kept in a dated copy first: entries
/// without a child, or all of a damaged file. Fails as the readers of the master data do, and if
/// the copy cannot be written.
Listenstand ZeugnislisteOeffnen(Arbeitsverzeichnis& verzeichnis, const Text& heute);

/// Begins the list anew for the present class. Former entries go to a dated copy.
Listenstand ZeugnislisteNeuBeginnen(Arbeitsverzeichnis& verzeichnis, const Text& heute);

/// False if class list, school data or the list itself have been changed since.
bool IstAktuell(Arbeitsverzeichnis& verzeichnis, const Listenstand& stand);

/// Writes the entries, which then are those of the state.
void ListenstandSchreiben(const Arbeitsverzeichnis& verzeichnis, Listenstand& stand,
                          const Schuelertabelle<Eintrag>& eintraege);

/// The youngest dated copy of the list that can be read and holds entries, or an empty name.
Text LetzteKopie(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten);

} // namespace zeugnis::dokumente
