#include "driver/command_line.h"

#include <gtest/gtest.h>

namespace zeugnis::driver {

bool operator==(const Word& left, const Word& right) {
    return left.text == right.text && left.quoted == right.quoted;
}

namespace {

TEST(CommandLine, SplitsAtBlanksAndReadsTextsAsJson) {
    const std::vector<Word> words = splitCommand(
        "  type\tGSÄnderung12.Text5(27)  \"a\\\"\\\\ \\r\\n\\u00e4€\\u20AC\" 7 \"\"\r");
    EXPECT_EQ(words, (std::vector<Word>{{u"type", false},
                                        {u"GSÄnderung12.Text5(27)", false},
                                        {u"a\"\\ \r\nä€€", true},
                                        {u"7", false},
                                        {u"", true}}));
    EXPECT_TRUE(splitCommand(" \t\r").empty());
    for (const char* bad : {"\"offen", "\"\\x\"", "\"\\u00g0\"", "\"\\u12\"", "\"\\"})
        EXPECT_THROW(splitCommand(bad), CommandError) << bad;
}

TEST(CommandLine, PrintsAnyTextOnOneLine) {
    EXPECT_EQ(jsonString(u"„ä“ \"\\\r\n\t\u0001€"), "\"„ä“ \\\"\\\\\\r\\n\\t\\u0001€\"");
    Text all;
    for (char16_t unit = 0; unit < 0x180; ++unit)
        all += unit;
    EXPECT_EQ(splitCommand(jsonString(all)).at(0).text, all);
}

} // namespace
} // namespace zeugnis::driver
