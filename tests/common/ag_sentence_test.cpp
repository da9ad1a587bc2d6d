#include "common/ag_sentence.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

TEST(AgSentence, JoinsTheNamesByTheirNumber) {
    const struct {
        std::array<Text, 4> names;
        Text sentence;
        Text list;
    } cases[] = {
        {{},
         u"der Arbeitsgemeinschaft '?????"
         u"'",
         u"Arbeitsgemeinschaft: '?????"
         u"'"},
        {{u"Chor"}, u"der Arbeitsgemeinschaft 'Chor'", u"Arbeitsgemeinschaft: 'Chor'"},
        {{u"Chor", u"Schach"},
         u"den Arbeitsgemeinschaften 'Chor' und 'Schach'",
         u"Arbeitsgemeinschaften: 'Chor' und 'Schach'"},
        {{u"Chor", u"Schach", u"Kunst"},
         u"den Arbeitsgemeinschaften 'Chor', 'Schach' und 'Kunst'",
         u"Arbeitsgemeinschaften: 'Chor', 'Schach' und 'Kunst'"},
        {{u"Chor", u"Schach", u"Kunst", u"Theater"},
         u"den Arbeitsgemeinschaften 'Chor', 'Schach', 'Kunst' und 'Theater'",
         u"Arbeitsgemeinschaften: 'Chor', 'Schach', 'Kunst' und 'Theater'"},
        // Joined as if the fields were filled from the first on.
        {{u"Chor", u"", u"Kunst"},
         u"den Arbeitsgemeinschaften 'Chor' und 'Kunst'",
         u"Arbeitsgemeinschaften: 'Chor' und 'Kunst'"},
        {{u"", u"Schach", u"Kunst"},
         u"den Arbeitsgemeinschaften  und 'Schach''Kunst'",
         u"Arbeitsgemeinschaften:  und 'Schach''Kunst'"},
        {{u"", u"", u"", u"Theater"},
         u"der Arbeitsgemeinschaft 'Theater'",
         u"Arbeitsgemeinschaft: 'Theater'"},
    };
    for (const auto& one : cases) {
        Namensliste list;
        list.Kinder[7].Vorname = u"Lena";
        list.Kinder[7].AG = one.names;
        AGNamenAnfuehren(list);
        const AGSaetze saetze = AGSaetzeVon(list.Kinder[7]);
        EXPECT_EQ(saetze.Satz, u"Lena hat an " + one.sentence + u" teilgenommen");
        EXPECT_EQ(saetze.Liste, one.list);
    }
}

} // namespace
} // namespace zeugnis::test
