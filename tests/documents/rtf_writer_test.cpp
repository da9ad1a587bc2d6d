#include "documents/rtf/rtf_writer.h"
#include "platform/whole_file.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

// One of everything that the writer knows.
Document tinyDocument() {
    Section first;
    first.footer = u"Müller, Jule";
    first.blocks.emplace_back(paragraph(StyleId::Kindname, u"Jule Müller"));
    Paragraph kept = paragraph(StyleId::Bereichstext, u"Sie lacht.\nSie {singt}.");
    kept.keepWithNext = true;
    first.blocks.emplace_back(kept);
    first.blocks.emplace_back(
        Table{.columns = {1, 2},
              .rows = {{{.paragraphs = {paragraph(StyleId::Schlussangabe, u"links")}}, {}}},
              .grid = true});
    Section second;
    second.footer = u"Ende";
    Paragraph step = paragraph(StyleId::Hilfeschritt, u"Taste ");
    step.runs.push_back({.text = u"Drucken", .bold = true});
    step.label = u"1.";
    step.startsPage = true;
    second.blocks.emplace_back(step);
    second.blocks.emplace_back(
        Image{.png = "\x89PN", .width = 200, .height = 100, .description = u"Bild"});
    return {.title = u"Größe", .sections = {first, second}};
}

TEST(RtfWriter, WritesTheWholeDocumentAsExpected) {
    const std::string rtf = rtfFromDocument(tinyDocument(), {1, 2});
    EXPECT_EQ(rtf,
              readWholeFile(Arbeitsverzeichnis(DOCUMENTS_EXPECTED), u"tiny_document.expected"));
}

TEST(RtfWriter, BracesBalance) {
    const std::string rtf = rtfFromDocument(tinyDocument(), {1, 2});
    int depth = 0;
    for (size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\')
            ++i;
        else if (rtf[i] == '{')
            ++depth;
        else if (rtf[i] == '}')
            --depth;
    }
    EXPECT_EQ(depth, 0);
}

} // namespace
} // namespace zeugnis::dokumente
