#pragma once

#include "documents/content/class_data.h"
#include "documents/content/report_columns.h"

#include <array>
#include <span>

namespace zeugnis::dokumente {

// The sections of a report between its head and its end, in their order.
inline constexpr std::array<TextView, Bereiche12> Ueberschriften12 = {
    u"Interessen und Fertigkeiten",
    u"Sprechen und Zuhören",
    u"Lesen und mit Texten umgehen",
    u"Schreiben, Texte verfassen",
    u"Zahlen und Operationen",
    u"Größen und Messen",
    u"Raum und Form",
    u"Bemerkungen",
};
inline constexpr std::array<TextView, Bereiche34> Ueberschriften34 = {
    u"Förderunterricht und Arbeitsgemeinschaften",
    u"Besondere Interessen",
    u"Bemerkungen",
};

/// Those of a year, behind work and social behaviour.
inline std::span<const TextView> Bereichsueberschriften(int jahrgang) {
    if (HatNoten(jahrgang))
        return Ueberschriften34;
    return Ueberschriften12;
}

} // namespace zeugnis::dokumente
