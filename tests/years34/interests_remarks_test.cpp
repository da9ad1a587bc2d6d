#include "years34/interests_remarks.h"

#include "common/interests_text.h"

#include <gtest/gtest.h>

namespace zeugnis::jahrgang34::test {
namespace {

TEST(Interests34, StandBeforeTheBadges) {
    const Text interest = InteressenSatzBilden(u"Lena", u"malt gern");
    EXPECT_EQ(interest, u"Lena malt gern.");
    EXPECT_EQ(InteressenVerbinden(interest, u"<Er/Sie> schwimmt. "),
              u"Lena malt gern.\r\n<Er/Sie> schwimmt. ");
    EXPECT_EQ(InteressenVerbinden(interest, u""), u"Lena malt gern.");
    EXPECT_EQ(InteressenVerbinden(u"", u"<Er/Sie> schwimmt. "), u"<Er/Sie> schwimmt. ");
}

TEST(Marks34, EachCombinationHasItsSentence) {
    const struct {
        Zensurwahl marks;
        Text middle;
    } cases[] = {
        {{true, false, false}, u"Deutsch"},
        {{false, true, false}, u"Mathe"},
        {{false, false, true}, u"Sport"},
        {{true, true, false}, u"Deutsch und Mathe"},
        {{true, false, true}, u"Deutsch und Sport"},
        {{false, true, true}, u"Mathe und Sport"},
        {{true, true, true}, u"Deutsch, Mathe und Sport"},
    };
    const std::array<Text, Zensuren> names = {u"Deutsch", u"Mathe", u"Sport"};
    for (const auto& one : cases)
        EXPECT_EQ(ZensurSatzBilden(one.marks, names, u"Die Noten in", u"weichen ab"),
                  u"Die Noten in " + one.middle + u" weichen ab.");
    EXPECT_EQ(ZensurSatzBilden({}, names, u"Die Noten in", u"weichen ab"), u"");
}

TEST(Remarks34, AreJoinedWithLineEndsAroundTheLearning) {
    const Text marks = u"Die Noten weichen ab.";
    const Text beginning = MitLeerzeichen(u"Lena lernte");
    const Text list = MitLeerzeichen(u"gern und genau");
    const Text judgement = UrteilBilden(u"gut", u"weiter so");
    const Text promotion = u"Sie wird versetzt.";
    const Text none;
    EXPECT_EQ(MitLeerzeichen(u""), u"");
    EXPECT_EQ(UrteilBilden(u"", u"weiter so"), u"");
    const struct {
        Bemerkungsteile parts;
        Text text;
    } cases[] = {
        {{marks, beginning, list, judgement, promotion},
         u"Die Noten weichen ab.\r\nLena lernte gern und genau gut, weiter so.\r\nSie wird "
         u"versetzt."},
        {{marks, none, none, none, promotion}, u"Die Noten weichen ab.\r\n\r\nSie wird versetzt."},
        {{marks, none, none, none, none}, u"Die Noten weichen ab.\r\n"},
        {{none, none, none, none, promotion}, u"\r\nSie wird versetzt."},
        {{none, beginning, list, judgement, none}, u"Lena lernte gern und genau gut, weiter so."},
        {{none, none, none, judgement, none}, u"gut, weiter so."},
        {{none, none, none, none, none}, u""},
    };
    for (const auto& one : cases)
        EXPECT_EQ(BemerkungenVerbinden(one.parts), one.text);
}

} // namespace
} // namespace zeugnis::jahrgang34::test
