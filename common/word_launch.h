#pragma once

#include "platform/text.h"

namespace zeugnis {

class Programm;

/// Starts Word, or what stands in for it, with a command line from the table below. Fire and
/// forget, in the program folder. Fails with program-not-found.
void WordStarten(Programm& programm, const Text& befehl);

namespace word {

inline constexpr TextView ZeugnisseSchreiben =
    u"Winword.exe ZeugnisseSchreiben.doc /mZeugnisseSchreiben";
inline constexpr TextView ZeugnislisteNeu = u"Winword.exe ZeugnislisteNeu.doc /mZeugnislisteNeu";
inline constexpr TextView Anzeigetext =
    u"Winword.exe daten\\worddaten\\Anzeigetext.doc /mAnzeigetext";
inline constexpr TextView Zeugnisanlagen = u"Winword.exe ZeugnisseAnlagen.doc /mZeugnisseAnlagen";
inline constexpr TextView Klassenliste = u"Winword.exe KlListe.doc /mKlassenliste";
inline constexpr TextView Strichliste = u"Winword.exe StListe.doc /mStrichliste";
inline constexpr TextView Bilderliste = u"Winword.exe BldListe.doc /mBilderliste";
inline constexpr TextView LeereZeugnisse = u"Winword.exe Leerformular.doc /mLeerformular";

/// What is opened of a class: "Zeugnisse" or "Zeugnisliste".
Text Klassendokument(const Text& klasse, TextView art, int jahrgang, const Text& halbjahr);

/// Help document 1 to 13.
Text Hilfe(int nummer);

} // namespace word
} // namespace zeugnis
