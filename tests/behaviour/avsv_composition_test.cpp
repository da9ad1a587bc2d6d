#include "behaviour/avsv_composition.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

Zeilentabelle linesAV() {
    Zeilentabelle lines;
    lines[0][2] = u"arbeitet zügig";
    lines[0][7] = u"arbeitet langsam";
    lines[1][3] = u"hört aufmerksam zu";
    lines[1][7] = u"lässt sich oft ablenken";
    lines[2][2] = u"beteiligt sich rege am Unterricht";
    lines[2][5] = u"fällt das Lernen leicht";
    lines[2][9] = u"fällt das Lernen schwer";
    lines[3][1] = u"Die Hausaufgaben sind sorgfältig";
    lines[4][3] = u"Das Heft ist sauber";
    lines[5][4] = u"hält Ordnung";
    lines[6][2] = u"Das Arbeitsverhalten entspricht den Erwartungen";
    for (int category = 0; category < KategorienAV; ++category)
        lines[category][0] = u"(nie im Text)";
    return lines;
}

Zeilentabelle linesSV() {
    Zeilentabelle lines;
    lines[0][2] = u"ist hilfsbereit";
    lines[0][6] = u"ist oft unfreundlich";
    lines[1][1] = u"hält sich an Regeln";
    lines[1][8] = u"stört häufig";
    lines[2][3] = u"arbeitet gern mit anderen";
    lines[2][5] = u"vermittelt oft";
    lines[2][9] = u"streitet oft";
    lines[3][2] = u"Streit wird friedlich gelöst";
    lines[4][1] = u"Die Klasse schätzt diese Art";
    lines[5][2] = u"Das Sozialverhalten entspricht den Erwartungen";
    return lines;
}

// One digit per category: the chosen line.
Zeilenwahl choices(const char* digits) {
    Zeilenwahl chosen;
    for (int category = 0; digits[category] != '\0'; ++category)
        chosen[category] = digits[category] - '0';
    return chosen;
}

struct Example {
    const char16_t* vorname;
    const char16_t* geschlecht;
    const char* wahl;
    TextView text;
};

TEST(AVSVComposition, BuildsTheTextOfWorkBehaviour) {
    const Example examples[] = {
        {u"Tom", u"m", "2300000", u"Tom arbeitet zügig und hört aufmerksam zu."},
        {u"Tom", u"m", "2700000", u"Tom arbeitet zügig, aber lässt sich oft ablenken."},
        {u"Lena", u"w", "7300000", u"Lena arbeitet langsam, aber hört aufmerksam zu."},
        {u"Lena", u"w", "7700000", u"Lena arbeitet langsam und lässt sich oft ablenken."},
        {u"Tom", u"m", "0300000", u"Tom hört aufmerksam zu."},
        {u"Tom", u"m", "0020000", u"Tom beteiligt sich rege am Unterricht."},
        {u"Tom", u"m", "2020000", u"Tom arbeitet zügig. Er beteiligt sich rege am Unterricht."},
        {u"Lena", u"w", "2350000",
         u"Lena arbeitet zügig und hört aufmerksam zu. Ihr fällt das Lernen leicht."},
        {u"Tom", u"m", "2391000",
         u"Tom arbeitet zügig und hört aufmerksam zu. Ihm fällt das Lernen schwer. "
         u"Die Hausaufgaben sind sorgfältig."},
        {u"Tom", u"m", "0001000", u"Die Hausaufgaben sind sorgfältig."},
        {u"Lena", u"w", "0000040", u"Lena hält Ordnung."},
        {u"Lena", u"w", "2000040", u"Lena arbeitet zügig. Lena hält Ordnung."},
        {u"Tom", u"m", "2321342",
         u"Tom arbeitet zügig und hört aufmerksam zu. Er beteiligt sich rege am Unterricht. "
         u"Die Hausaufgaben sind sorgfältig. Das Heft ist sauber. Tom hält Ordnung.\r\n"
         u"Das Arbeitsverhalten entspricht den Erwartungen."},
        {u"Tom", u"m", "0000002", u"Das Arbeitsverhalten entspricht den Erwartungen."},
        {u"Tom", u"m", "0000000", u""},
        {u"Kim", u"", "2320000",
         u"Kim arbeitet zügig und hört aufmerksam zubeteiligt sich rege am Unterricht."},
        // beyond the worked examples
        {u"Kim", u"M", "2020000", u"Kim arbeitet zügigbeteiligt sich rege am Unterricht."},
        {u"Lena", u"w", "0090000", u"Lena fällt das Lernen schwer."},
        {u"Tom", u"m", "0321000",
         u"Tom hört aufmerksam zu. Er beteiligt sich rege am Unterricht. "
         u"Die Hausaufgaben sind sorgfältig."},
        {u"Tom", u"m", "0000302",
         u"Das Heft ist sauber.\r\nDas Arbeitsverhalten entspricht den Erwartungen."},
        {u"Tom", u"m", "3500000", u"Tom ."}, // chosen lines without a text
        {u"Tom", u"m", "3300000", u"Tom  und hört aufmerksam zu."},
    };
    for (const Example& one : examples)
        EXPECT_EQ(AVSatzBauen(one.vorname, one.geschlecht, choices(one.wahl), linesAV()), one.text)
            << one.wahl;
}

TEST(AVSVComposition, BuildsTheTextOfSocialBehaviour) {
    const Example examples[] = {
        {u"Lena", u"w", "210000", u"Lena ist hilfsbereit und hält sich an Regeln."},
        {u"Lena", u"w", "610000", u"Lena ist oft unfreundlich, aber hält sich an Regeln."},
        {u"Tom", u"m", "283000",
         u"Tom ist hilfsbereit, aber stört häufig. Er arbeitet gern mit anderen."},
        {u"Tom", u"m", "013000", u"Tom hält sich an Regeln. Er arbeitet gern mit anderen."},
        {u"Tom", u"m", "213212",
         u"Tom ist hilfsbereit und hält sich an Regeln. Er arbeitet gern mit anderen. "
         u"Streit wird friedlich gelöst. Die Klasse schätzt diese Art. \r\n"
         u"Das Sozialverhalten entspricht den Erwartungen."},
        {u"Tom", u"m", "000002", u"Das Sozialverhalten entspricht den Erwartungen."},
        // no dative in this section
        {u"Tom", u"m", "205000", u"Tom ist hilfsbereit. Er vermittelt oft."},
        {u"Lena", u"w", "209000", u"Lena ist hilfsbereit. Sie streitet oft."},
        {u"Kim", u"", "203000", u"Kim ist hilfsbereitarbeitet gern mit anderen."},
        {u"Tom", u"m", "000210", u"Streit wird friedlich gelöst. Die Klasse schätzt diese Art."},
    };
    for (const Example& one : examples)
        EXPECT_EQ(SVSatzBauen(one.vorname, one.geschlecht, choices(one.wahl), linesSV()), one.text)
            << one.wahl;
}

TEST(AVSVComposition, JoinsTheFirstTwoPartsByTheNumbersOfTheirLines) {
    Zeilentabelle lines;
    for (int line = 1; line <= 9; ++line)
        lines[0][line] = lines[1][line] = u"x";
    for (int first = 1; first <= 9; ++first)
        for (int second = 1; second <= 9; ++second) {
            Zeilenwahl chosen;
            chosen[0] = first;
            chosen[1] = second;
            // Line 5 is bad in the first category and good in the second.
            const bool sameHalf = (first <= 4) == (second <= 5);
            const Text text = sameHalf ? u"Tom x und x." : u"Tom x, aber x.";
            EXPECT_EQ(AVSatzBauen(u"Tom", u"m", chosen, lines), text) << first << second;
            EXPECT_EQ(SVSatzBauen(u"Tom", u"m", chosen, lines), text) << first << second;
        }
}

} // namespace
} // namespace zeugnis::test
