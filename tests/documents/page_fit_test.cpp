#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_writer.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

Document documentOf(std::vector<Block> blocks) {
    return {.title = u"", .sections = {{.footer = u"Fuß", .blocks = std::move(blocks)}}};
}

std::vector<Block> fitted(std::vector<Block> blocks) {
    return fittedToPages(documentOf(std::move(blocks))).sections.at(0).blocks;
}

std::vector<Paragraph> withKeptEnd(const Text& text) {
    Paragraph whole = paragraph(StyleId::Bereichstext, text);
    whole.keepEndWithNext = true;
    std::vector<Paragraph> parts;
    for (const Block& block : fitted({whole}))
        parts.push_back(std::get<Paragraph>(block));
    return parts;
}

TEST(PageFit, AnOrdinaryTextIsKeptAsAWhole) {
    const auto parts = withKeptEnd(test::saetze(5));
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_TRUE(parts[0].keepWithNext);
}

TEST(PageFit, OfALongTextTheLastLinesAreKeptAndNoLineEndsBeforeItIsFull) {
    for (const Text& text : {test::saetze(40), Text(3000, u'x'), [] {
                                 Text endless;
                                 for (int i = 0; i < 300; ++i)
                                     endless += u"und malt gern ";
                                 return endless + u"viel.";
                             }()}) {
        const auto parts = withKeptEnd(text);
        ASSERT_EQ(parts.size(), 2U);
        EXPECT_FALSE(parts[0].keepWithNext);
        EXPECT_TRUE(parts[1].keepWithNext);
        const Text joint = text[0] == u'x' ? u"" : u" ";
        EXPECT_EQ(textOf(parts[0]) + joint + textOf(parts[1]), text);
        EXPECT_TRUE(std::all_of(parts[1].runs.begin(), parts[1].runs.end(),
                                [](const auto& run) { return run.tracking >= -1; }));
        const auto lines = [](const Paragraph& part) {
            return layOut(documentOf({part})).sections.at(0).strips.size();
        };
        const Paragraph whole = paragraph(StyleId::Bereichstext, text);
        EXPECT_EQ(lines(parts[0]) + lines(parts[1]), lines(whole));
        EXPECT_EQ(lines(parts[1]), 3U);
    }
}

TEST(PageFit, ManyShortLinesArePartedAtOneOfTheirEnds) {
    Text text;
    for (int i = 1; i <= 60; ++i)
        text += (i > 1 ? u"\nZeile " : u"Zeile ") + textFromNumber(i);
    const auto parts = withKeptEnd(text);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(utf8FromText(textOf(parts[1])), "Zeile 58\nZeile 59\nZeile 60");
    EXPECT_TRUE(textOf(parts[0]).ends_with(u"Zeile 57"));
}

TEST(PageFit, LinesToWriteOnFillThePageWhateverStandsAboveAndBelow) {
    for (const int above : {1, 7, 20}) {
        std::vector<Block> blocks(static_cast<size_t>(above),
                                  paragraph(StyleId::Fliesstext, u"Zeile"));
        blocks.emplace_back(Table{
            .columns = {1}, .rows = {Row(1)}, .ruled = true, .rowHeight = 480, .fillsPage = true});
        blocks.emplace_back(paragraph(StyleId::Schlussangabe, u"Ende"));
        const LaidDocument laid = layOut(documentOf(fitted(blocks)));
        EXPECT_EQ(laid.sections[0].pages, 1);
        const Twips bottom =
            laid.sections[0].places.back().y + laid.sections[0].strips.back().strip.height;
        EXPECT_LT(page::TextHeight - bottom, 480) << above;
    }
}

} // namespace
} // namespace zeugnis::dokumente
