#include "documents/pdf/pdf_outline.h"
#include "documents/pdf/pdf_writer.h"
#include "documents/window/pdf_pages.h"
#include "tests/documents/report_installation.h"

#include <gtest/gtest.h>

#include <fstream>

namespace zeugnis::dokumente {
namespace {

Section sectionOf(std::vector<Block> blocks) {
    return {.footer = u"Fuß", .blocks = std::move(blocks)};
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
        EXPECT_EQ(withAdditions(bytes, {{.title = u"a", .page = 0, .fromBottom = 0}}, "1"), bytes);
}

} // namespace
} // namespace zeugnis::dokumente
