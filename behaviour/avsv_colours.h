#pragma once

#include "controls/control.h"
#include "platform/table.h"

namespace zeugnis {

/// The colour table of the entry screen. 0 to 4 are also the colours of the lines.
inline const Tabelle<Farbwert, 11>& FarbtafelAVSV() {
    static const Tabelle<Farbwert, 11> Farbtafel({0xFFFFFF, 0x80FF80, 0xC0FFC0, 0xC0E0FF, 0xC0C0FF,
                                                  0xC0C0C0, 0x00FFFF, 0x0000FF, 0xC0FFFF, 0xFFFFC0,
                                                  0xC0FFFF});
    return Farbtafel;
}

namespace avsvfarben {
inline constexpr int Neutral = 0;
inline constexpr int Aktiv = 1;
inline constexpr int Verlassen = 4;
inline constexpr int Grau = 5;
inline constexpr int Gelb = 6;
inline constexpr int Rot = 7;
} // namespace avsvfarben

} // namespace zeugnis
