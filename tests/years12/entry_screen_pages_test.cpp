// What the pages offer, and what their choices become.

#include "tests/years12/entry_screen_12.h"

namespace zeugnis::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(EntryScreen12, ComposesYear1FromItsOwnModules) {
    installation.classIs(u"1b");
    open(Emir, 4);
    EXPECT_FALSE(control(u"Label15").Visible);
    EXPECT_FALSE(click(u"Option25(4)"));
    choose({u"Option14(1)", u"Option15(4)", u"Option28(1)"});
    EXPECT_EQ(text(4), u"Zw3 Emir 1Ma1-1. Zw20 1Ma2-4. 1Ma5-0.");
    choose({u"Option35(0)"});
    EXPECT_EQ(text(4), u"Zw3 Emir 1Ma1-1. Zw20 1Ma7-0 1Ma5-0.") << "an open sentence";
    EXPECT_EQ(marked(), (Names{"Option14(1)", "Option35(0)", "Option28(1)", "Label11", "Label12"}));
    choose({u"Option15(2)", u"Option35(1)", u"Option15(2)"});
    EXPECT_EQ(text(4), u"Zw3 Emir 1Ma1-1. Zw20 1Ma7-1 1Ma2-2. 1Ma5-0.");
}

TEST_F(EntryScreen12, OffersNothingOfAnUnknownYear) {
    installation.classIs(u"3b");
    open(Lena, 4);
    EXPECT_EQ(control<Label>(u"Label11").Caption, u"Zw3");
    EXPECT_EQ(control<Label>(u"Label12").Caption, u"");
    choose({u"Option25(0)"});
    EXPECT_EQ(text(4), u" Zw7.") << "no blank inscription is filtered";
}

TEST_F(EntryScreen12, MarksOfAPageAreAllChoicesAndDotsOnlyTheLast) {
    open(Lena, 3);
    choose({u"Option9(1)", u"Option11(2)", u"Option11(0)", u"Option24(5)"});
    EXPECT_EQ(marked(), (Names{"Option9(1)", "Option11(0)", "Option24(5)", "Label9", "Label10"}));
    EXPECT_TRUE(isOn(u"Option24(5)"));
    EXPECT_FALSE(isOn(u"Option9(1)") || isOn(u"Option11(0)"));
    turnTo(0);
    EXPECT_EQ(marked(), Names());
    choose({u"Option1(4)", u"Check1(2)"});
    EXPECT_EQ(marked(), Names{"Option1(4)"});
    choose({u"Option1(0)"});
    EXPECT_EQ(marked(), Names()) << "row 0 is no entry";
    EXPECT_EQ(text(0), u"Lena Sport4. ");
    EXPECT_EQ(colour(u"Label28"), Weiss);
}

TEST_F(EntryScreen12, AnyOtherHalfYearShowsAllOfThePage) {
    installation.halfYear(u"3");
    open(Lena, 7);
    choose({u"Check3(0)", u"Option23(7)", u"Option21(1)"});
    EXPECT_EQ(text(7), u"Deutsch");
    EXPECT_EQ(marked(), (Names{"Check3(0)", "Option23(7)", "Label5"})) << "Option21 does nothing";
}

TEST_F(EntryScreen12, PagesShowTheTextsOfTheirSubjectInItsColours) {
    open(Lena, 0);
    const auto shown = [this] {
        std::string fields;
        screen->Text1.each([&](const TextBox& field) {
            fields += !field.Visible ? '-' : field.Enabled ? 'X' : 'o';
        });
        return fields;
    };
    const struct {
        int page;
        const char* fields;
        Farbwert colour;
    } pages[] = {
        {0, "X-------", 0xC0FFC0}, {1, "-Xoo----", 0xC0E0FF}, {2, "-oXo----", 0x00FFFF},
        {3, "-ooX----", 0xFFFFC0}, {4, "----Xoo-", 0xC0FFFF}, {5, "----oXo-", 0xC0E0FF},
        {6, "----ooX-", 0x00FFFF}, {7, "-------X", 0xFFC0FF},
    };
    for (const auto& one : pages) {
        turnTo(one.page);
        EXPECT_EQ(shown(), one.fields);
        for (const Control* control : {static_cast<Control*>(&screen->Command1(one.page)),
                                       static_cast<Control*>(&screen->Frame1(one.page)),
                                       static_cast<Control*>(&screen->Text1(one.page))})
            EXPECT_EQ(control->BackColor, one.colour) << one.page;
        EXPECT_EQ(screen->Command1((one.page + 1) % 8).BackColor, 0xC0C0C0U);
    }
    turnTo(6);
    EXPECT_EQ(screen->Text1(4).BackColor, 0xC0FFFFU);
    EXPECT_EQ(screen->Text1(5).BackColor, 0xC0E0FFU);
}

} // namespace
} // namespace zeugnis::test
