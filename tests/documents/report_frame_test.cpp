#include "documents/content/report_frame.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

std::vector<Paragraph> keptEndOf(const Text& text) {
    std::vector<Block> blocks = {paragraph(StyleId::Bereichstext, text)};
    LetztenAbsatzHalten(blocks);
    std::vector<Paragraph> paragraphs;
    paragraphs.reserve(blocks.size());
    for (const Block& block : blocks)
        paragraphs.push_back(std::get<Paragraph>(block));
    return paragraphs;
}

TEST(ReportFrame, AnOrdinaryTextIsKeptWithTheSignaturesAsAWhole) {
    const auto paragraphs = keptEndOf(test::saetze(10));
    ASSERT_EQ(paragraphs.size(), 1U);
    EXPECT_TRUE(paragraphs[0].keepWithNext);
}

TEST(ReportFrame, OfALongTextTheLastSentencesAreKept) {
    const Text text = test::saetze(40);
    const auto paragraphs = keptEndOf(text);
    ASSERT_EQ(paragraphs.size(), 2U);
    EXPECT_FALSE(paragraphs[0].keepWithNext);
    EXPECT_TRUE(paragraphs[1].keepWithNext);
    EXPECT_EQ(textOf(paragraphs[0]) + u" " + textOf(paragraphs[1]), text);
    EXPECT_EQ(utf8FromText(textOf(paragraphs[1])).rfind("Satz 38", 0), 0U);
}

TEST(ReportFrame, ALongTextIsRatherPartedAtALineBreak) {
    const auto paragraphs = keptEndOf(test::saetze(30) + u"\n" + test::saetze(5));
    ASSERT_EQ(paragraphs.size(), 2U);
    EXPECT_EQ(textOf(paragraphs[0]), test::saetze(30));
    EXPECT_EQ(textOf(paragraphs[1]), test::saetze(5));
}

TEST(ReportFrame, ALongTextWithoutAnySentenceStaysWhole) {
    EXPECT_EQ(keptEndOf(Text(3000, u'x')).size(), 1U);
}

} // namespace
} // namespace zeugnis::dokumente
