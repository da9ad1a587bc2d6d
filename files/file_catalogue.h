#pragma once

#include "platform/text.h"

/// The folders and files of an installation, under the names in which they are asked for.
/// Names resolve without regard to case.
namespace zeugnis::dateien {

inline constexpr TextView Daten = u"Daten";
inline constexpr TextView Bild = u"Bild";
inline constexpr TextView Sicherheit = u"Sicherheit\\"; ///< seen from inside Daten
inline constexpr TextView Standard = u"Standard\\";     ///< seen from inside Daten

inline constexpr TextView Basisdaten = u"Basisdaten.txt";
inline constexpr TextView Namen = u"Namen.Txt";
inline constexpr TextView Namen1 = u"Namen1.txt";
inline constexpr TextView Sibankpfad = u"Sibankpfad.txt";
inline constexpr TextView Standardpfade = u"sib1undsib2.txt";
inline constexpr TextView AGListe = u"AGListe.txt";
inline constexpr TextView Bildliststeuer = u"Bildliststeuer.Txt";
inline constexpr TextView AktivForm = u"AktivForm.txt";
inline constexpr TextView Platzhalter = u"Platzhalter.txt";
inline constexpr TextView Einfuegungen1 = u"Einfügungen1.txt";
inline constexpr TextView Einfuegungen2 = u"Einfügungen2.txt";

inline constexpr TextView TexteAV = u"TexteAV.txt";
inline constexpr TextView TexteSV = u"TexteSV.txt";
inline constexpr TextView AVKategorien = u"AVKategorien.txt";
inline constexpr TextView SVKategorien = u"SVKategorien.txt";
inline constexpr TextView AVSVspeicher = u"AVSVspeicher.txt";
inline constexpr TextView AVSVWahl = u"AVSVWahl.txt";
inline constexpr TextView Speicher12 = u"12Speicher.txt";
inline constexpr TextView Sperre12 = u"12Sperre.txt";
inline constexpr TextView Speicher34 = u"34Speicher.txt";
inline constexpr TextView Sperre34 = u"34Sperre.txt";

inline constexpr TextView Kopfbild1 = u"ZeugnKOPF.jpg";
inline constexpr TextView Kopfbild2 = u"ZeugnKOPF1.jpg";
inline constexpr TextView Lehrerbild = u"Karl Musterlehrer.jpg";
inline constexpr TextView Smili = u"SMILI.jpg";

} // namespace zeugnis::dateien
