#pragma once

#include "controls/control.h"

/// The colours of the entry screen.
namespace zeugnis::jahrgang34::farben {

inline constexpr Farbwert Verlassen = 0x8080FF;
inline constexpr Farbwert Aktiv = 0x80FF80; ///< what is chosen, and what comes next
inline constexpr Farbwert SeiteRuht = 0xC0C0C0;
inline constexpr Farbwert Neutral = 0xFFFFFF;

} // namespace zeugnis::jahrgang34::farben
