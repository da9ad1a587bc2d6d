#include "documents/pdf/pdf_outline.h"
#include "documents/pdf/pdf_writer.h"
#include "documents/window/pdf_pages.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <fstream>

namespace zeugnis::dokumente {
namespace {

std::vector<std::vector<int>> pagesOfLines(const Document& document) {
    std::vector<std::vector<int>> pages;
    for (const LaidSection& section : layOut(document).sections) {
        pages.emplace_back();
        for (const Place& place : section.places)
            pages.back().push_back(place.page);
    }
    return pages;
}

Section sectionOf(std::vector<Block> blocks) {
    return {.footer = u"Fuß", .blocks = std::move(blocks)};
}

// Fills the page but for the height of `lines` lines of running text.
std::vector<Block> filledBut(int lines) {
    const int full = page::TextHeight / styleOf(StyleId::BereichstextAnfang).lineHeight;
    return {static_cast<size_t>(full - lines), paragraph(StyleId::BereichstextAnfang, u"Zeile")};
}

int pageOf(const std::vector<Block>& blocks, size_t fromTheEnd) {
    const auto pages = pagesOfLines({.title = u"", .sections = {sectionOf(blocks)}}).at(0);
    return pages.at(pages.size() - fromTheEnd);
}

TEST(PdfLayout, AHeadingIsNeverLastOnAPage) {
    std::vector<Block> blocks = filledBut(2);
    blocks.emplace_back(paragraph(StyleId::Bereich, u"Überschrift"));
    blocks.emplace_back(paragraph(StyleId::BereichstextAnfang, u"Text"));
    EXPECT_EQ(pageOf(blocks, 2), 1);
}

TEST(PdfLayout, NoSingleLineStaysBehindOrRunsAhead) {
    const Text fourLines = u"eins\nzwei\ndrei\nvier";
    for (const auto& [room, second, third] : {std::tuple{1, 1, 1}, {2, 0, 1}, {3, 0, 1}}) {
        std::vector<Block> blocks = filledBut(room);
        blocks.emplace_back(paragraph(StyleId::BereichstextAnfang, fourLines));
        EXPECT_EQ(pageOf(blocks, 3), second) << room;
        EXPECT_EQ(pageOf(blocks, 2), third) << room;
    }
}

TEST(PdfLayout, WhatIsKeptTakesItsParagraphAlongAsAWhole) {
    std::vector<Block> blocks = filledBut(4);
    Paragraph kept = paragraph(StyleId::BereichstextAnfang, u"eins\nzwei\ndrei\nvier");
    kept.keepWithNext = true;
    blocks.emplace_back(kept);
    blocks.emplace_back(Table{
        .columns = {1}, .rows = {{{.paragraphs = {paragraph(StyleId::Schlussangabe, u"Ende")}}}}});
    for (const size_t line : {5U, 4U, 1U})
        EXPECT_EQ(pageOf(blocks, line), 1) << line;
}

TEST(PdfLayout, TheHeadOfATableStandsOnEveryPage) {
    Table table{.columns = {1}, .rows = {}, .grid = true, .headRow = true, .rowHeight = 400};
    for (int row = 0; row <= 2 * (page::TextHeight / 400 - 1); ++row)
        table.rows.push_back(
            {{.paragraphs = {paragraph(StyleId::Listenzeile, row == 0 ? u"Kopf" : u"Zeile")}}});
    const LaidDocument laid = layOut({.title = u"", .sections = {sectionOf({table})}});
    EXPECT_EQ(laid.pagesPerSection(), std::vector{2});

    const test::TemporaryFolder folder;
    std::ofstream(folder.path() / "a.pdf", std::ios::binary) << pdfFromLayout(laid);
    for (const int page : {0, 1})
        EXPECT_TRUE(PdfPages(folder.path() / "a.pdf")
                        .text(page)
                        .simplified()
                        .startsWith(QStringLiteral("Kopf Zeile")));
}

TEST(PdfLayout, EverySectionBeginsOnANewPageAndCountsItsOwn) {
    Document document;
    document.title = u"Größe";
    for (const char16_t* name : {u"Jule Müller", u"Finn O'Neil", u"Lotte Aßmann"})
        document.sections.push_back(sectionOf({paragraph(StyleId::Kindname, name)}));
    for (int i = 0; i < 30; ++i)
        document.sections[1].blocks.emplace_back(paragraph(StyleId::Bereichstext, u"Zeile\nZeile"));
    const LaidDocument laid = layOut(document);
    EXPECT_EQ(laid.pagesPerSection(), (std::vector{1, 2, 1}));

    const test::TemporaryFolder folder;
    std::ofstream(folder.path() / "a.pdf", std::ios::binary) << pdfFromLayout(laid);
    const PdfPages pages(folder.path() / "a.pdf");
    ASSERT_EQ(pages.count(), 4);
    EXPECT_EQ(pages.title(), QStringLiteral("Größe"));
    EXPECT_TRUE(pages.text(2).contains(QStringLiteral("Seite 2 von 2")));
    EXPECT_TRUE(pages.text(3).contains(QStringLiteral("Seite 1 von 1")));

    const auto contents = pages.contents();
    ASSERT_EQ(contents.size(), 3U);
    EXPECT_EQ(contents[2].title, QStringLiteral("Lotte Aßmann"));
    EXPECT_EQ(contents[2].place.page, 3);
    EXPECT_NEAR(contents[2].place.top, 1134.0 / 16838, 0.01);
}

TEST(PdfOutline, LeavesAloneWhatItDoesNotUnderstand) {
    for (const char* bytes :
         {"", "%PDF-1.4", "startxref\n99999\n", "startxref\n0\n/Size 1/Root 1 0 R/Info 1 0 R"})
        EXPECT_EQ(withAdditions(bytes, {{.title = u"a", .page = 0, .fromTop = 0}}, "1"), bytes);
}

} // namespace
} // namespace zeugnis::dokumente
