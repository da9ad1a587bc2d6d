#include "common/placeholders.h"

#include "common/text_input.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

const Einsetzwerte Tom{u"Tom", u"m", u"2026/2027", u"2027/2028", u"22.06.2027"};
const Einsetzwerte Lena{u"Lena", u"w", u"2026/2027", u"2027/2028", u"22.06.2027"};

TEST(Placeholders, GiveTheFormsOfThePupil) {
    const struct {
        TextView name;
        TextView male;
        TextView female;
        bool alsoInArbeitsverhalten;
    } cases[] = {
        {u"<sie/er>", u"er", u"sie", true},
        {u"<Er/Sie>", u"Er", u"Sie", true},
        {u"<ihr/ihm>", u"ihm", u"ihr", true},
        {u"<Ihm/Ihr>", u"Ihm", u"Ihr", false},
        {u"<ihr/sein>", u"sein", u"ihr", true},
        {u"<Sein/Ihr>", u"Sein", u"Ihr", false},
        {u"<in>", u"", u"in", true},
        {u"<Vorname>", u"Tom", u"Lena", true},
        {u"<Schuljahr>", u"2026/2027", u"2026/2027", false},
        {u"<Nextschj>", u"2027/2028", u"2027/2028", false},
        {u"<Konferenz>", u"22.06.2027", u"22.06.2027", false},
    };
    for (const auto& one : cases) {
        const Text text = u"A" + Text(one.name) + u"e B";
        const Text male = u"A" + Text(one.male) + u"e B";
        const Text female = u"A" + Text(one.female) + u"e B";
        EXPECT_EQ(PlatzhalterErsetzen(text, Tom, TextregelnJahrgaenge), male);
        EXPECT_EQ(PlatzhalterErsetzen(text, Lena, TextregelnJahrgaenge), female);
        EXPECT_EQ(PlatzhalterErsetzen(text, Tom, TextregelnArbeitsverhalten),
                  one.alsoInArbeitsverhalten ? male : text);
        EXPECT_EQ(PlatzhalterErsetzen(text, Lena, TextregelnArbeitsverhalten),
                  one.alsoInArbeitsverhalten ? female : text);
    }
}

TEST(Placeholders, EveryOtherGenderIsFemale) {
    for (const Text& gender : std::initializer_list<Text>{u"M", u"", u"m ", u"d"})
        EXPECT_EQ(PlatzhalterErsetzen(u"<Er/Sie>, Schüler<in>", {u"Kim", gender, {}, {}, {}},
                                      TextregelnArbeitsverhalten),
                  u"Sie, Schülerin");
}

TEST(Placeholders, StayLiterallyIfTheyAreNotExactlyWritten) {
    const Text text = u"<er/Sie> <vorname> < in> <> <Vorname <x>";
    EXPECT_EQ(PlatzhalterErsetzen(text, Tom, TextregelnJahrgaenge), text);
    EXPECT_EQ(PlatzhalterErsetzen(u"", Tom, TextregelnJahrgaenge), u"");
}

TEST(Placeholders, AreTakenOncePerPass) {
    EXPECT_EQ(PlatzhalterErsetzen(u"<Vorname>, <Vorname>, <Vorname>, <Vorname> <in>", Lena,
                                  TextregelnArbeitsverhalten),
              u"Lena, Lena, Lena, <Vorname> in");
    Text eleven;
    for (int i = 0; i < 11; ++i)
        eleven += u"<sie/er>,";
    EXPECT_EQ(PlatzhalterErsetzen(eleven, Tom, TextregelnJahrgaenge),
              u"er,er,er,er,er,er,er,er,er,er,<sie/er>,");
}

TEST(CleanUp, EatsTheTwoCharactersBehindWhatItMends) {
    const struct {
        TextView before;
        TextView after;
    } cases[] = {
        {u"Tom lacht..", u"Tom lacht."},
        {u"Tom lacht.. Er singt", u"Tom lacht.r singt"},
        {u"Tom  lacht", u"Tom cht"},
        {u"Tom lacht .", u"Tom lacht."},
        {u"ab..xy", u"ab."},
        {u"ab..x", u"ab."},
        {u"ab..xyz", u"ab.z"},
        {u"Ende ..", u"Ende."}, // what one search leaves, the next one finds
        {u"x.....", u"x."},     // "x.." after the first pass
        {u"a. . . .", u"a."},   // "a.. ." after the first pass
        {u"ab  cdef  ghij  klmn  op", u"ab ef ij mn  op"}, // three of four
        {u"eins. Zwei, drei.\r\nVier.", u"eins. Zwei, drei.\r\nVier."},
    };
    for (const auto& one : cases)
        for (const Textregeln& rules : {TextregelnArbeitsverhalten, TextregelnJahrgaenge})
            EXPECT_EQ(PlatzhalterErsetzen(Text(one.before), Tom, rules), one.after);
}

TEST(CleanUp, FollowsTheExpansion) {
    EXPECT_EQ(PlatzhalterErsetzen(u"Tom <in> ist da", Tom, TextregelnJahrgaenge), u"Tom t da");
    EXPECT_EQ(PlatzhalterErsetzen(u"Schüler <in>.", Tom, TextregelnJahrgaenge), u"Schüler.");
}

TEST(Insertion, GoesBehindTheSelectionWithBlanksAtTheSeams) {
    const struct {
        TextView text;
        size_t place;
        TextView inserted;
        TextView entryScreens;
        TextView editors;
    } cases[] = {
        {u"Tom lacht.", 3, u"oft", u"Tom oft lacht.", u"Tom oft lacht."},
        {u"Tom lacht", 9, u"laut", u"Tom lacht laut", u"Tom lacht laut"},
        {u"Tom lacht", 0, u"oft", u" oft Tom lacht", u" oft Tom lacht"},
        {u"", 0, u"oft", u" oft", u" oft"},
        {u"  Tom  lacht  ", 6, u" x ", u"Tom  x  lacht", u"Tom  x  lacht"},
        {u"Tom ", 3, u"oft", u"Tom oft ", u"Tom oft "},
        {u"a\r\nb", 1, u"x", u"a x \r\nb", u"a x \r\nb"},
        {u"Schüler kommt", 7, u"<in>", u"Schüler <in> kommt", u"Schüler<in> kommt"},
        {u"Schüler  kommt", 8, u"<in>", u"Schüler <in> kommt", u"Schüler<in> kommt"},
        {u"Schüler", 7, u"<in>", u"Schüler <in>", u"Schüler<in>"},
        {u"Schüler", 7, u"<in>s", u"Schüler <in>s", u"Schüler <in>s"},
    };
    for (const auto& one : cases) {
        const Text text(one.text);
        const Text inserted(one.inserted);
        for (const Textregeln& rules : {TextregelnArbeitsverhalten, TextregelnJahrgaenge})
            EXPECT_EQ(EinfuegungEinsetzen(text, one.place, inserted, rules), one.entryScreens);
        EXPECT_EQ(EinfuegungEinsetzen(text, one.place, inserted, TextregelnEditoren), one.editors);
    }
}

} // namespace
} // namespace zeugnis::test
