#include "years34/foerder_ag.h"

#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

#include <vector>

namespace zeugnis::jahrgang34::test {
namespace {

using zeugnis::test::failureOf;

TEST(List34, JoinsWhatIsNotEmpty) {
    const struct {
        std::vector<Text> items;
        Text list;
    } cases[] = {
        {{u"", u"Lesen", u"", u"", u"", u""}, u"Lesen"},
        {{u"Lesen", u"", u"", u"", u"", u"Sport"}, u"Lesen und Sport"},
        {{u"Lesen", u"Sport", u"", u"", u"", u""}, u"Lesen und Sport"},
        {{u"", u"", u"", u"Lesen", u"Sport"}, u"Lesen und Sport"},
        {{u"Lesen", u"", u"Rechnen", u"", u"Sport", u""}, u"Lesen, Rechnen und Sport"},
        {{u"a", u"b", u"c", u"d", u"e"}, u"a, b, c, d und e"},
        {{u"a", u"b", u"c", u"d", u"e", u"f"}, u"a, b, c, d, e und f"},
    };
    for (const auto& one : cases) {
        int last = 0;
        EXPECT_EQ(ListeVerbinden(one.items, last), one.list);
    }
}

TEST(List34, KeepsThePlaceOfTheLastItem) {
    int last = 0;
    ListeVerbinden(std::vector<Text>{u"", u"", u"Lesen", u"Sport", u"", u""}, last);
    EXPECT_EQ(last, 3);
    const std::vector<Text> none(6);
    EXPECT_EQ(ListeVerbinden(none, last), u"");
    EXPECT_EQ(last, 3);
    last = 10;
    EXPECT_EQ(failureOf([&] { ListeVerbinden(none, last); }), "none");
    last = 11; // what a class of eleven leaves before the first list
    EXPECT_EQ(failureOf([&] { ListeVerbinden(none, last); }), "index-out-of-range");
}

TEST(SupportText34, PutsTheGroupsOnALineOfTheirOwn) {
    const Text support = FoerderSatzBilden(u"Lena nahm am", u"Lesen und Mathematik", u"teil");
    EXPECT_EQ(support, u"Lena nahm am Lesen und Mathematik teil.");
    EXPECT_EQ(FoerderSatzBilden(u"Lena nahm am", u"", u"teil"), u"");
    Text groups = u"Arbeitsgemeinschaft: 'Chor'";
    EXPECT_EQ(FoerderAGVerbinden(support, groups),
              u"Lena nahm am Lesen und Mathematik teil.\r\nArbeitsgemeinschaft: 'Chor'.");
    EXPECT_EQ(FoerderAGVerbinden(u"", groups), u"Arbeitsgemeinschaft: 'Chor'..");
    EXPECT_EQ(groups, u"Arbeitsgemeinschaft: 'Chor'..") << "each run adds a full stop";
    groups.clear();
    EXPECT_EQ(FoerderAGVerbinden(support, groups), support + u"\r\n");
    EXPECT_EQ(groups, u"");
}

} // namespace
} // namespace zeugnis::jahrgang34::test
