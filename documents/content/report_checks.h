#pragma once

#include "checks/text_checks.h"
#include "checks/twins.h"
#include "documents/content/school_report.h"

/// What a careful colleague would notice in the reports of a class before they are printed.
namespace zeugnis::dokumente {

/// `Platz` of what concerns no single child.
inline constexpr int AlleKinder = -1;

/// What a finding is about, to choose from.
enum class Befundart {
    Text,
    OhneText, ///< a text is missing
    Liste,    ///< absences, and the list itself
    Noten,
    Angaben
};

struct Befund {
    int Platz = AlleKinder;
    Text Kind = {};          ///< its name as it stands on every page of its report
    TextView Abschnitt = {}; ///< the heading below which it stands; empty for none
    Text Satz;
    Befundart Art = Befundart::Text;
    std::vector<Text> Woerter = {};  ///< that can be learnt
    Text Vermerk = {};               ///< another one as soon as the text is another
    std::vector<int> Zwillinge = {}; ///< places of the children with the same text, or nearly
};

/// What texts are held against.
struct Pruefmittel {
    std::vector<Text> Platzhalter; ///< marks that must not be left in a text, "<Vorname>"
    const Bausteinwoerter* Bausteine = nullptr;
    const Rechtschreibung* Woerterbuch = nullptr;
    std::set<Text> Gelernte = {};
};

/// Child by child in the order of the class list; what concerns all comes first.
std::vector<Befund> ZeugnissePruefen(const Zeugnisdaten& daten, const Pruefmittel& mittel);

/// One text of a report that is still growing.
struct Einzeltext {
    int Platz = 0;
    TextView Ueberschrift;
    Text Inhalt;
    bool NenntVersetzung = false; ///< it is the section that tells of moving up
    std::vector<Zwilling> Zwillinge = {};
};

/// What ZeugnissePruefen would notice in this text alone.
std::vector<Befund> AbschnittPruefen(const Stammdaten& stamm, const Pruefmittel& mittel,
                                     const Einzeltext& text);

} // namespace zeugnis::dokumente
