#include "documents/content/help_markup.h"
#include "documents/pdf/page_fit.h"
#include "documents/pdf/pdf_writer.h"
#include "documents/rtf/rtf_writer.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

// The documents are delivered, not made by the installation. Byte for byte they also show what the
// markup and the writer of the .doc do with every kind of paragraph.
TEST(HelpMarkup, TheDeliveredHelpIsWhatItsSourcesSay) {
    const Arbeitsverzeichnis sources(DOCUMENTS_HELP);
    const Arbeitsverzeichnis delivered(DOCUMENTS_DELIVERED);
    int texts = 0;
    for (const auto& source : std::filesystem::directory_iterator(sources.current())) {
        if (source.path().extension() != ".txt")
            continue;
        ++texts;
        const Text stem = textFromPath(source.path().stem());
        const Document document = fittedToPages(
            HilfeAusMarkup(textFromUtf8(readWholeFile(sources, stem + u".txt")),
                           [&](const Text& picture) { return readWholeFile(sources, picture); }));
        EXPECT_TRUE(rtfFromDocument(document, layOut(document).pagesPerSection()) ==
                    readWholeFile(delivered, stem + u".doc"))
            << utf8FromText(stem) << ": build the target \"hilfe\"";
        EXPECT_EQ(readWholeFile(delivered, stem + u".pdf").substr(0, 5), "%PDF-");
    }
    EXPECT_GE(texts, 14);
    EXPECT_EQ(test::failureOf([] { BildAusPng("GIF89a and enough bytes behind it", u"a"); }),
              "invalid-picture");
}

} // namespace
} // namespace zeugnis::dokumente
