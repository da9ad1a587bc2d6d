#include "platform/collation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace zeugnis::test {
namespace {

TEST(Collation, OrdersNamesAsAGermanListDoes) {
    const Collation order;
    const std::vector<Text> sorted = {
        u"Gross\",\"Anna",
        u"Groß\",\"Bert",
        u"Gross\",\"Carl", // ß is ss
        // The end of a field comes first, then blanks and signs.
        u"O\",\"Zoe",
        u"O Neil\",\"Zoe",
        u"O'Neil\",\"Anna",
        u"Oneil",
        u"Ozan",
        u"Öztürk\",\"Aylin",
        u"Ozturk\",\"Zoe", // umlauts stand beside
        u"Schmidt\",\"Karl\",\"m\"",
        u"Schmidt\",\"Karl Otto\",\"m\"",
        u"Schmidt-Lang\",\"Anna",
        u"Schmidtke",
        u"von Berg",
        u"Vonau",
        u"Zoe\",\"2",
        u"Zoé\",\"3",
    };
    for (size_t i = 0; i < sorted.size(); ++i)
        for (size_t j = 0; j < sorted.size(); ++j)
            EXPECT_EQ(order.before(sorted[i], sorted[j]), i < j)
                << utf8FromText(sorted[i]) << " and " << utf8FromText(sorted[j]);
}

TEST(Collation, MindsAccentsButNotCase) {
    const Collation order;
    for (const auto& [left, right] : {std::pair{u"MÜLLER", u"müller"}, {u"", u""}})
        EXPECT_FALSE(order.before(left, right) || order.before(right, left));
    EXPECT_TRUE(order.before(u"Muller", u"Müller"));
    EXPECT_TRUE(order.before(u"zoe", u"Zoé"));
}

} // namespace
} // namespace zeugnis::test
