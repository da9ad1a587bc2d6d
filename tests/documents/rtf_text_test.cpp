#include "documents/rtf/rtf_text.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace zeugnis::dokumente {
namespace {

TEST(RtfText, OnlyAsciiAndNothingThatSteersTheReader) {
    const std::array<std::pair<TextView, std::string_view>, 8> cases = {{
        {u"Aßmann, Zoé", "A\\u223?mann, Zo\\u233?"},
        {u"{a} \\par", "\\{a\\} \\\\par"},
        {u"eins\nzwei", "eins\\line zwei"},
        {u"O'Neil", "O'Neil"},
        {u"„so“ – 5 €", "\\u8222?so\\u8220? \\u8211? 5 \\u8364?"},
        {u"Dr.\u00A0Šimek", "Dr.\\~\\u352?imek"},
        {u"\uFFFD", "\\u-3?"},
        {u"", ""},
    }};
    for (const auto& [text, rtf] : cases)
        EXPECT_EQ(rtfText(text), rtf);
}

} // namespace
} // namespace zeugnis::dokumente
