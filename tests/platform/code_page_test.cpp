#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

TEST(CodePage, HoldsEveryByteAlsoTheUnassignedOnes) {
    EXPECT_EQ(decodeWindows1252("\x80\x84\x93\xE4\xDF\x9F\xFF"), u"€„“äßŸÿ");
    EXPECT_EQ(decodeWindows1252("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
    std::string all(256, '\0');
    for (size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i);
    EXPECT_EQ(encodeWindows1252(decodeWindows1252(all)), all);
    EXPECT_EQ(encodeWindows1252(u"a\u0142\u20ACb"), "a?\x80"
                                                    "b");
}

TEST(CodePage, TakesTheNearestFormOfForeignCharacters) {
    const struct {
        TextView typed;
        TextView taken;
    } cases[] = {
        {u"", u""},
        {u"Größe „ganz“ – 5 €…", u"Größe „ganz“ – 5 €…"},
        {u"Michał Őry", u"Michal Ory"},
        {u"Bäcker, Şule", u"Bäcker, Sule"},
        {u"a\u0308 e\u0301", u"ä é"}, // letters with a separate accent
        {u"zwei\u2011teilig", u"zwei-teilig"},
        {u"a\U0001F600b", u"ab"}, // no nearest form
        {u"\xD83D", u""},         // half a character
    };
    for (const auto& one : cases)
        EXPECT_EQ(nearestInWindows1252(one.typed), one.taken) << utf8FromText(one.typed);
}

} // namespace
} // namespace zeugnis::test
