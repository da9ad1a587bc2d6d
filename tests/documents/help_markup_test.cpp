#include "documents/content/help_markup.h"
#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_writer.h"
#include "documents/rtf/rtf_writer.h"
#include "platform/whole_file.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

#include <QByteArray>

namespace zeugnis::dokumente {
namespace {

// A picture of 3000 x 2 points.
std::string widePng() {
    return QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200000bb8000000020802000000")
        .toStdString();
}

TEST(HelpMarkup, KnowsItsKindsOfParagraphs) {
    const Document document = HilfeAusMarkup(u"# Titel\n"
                                             u"## Kapitel\r\n"
                                             u"Text, der auf der\n"
                                             u"nächsten Zeile **weiter**geht:\n"
                                             u"12. Schritt\n"
                                             u"  mit Fortsetzung\n"
                                             u"- Punkt\n"
                                             u"\n"
                                             u"! Hinweis\n"
                                             u"---\n"
                                             u"### Abschnitt\n",
                                             {});
    struct Expected {
        StyleId Style;
        TextView Text;
        TextView Label;
    };
    const std::vector<Expected> expected = {
        {StyleId::Hilfetitel, u"Titel", u""},
        {StyleId::Hilfekapitel, u"Kapitel", u""},
        {StyleId::Fliesstext, u"Text, der auf der nächsten Zeile weitergeht:", u""},
        {StyleId::Hilfeschritt, u"Schritt mit Fortsetzung", u"12."},
        {StyleId::Hilfeschritt, u"Punkt", u"•"},
        {StyleId::Hilfehinweis, u"Hinweis", u""},
        {StyleId::Hilfeabschnitt, u"Abschnitt", u""},
    };
    const auto& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        const auto& paragraph = std::get<Paragraph>(blocks[i]);
        EXPECT_EQ(paragraph.style, expected[i].Style) << i;
        EXPECT_EQ(utf8FromText(textOf(paragraph)), utf8FromText(expected[i].Text));
        EXPECT_EQ(utf8FromText(paragraph.label), utf8FromText(expected[i].Label));
        EXPECT_EQ(paragraph.startsPage, i == 6) << i;
        // The colon keeps what follows, and so does the last item but one.
        EXPECT_EQ(paragraph.keepWithNext, i == 2 || i == 3) << i;
    }
    const auto& runs = std::get<Paragraph>(blocks[2]).runs;
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_TRUE(runs[1].bold && runs[1].text == u"weiter" && !runs[2].bold);
    EXPECT_EQ(document.title, u"Titel");
}

TEST(HelpMarkup, FitsAPictureToThePage) {
    const Document document = HilfeAusMarkup(u"[Bild: a.png | Die Tasten]", [](const Text& name) {
        EXPECT_EQ(name, u"a.png");
        return widePng();
    });
    const auto& image = std::get<Image>(document.sections.at(0).blocks.at(0));
    EXPECT_EQ(image.width, page::TextWidth);
    EXPECT_EQ(image.description, u"Die Tasten");
    EXPECT_EQ(test::failureOf([] { BildAusPng("GIF89a and enough bytes behind it", u"a"); }),
              "invalid-picture");
}

// The documents are delivered, not made by the installation.
TEST(HelpMarkup, TheDeliveredHelpIsWhatItsSourcesSay) {
    const Arbeitsverzeichnis sources(DOCUMENTS_HELP);
    const Arbeitsverzeichnis delivered(DOCUMENTS_DELIVERED);
    for (const char16_t* name : {u"Hilfe1", u"Hilfe2"}) {
        const Text stem = name;
        const Document document = fittedToPages(
            HilfeAusMarkup(textFromUtf8(readWholeFile(sources, stem + u".txt")),
                           [&](const Text& picture) { return readWholeFile(sources, picture); }));
        EXPECT_TRUE(rtfFromDocument(document, layOut(document).pagesPerSection()) ==
                    readWholeFile(delivered, stem + u".doc"))
            << utf8FromText(stem) << ": build the target \"hilfe\"";
        EXPECT_EQ(readWholeFile(delivered, stem + u".pdf").substr(0, 5), "%PDF-");
    }
}

} // namespace
} // namespace zeugnis::dokumente
