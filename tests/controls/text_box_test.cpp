#include "controls/text_box.h"

#include "tests/support/test_screen.h"

namespace zeugnis::test {
namespace {

class TextBoxes : public ControlsTest {
  protected:
    TextBox& box{a->Text1(0)};

    void start(const Text& text, size_t from, size_t to) {
        box.setText(text);
        box.select(from, to);
        user::focus(box);
        happened();
    }
    [[nodiscard]] std::pair<size_t, size_t> selection() const {
        return {box.selectionStart(), box.selectionEnd()};
    }
};

using Selection = std::pair<size_t, size_t>;

TEST_F(TextBoxes, TextFromCodeIsOneChangeWithTheCaretAtItsEnd) {
    box.setText(u"abc");
    EXPECT_EQ(happened(), Log{"A.Text1(0) Change"});
    EXPECT_EQ(selection(), Selection(3, 3));
    box.setText(u"abc");
    EXPECT_EQ(happened(), Log{});
}

TEST_F(TextBoxes, EachTypedCharacterPassesTheKeyHandlerAndIsAChange) {
    start(u"abc", 1, 2);
    user::type(box, u"xy");
    EXPECT_EQ(box.text(), u"axyc");
    EXPECT_EQ(selection(), Selection(3, 3));
    EXPECT_EQ(happened(), (Log{"A.Text1(0) Key120", "A.Text1(0) Change", "A.Text1(0) Key121",
                               "A.Text1(0) Change"}));
}

TEST_F(TextBoxes, KeyHandlerMayChangeTheKeyOrTakeItAway) {
    box.onKeyPress = [](char16_t& key) { key = key == u'a' ? u'b' : key == u'"' ? u'\'' : u'\0'; };
    user::type(box, u"\"az");
    EXPECT_EQ(box.text(), u"'b");
    box.onKeyPress = [](char16_t& key) { key = key == 8 ? u'\0' : key; };
    user::key(box, 8);
    EXPECT_EQ(box.text(), u"'b");
}

TEST_F(TextBoxes, BackspaceTakesALineEndAsAWhole) {
    const struct {
        Text before;
        size_t from, to;
        Text after;
        size_t caret;
    } cases[] = {
        {u"ab", 2, 2, u"a", 1},    {u"ab", 0, 0, u"ab", 0},       {u"a\r\nb", 3, 3, u"ab", 1},
        {u"\r\nb", 2, 2, u"b", 0}, {u"a\r\nbcd", 1, 5, u"ad", 1},
    };
    for (const auto& one : cases) {
        start(one.before, one.from, one.to);
        user::key(box, 8);
        EXPECT_EQ(box.text(), one.after);
        EXPECT_EQ(selection(), Selection(one.caret, one.caret));
        EXPECT_EQ(happened().at(0), "A.Text1(0) Key8");
    }
}

TEST_F(TextBoxes, PastingIsOneChangePastTheKeyHandler) {
    start(u"Tom lacht.", 4, 9);
    user::paste(box, u"\"singt\"\nlaut");
    EXPECT_EQ(box.text(), u"Tom \"singt\"\r\nlaut.");
    EXPECT_EQ(selection(), Selection(17, 17));
    EXPECT_EQ(happened(), Log{"A.Text1(0) Change"});
}

TEST_F(TextBoxes, LockedBoxShowsItsKeysToTheHandlerAndKeepsItsText) {
    start(u"fest", 0, 4);
    box.Locked = true;
    user::type(box, u"x");
    user::key(box, 8);
    user::paste(box, u"y");
    EXPECT_EQ(box.text(), u"fest");
    EXPECT_EQ(happened(), (Log{"A.Text1(0) Key120", "A.Text1(0) Key8"}));
}

TEST_F(TextBoxes, EveryWayInTakesTheNearestForm) {
    const std::function<void()> ways[] = {
        [&] { user::type(box, u"Łö\nő\U0001F600"); },
        [&] { user::paste(box, u"Łö\nő\U0001F600"); },
        [&] { box.setText(u"Łö\r\nő\U0001F600"); },
        [&] {
            for (const char16_t key : {u'Ł', u'ö', u'\r', u'ő', u'\xD83D'})
                user::key(box, key);
        },
    };
    for (const auto& way : ways) {
        box.setText(u"");
        way();
        EXPECT_EQ(box.text(), u"Lö\r\no");
    }
}

TEST_F(TextBoxes, SelectionStaysInsideTheText) {
    box.setText(u"abc");
    box.select(9, 2);
    EXPECT_EQ(selection(), Selection(2, 3));
    box.setText(u"");
    EXPECT_EQ(selection(), Selection(0, 0));
}

} // namespace
} // namespace zeugnis::test
