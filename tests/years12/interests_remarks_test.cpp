#include "years12/interests_remarks.h"

#include "common/interests_text.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

using namespace jahrgang12;

// Subjects by the digits of their boxes: "02" are Deutsch and Sachunterricht.
Bemerkungsteile withSubjects(std::string_view boxes) {
    const TextView names[] = {u"Deutsch", u"Mathematik", u"Sachunterricht", u"Musik",
                              u"Kunst",   u"Sport",      u"Werken",         u"Religion"};
    Bemerkungsteile parts;
    for (const char box : boxes)
        parts.Faecher.at(static_cast<size_t>(box - '0')) = names[box - '0'];
    parts.Einleitung = u"Im Fach";
    parts.FesterSchluss = u"sollte sie weiter üben.";
    return parts;
}

Text firstHalfYear(const Bemerkungsteile& parts) {
    Text trenner;
    return BemerkungenVerbinden(parts, u"1", trenner);
}

Text secondHalfYear(const Bemerkungsteile& parts) {
    Text trenner;
    return BemerkungenVerbinden(parts, u"2", trenner);
}

TEST(Interests, StandInFrontOfTheBadges) {
    EXPECT_EQ(InteressensatzBilden(u"Lena", 3, u"liest gern"), u"Lena liest gern.");
    EXPECT_EQ(InteressensatzBilden(u"Lena", 3, u""), u"Lena .");
    EXPECT_EQ(InteressensatzBilden(u"Lena", 0, u"kein Eintrag"), u"");
    EXPECT_EQ(InteressenVerbinden(u"A.", u"B. "), u"A.\r\nB. ");
    EXPECT_EQ(InteressenVerbinden(u"", u"B. "), u"B. ");
    EXPECT_EQ(InteressenVerbinden(u"A.", u""), u"A.");
}

TEST(Remarks, ListSubjectsInTheFirstHalfYear) {
    const struct {
        std::string_view boxes;
        TextView tail, text;
    } examples[] = {
        {"0", u"sollte sie weiter üben.", u"Im Fach Deutsch sollte sie weiter üben."},
        {"02", u"", u"Im Fach Deutsch und Sachunterricht "},
        {"012", u"sollte sie weiter üben.",
         u"Im Fach Deutsch, Mathematik und Sachunterricht sollte sie weiter üben."},
        {"1357", u"x.", u"Im Fach Mathematik, Musik, Sport und Religion x."},
        {"07", u"x.", u"Im Fach Deutsch und Religion x."},
        {"67", u"x.", u"Im Fach Werken und Religion x."},
        {"01234567", u"x.",
         u"Im Fach Deutsch, Mathematik, Sachunterricht, Musik, Kunst, Sport, Werken und Religion "
         u"x."},
        {"", u"sollte sie weiter üben.", u""},
    };
    for (const auto& one : examples) {
        Bemerkungsteile parts = withSubjects(one.boxes);
        parts.GewaehlterSchluss = one.tail;
        EXPECT_EQ(firstHalfYear(parts), one.text);
    }
}

TEST(Remarks, EndWithTheVersetzungInTheSecondHalfYear) {
    Bemerkungsteile parts = withSubjects("1");
    EXPECT_EQ(secondHalfYear(parts), u"Im Fach Mathematik sollte sie weiter üben.");
    parts.Versetzung = u"Lena wird versetzt.";
    EXPECT_EQ(secondHalfYear(parts),
              u"Im Fach Mathematik sollte sie weiter üben.\r\nLena wird versetzt.");
    parts.Faecher = {};
    EXPECT_EQ(secondHalfYear(parts), u"Lena wird versetzt.");
    parts.FesteBemerkung = u"Fest.";
    EXPECT_EQ(secondHalfYear(parts), u"Fest.\r\nLena wird versetzt.");

    parts = withSubjects("1");
    parts.AGSatz = u"Lena hat an der Arbeitsgemeinschaft 'Chor' teilgenommen. ";
    EXPECT_EQ(secondHalfYear(parts),
              u"Lena hat an der Arbeitsgemeinschaft 'Chor' teilgenommen. \r\n"
              u"Im Fach Mathematik sollte sie weiter üben.");
    parts.Faecher = {};
    parts.FesteBemerkung = u"Fest.";
    EXPECT_EQ(secondHalfYear(parts),
              u"Lena hat an der Arbeitsgemeinschaft 'Chor' teilgenommen. Fest.\r\n");
}

TEST(Remarks, LineEndBehindTheListStaysForTheNextChild) {
    Text trenner;
    Bemerkungsteile parts = withSubjects("1");
    parts.Versetzung = u"V.";
    BemerkungenVerbinden(parts, u"1", trenner);
    EXPECT_EQ(trenner, u"");
    BemerkungenVerbinden(parts, u"2", trenner);
    parts.Versetzung.clear();
    EXPECT_EQ(BemerkungenVerbinden(parts, u"2", trenner),
              u"Im Fach Mathematik sollte sie weiter üben.\r\n");
}

TEST(Remarks, AreABareListInAnyOtherHalfYear) {
    Text trenner;
    Bemerkungsteile parts = withSubjects("01");
    parts.GewaehlterSchluss = u"x.";
    for (const TextView other : {u"3", u"", u"erstes"})
        EXPECT_EQ(BemerkungenVerbinden(parts, other, trenner), u"Deutsch und Mathematik");
}

} // namespace
} // namespace zeugnis::test
