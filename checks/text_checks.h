#pragma once

#include "checks/module_words.h"
#include "checks/spelling.h"
#include "checks/words.h"

/// What is wrong, or may be, in a text about a child. A text is checked as it is printed, with
/// "\n" between its lines.
namespace zeugnis {

enum class Textmangel {
    KleinerAnfang, ///< a small letter where a sentence begins
    FehlendesLeerzeichen,
    Wortrest,          ///< the end of a word of the modules, its first letters gone
    OffenesEnde,       ///< a paragraph without . ! or ?
    Zusammengelaufen,  ///< a sentence begins in the midst of another
    Unbekannt,         ///< a word that neither modules nor dictionary know
    AnderesGeschlecht, ///< a pronoun that cannot be this child's
    Namensform,        ///< "Matss", "Lena's"
};

struct Befundstelle {
    Textmangel Art = Textmangel::Unbekannt;
    Text Stelle; ///< the words in question
};

/// What is known about child and class when a text is checked. All of it must outlive the call.
struct Textumstand {
    Text Vorname;
    Text Geschlecht;                              ///< "m", "w" or unknown
    const Bausteinwoerter* Bausteine = nullptr;   ///< nullptr: not looked into
    const Rechtschreibung* Woerterbuch = nullptr; ///< nullptr: spelling is not checked
    const std::set<Text>* Bekannt = nullptr;      ///< names and learnt words
};

std::vector<Befundstelle> TextPruefen(const Text& text, const Textumstand& umstand);

/// The words of a text that neither modules nor dictionary know, and forms of the name that are
/// slips. What stands in < > and what touches it is left out. The text must outlive the words.
std::vector<Wort> UnbekannteWoerter(TextView text, const Textumstand& umstand);

/// Whether the text restricts the overall rating ("mit Einschränkungen", "entspricht nicht")
/// without a sentence that tells why.
bool IstUnbegruendetEingeschraenkt(const Text& text);

/// Whether the remarks say what becomes of the child in the next school year.
bool NenntVersetzung(const Text& bemerkungen);

} // namespace zeugnis
