#include "desktop/text_line_ends.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

TEST(TextLineEnds, CountTwoInTheBoxAndOneInTheDocument) {
    const Text box = u"ab\r\n\r\nc";
    EXPECT_EQ(documentText(box), QStringLiteral("ab\n\nc"));
    const size_t boxPlaces[] = {0, 1, 2, 4, 6, 7};
    for (int place = 0; place < 6; ++place) {
        EXPECT_EQ(boxPosition(box, place), boxPlaces[place]);
        EXPECT_EQ(documentPosition(box, boxPlaces[place]), place);
    }
    EXPECT_EQ(boxPosition(box, 99), box.size());
}

TEST(TextLineEnds, LoneOnesCountOneOnBothSides) {
    const Text box = u"a\rb\nc";
    EXPECT_EQ(documentText(box), QStringLiteral("a\nb\nc"));
    EXPECT_EQ(boxPosition(box, 4), 4U);
}

} // namespace
} // namespace zeugnis::test
