#pragma once

#include "documents/content/class_data.h"
#include "files/report_columns.h"

#include <optional>
#include <vector>

/// The class list document: absences and grades, kept beside the class document.
/// Format: docs/formats/report-list.md.
namespace zeugnis::dokumente {

/// A record as it stands in the file.
struct Listenzeile {
    int Nummer = 0;
    Text Nachname;
    Text Vorname;
    Eintrag Werte;
};

/// The rows of the present class list, and who is no longer in it.
struct Zeugnisliste {
    Schuelertabelle<Eintrag> Eintraege;
    std::vector<Text> OhneKind; ///< names behind which something had been entered

    [[nodiscard]] bool istLeer() const;
};

/// "3aZeugnisliste32", the stem of all files of the list.
Text Listenstamm(const Stammdaten& daten);

/// Reads a list of the year from the working directory. In a list from before a subject was added
/// all records are shorter by it; nothing has been entered there then. Fails as the record reader
/// does, with index-out-of-range for a 37th record, and with type-mismatch for values that cannot
/// be entered.
std::vector<Listenzeile> ListenzeilenLesen(const Arbeitsverzeichnis& verzeichnis, TextView datei,
                                           int jahrgang);

/// The same from the bytes of a file; `datei` names it in failures.
std::vector<Listenzeile> ListenzeilenAus(std::string_view bytes, const Text& datei, int jahrgang);

/// The records in front of the first that is damaged.
std::vector<Listenzeile> LesbareZeilenAus(std::string_view bytes, int jahrgang);

/// Gives each child what is entered under its name. Of several with the same name each keeps its
/// own as long as their numbers are the same, or else gets nothing: no child must get the grades
/// of another.
Zeugnisliste Zuordnen(const std::vector<Listenzeile>& zeilen, const Namensliste& liste);

/// Writes the list, to its file or to a copy.
void ZeugnislisteSchreiben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                           const Schuelertabelle<Eintrag>& eintraege, const Text& datei);
void ZeugnislisteSchreiben(const Arbeitsverzeichnis& verzeichnis, const Stammdaten& daten,
                           const Schuelertabelle<Eintrag>& eintraege);

/// The list of the present class, or nothing if there is no file. Fails as ListenzeilenLesen does.
std::optional<Zeugnisliste> ZeugnislisteLesen(const Arbeitsverzeichnis& verzeichnis,
                                              const Stammdaten& daten);

} // namespace zeugnis::dokumente
