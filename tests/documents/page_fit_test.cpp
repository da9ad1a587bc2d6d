#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_writer.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

Document documentOf(std::vector<Block> blocks) {
    return {.title = u"", .sections = {{.footer = u"Fuß", .blocks = std::move(blocks)}}};
}

std::vector<Block> fitted(std::vector<Block> blocks) {
    return fittedToPages(documentOf(std::move(blocks))).sections.at(0).blocks;
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
