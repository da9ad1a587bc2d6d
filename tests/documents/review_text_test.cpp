#include "documents/content/review_text.h"
#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

const Text Rule(65, u'_');

// One line per paragraph, with a mark for its style.
std::string shown(TextView text) {
    Text lines;
    const Document document = AnzeigetextBilden(text);
    for (const Block& block : document.sections.at(0).blocks) {
        const auto& one = std::get<Paragraph>(block);
        lines += one.style == StyleId::Listentitel       ? u"= "
                 : one.style == StyleId::Listenangabe    ? u"~ "
                 : one.style == StyleId::Eintragsname    ? u"# "
                 : one.style == StyleId::Eintragsbereich ? u"* "
                                                         : u"";
        lines += textOf(one) + u"\n";
    }
    return utf8FromText(lines);
}

TEST(ReviewText, TellsHeadNamesHeadingsAndTextsApart) {
    EXPECT_EQ(shown(u"Lindenschule  Süderfehn\r\nKlasse: 3a   Schuljahr: 2026/2027\r\n" + Rule +
                    u"\r\nAhlers, Mats\r\nArbeitsverhalten:\r\nMats kann:\r\nlesen\r\n" +
                    Text(27, u'_') + u"\r\n\r\nSozialverhalten:\r\n\r\n" + Rule +
                    u"\r\nÖz, Azra\r\n\r\nBemerkungen:\r\n\r\nSie sagt:\r\n" + Rule + u"\r\n\r\n"),
              R"(= Lindenschule  Süderfehn
~ Klasse: 3a   Schuljahr: 2026/2027
# Ahlers, Mats
* Arbeitsverhalten:
Mats kann:
lesen
___________________________
* Sozialverhalten:
# Öz, Azra
* Bemerkungen:
* Sie sagt:
)");
}

TEST(ReviewText, TakesAnyOtherTextAsItIsButNotAnEmptyOne) {
    EXPECT_EQ(shown(u"Einkauf:\r\n\r\nMilch:\nBrot"), "Einkauf:\nMilch:\nBrot\n");
    EXPECT_EQ(test::failureOf([] { AnzeigetextBilden(u" \r\n"); }), "invalid-call");
}

} // namespace
} // namespace zeugnis::dokumente
