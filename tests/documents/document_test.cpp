#include "documents/model/document.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

TEST(Document, TakesEveryKindOfLineEndAsOneLineBreak) {
    EXPECT_EQ(printable(u"eins\r\nzwei\rdrei\nvier"), u"eins\nzwei\ndrei\nvier");
    EXPECT_EQ(printable(u"eins\r\n\r\nzwei"), u"eins\n\nzwei");
}

TEST(Document, DropsWhatCannotBePrinted) {
    EXPECT_EQ(printable(u" \r\n  Text\t\u0001\u009Dhier \r\n"), u"Text hier");
    EXPECT_EQ(printable(u" \r\n "), u"");
}

TEST(Document, ColumnsFillTheWidthWithoutRemainder) {
    const Table table{.columns = {1, 1, 1}, .rows = {}};
    EXPECT_EQ(columnEdges(table, 1000), (std::vector<Twips>{333, 666, 1000}));
}

} // namespace
} // namespace zeugnis::dokumente
