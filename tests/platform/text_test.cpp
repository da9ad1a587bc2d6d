#include "platform/text.h"

#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

#include <array>

namespace zeugnis::test {
namespace {

TEST(TextTools, GiveEveryLineEndTheFormOfABox) {
    EXPECT_EQ(withBoxLineEnds(u"a\r\nb\nc\rd\n\re\r\n"), u"a\r\nb\r\nc\r\nd\r\n\r\ne\r\n");
    EXPECT_EQ(withBoxLineEnds(u"\r\n\r\n"), u"\r\n\r\n");
}

TEST(TextTools, TakeOnlyBlanksFromTheEnds) {
    EXPECT_EQ(trimmed(u"  a b\t "), u"a b\t");
    EXPECT_EQ(trimmed(u"   "), u"");
}

TEST(TextTools, ReadWholeNumbersOfSixteenBits) {
    EXPECT_EQ(numberFromText(u" +7 ", u"x"), 7);
    EXPECT_EQ(numberFromText(u"-32768", u"x"), -32768);
    EXPECT_EQ(numberFromText(u"32767", u"x"), 32767);
    for (const TextView none : {u"", u"-", u"1a", u"1 2", u"--1"})
        EXPECT_EQ(failureOf([&] { numberFromText(none, u"x"); }), "type-mismatch")
            << utf8FromText(none);
    for (const TextView large : {u"32768", u"-32769", u"99999999999"})
        EXPECT_EQ(failureOf([&] { numberFromText(large, u"x"); }), "overflow")
            << utf8FromText(large);
}

TEST(TextTools, ListWordsAsASentenceDoes) {
    EXPECT_EQ(enumerated({}), u"");
    EXPECT_EQ(enumerated(std::array<Text, 2>{u"", u"Mats"}), u"Mats");
    EXPECT_EQ(enumerated(std::array<Text, 4>{u"Mats", u"", u"Ida", u"Zoé"}), u"Mats, Ida und Zoé");
}

TEST(TextTools, CompareWithoutCase) {
    EXPECT_TRUE(sameIgnoringCase(u"FÖRDER34.TXT", u"Förder34.Txt"));
    EXPECT_FALSE(sameIgnoringCase(u"Foerder", u"Förder"));
    EXPECT_FALSE(sameIgnoringCase(u"Namen.Txt", u"Namen.Txt2"));
}

} // namespace
} // namespace zeugnis::test
