#include "documents/content/report_sections.h"

#include "files/report_columns.h"

#include <array>
#include <span>

namespace zeugnis::dokumente {
namespace {

using enum Abschnittsplan::Quelle;

constexpr std::array<Abschnittsplan, AbschnitteAVSV> Verhalten = {{
    {.Woher = AVSV, .Nummer = 0, .Ueberschrift = u"Arbeitsverhalten"},
    {.Woher = AVSV, .Nummer = 1, .Ueberschrift = u"Sozialverhalten"},
}};

constexpr TextView Deutsch = u"Deutsch";
constexpr TextView Mathematik = u"Mathematik";

// The last one of each stays at the end of the report.
constexpr std::array<Abschnittsplan, Abschnitte12> Bereiche12 = {{
    {.Nummer = 0, .Ueberschrift = u"Interessen, Fähigkeiten und Fertigkeiten"},
    {.Nummer = 1, .Ueberschrift = Kompetenzbereiche[0], .Fach = Deutsch},
    {.Nummer = 2, .Ueberschrift = Kompetenzbereiche[1], .Fach = Deutsch},
    {.Nummer = 3, .Ueberschrift = Kompetenzbereiche[2], .Fach = Deutsch},
    {.Nummer = 4, .Ueberschrift = Kompetenzbereiche[3], .Fach = Mathematik},
    {.Nummer = 5, .Ueberschrift = Kompetenzbereiche[4], .Fach = Mathematik},
    {.Nummer = 6, .Ueberschrift = Kompetenzbereiche[5], .Fach = Mathematik},
    {.Nummer = 7, .Ueberschrift = u"Bemerkungen"},
}};
constexpr std::array<Abschnittsplan, Abschnitte34 + 1> Bereiche34 = {{
    {.Woher = Noten, .Ueberschrift = Notenueberschrift},
    {.Nummer = 0, .Ueberschrift = u"Förderunterricht und Arbeitsgemeinschaften"},
    {.Nummer = 1, .Ueberschrift = u"Besondere Interessen und Fähigkeiten"},
    {.Nummer = 2, .Ueberschrift = u"Bemerkungen"},
}};

} // namespace

std::vector<Abschnittsplan> AbschnitteFuer(int jahrgang, const Zeugnisaufbau& aufbau) {
    const std::span<const Abschnittsplan> bereiche =
        HatNoten(jahrgang) ? std::span<const Abschnittsplan>(Bereiche34) : Bereiche12;
    std::vector<Abschnittsplan> folge(bereiche.begin(), bereiche.end());
    const bool zuerst = aufbau.Reihenfolge == Zeugnisaufbau::Verhalten::Zuerst;
    folge.insert(zuerst ? folge.begin() : folge.end() - 1, Verhalten.begin(), Verhalten.end());
    return folge;
}

} // namespace zeugnis::dokumente
