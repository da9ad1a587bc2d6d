#include "documents/rtf/rtf_text.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace zeugnis::dokumente {
namespace {

TEST(RtfText, OnlyAsciiAndNothingThatSteersTheReader) {
    const std::array<std::pair<TextView, std::string_view>, 8> cases = {{
        {u"Aßmann, Zoé", "A\\'dfmann, Zo\\'e9"},
        {u"{a} \\par", "\\{a\\} \\\\par"},
        {u"eins\nzwei", "eins\\line zwei"},
        {u"O'Neil", "O'Neil"},
        {u"„so“ – 5 €", "\\'84so\\'93 \\'96 5 \\'80"},
        {u"Dr.\u00A0Žimeč", "Dr.\\~\\'8eime\\u269c"},
        {u"\uFFFD", "\\u-3?"},
        {u"", ""},
    }};
    for (const auto& [text, rtf] : cases)
        EXPECT_EQ(rtfText(text), rtf);
}

} // namespace
} // namespace zeugnis::dokumente
