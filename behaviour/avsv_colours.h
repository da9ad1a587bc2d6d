#pragma once

#include "controls/control.h"
#include "platform/table.h"

namespace zeugnis {

/// The colour table of the entry screen. 0 to 4 are also the colours of the lines.
inline const Tabelle<Farbwert, 11>& FarbtafelAVSV() {
    static const Tabelle<Farbwert, 11> Farbtafel = [] {
        Tabelle<Farbwert, 11> farben;
        int eintrag = 0;
        for (const Farbwert farbe :
             {0xFFFFFFU, 0x80FF80U, 0xC0FFC0U, 0xC0E0FFU, 0xC0C0FFU, 0xC0C0C0U, 0x00FFFFU,
              0x0000FFU, 0xC0FFFFU, 0xFFFFC0U, 0xC0FFFFU})
            farben[eintrag++] = farbe;
        return farben;
    }();
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
