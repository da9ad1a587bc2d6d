#pragma once

#include "documents/content/class_data.h"
#include "documents/content/report_columns.h"

#include <array>
#include <span>

namespace zeugnis::dokumente {

// The sections of a report between its head and its end, in their order.
inline constexpr std::array<TextView, Abschnitte12> Ueberschriften12 = std::to_array<TextView>({
    u"Interessen und Fertigkeiten",
    Kompetenzbereiche[0],
    Kompetenzbereiche[1],
    Kompetenzbereiche[2],
    Kompetenzbereiche[3],
    Kompetenzbereiche[4],
    Kompetenzbereiche[5],
    u"Bemerkungen",
});
inline constexpr std::array<TextView, Abschnitte34> Ueberschriften34 = std::to_array<TextView>({
    u"Förderunterricht und Arbeitsgemeinschaften",
    u"Besondere Interessen",
    u"Bemerkungen",
});

/// Those of a year, behind work and social behaviour.
inline std::span<const TextView> Bereichsueberschriften(int jahrgang) {
    if (HatNoten(jahrgang))
        return Ueberschriften34;
    return Ueberschriften12;
}

} // namespace zeugnis::dokumente
