#pragma once

#include "platform/text.h"

/// The names of the eleven screens.
namespace zeugnis::bildschirme {

inline constexpr TextView GsStart = u"GsStart";
inline constexpr TextView GsBasis = u"GsBasis";
inline constexpr TextView GsArbeitsverhalten = u"GsArbeitsverhalten";
inline constexpr TextView GSAVSVAenderung = u"GSAVSVÄnderung";
inline constexpr TextView Kompetenzen = u"Kompetenzen";
inline constexpr TextView GSAGFI = u"GSAGFI";
inline constexpr TextView GSAenderung12 = u"GSÄnderung12";
inline constexpr TextView GSAenderung34 = u"GSÄnderung34";
inline constexpr TextView GsAnzeige = u"GsAnzeige";
inline constexpr TextView Einfuegungen = u"Einfügungen";
inline constexpr TextView Listen = u"Listen";

} // namespace zeugnis::bildschirme
