// What the pages offer, and what their choices become.

#include "tests/years12/entry_screen_12.h"

namespace zeugnis::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(EntryScreen12, ComposesThePagesOfYear2) {
    const struct {
        int page;
        std::vector<TextView> choices; // not in the order of the text
        TextView text;
    } pages[] = {
        {0,
         {u"Check1(3)", u"Option1(15)", u"Check1(0)", u"Check1(2)", u"Check1(1)"},
         u"Lena In15.\r\nLena Sport0. Lena Sport1. Lena Sport4. Lena Sport5. "},
        {1, {u"Option44(3)", u"Option2(3)", u"Option3(3)"}, u"Sp1-3. Sp2-3. Sp3-3."},
        {2,
         {u"Option45(3)", u"Option8(3)", u"Option4(6)", u"Option5(6)", u"Option6(6)",
          u"Option7(3)"},
         u"Le1-6 Le2-6 Le3-6. Le4-3 Le5-3. Le6-3."},
        {3,
         {u"Option24(5)", u"Option13(5)", u"Option12(3)", u"Option11(3)", u"Option10(3)",
          u"Option9(3)"},
         u"Sc1-3. Sc2-3. Zw0 Sc3-3. Zw1 Sc4-3. Zw2 Sc5-5. Zw21 Sc6-5."},
        {4,
         {u"Option25(4)", u"Option28(1)", u"Option20(3)", u"Option16(5)", u"Option35(1)",
          u"Option15(4)", u"Option14(4)"},
         u"Zw3 Ma1-4. Zw4 Ma7-1 Ma2-4. Zw5 Ma3-5. Zw6 Ma4-3. Ma5-0. Zw7 Ma6-4."},
        {5,
         {u"Option27(3)", u"Option26(2)", u"Option19(2)", u"Option18(2)", u"Option17(2)"},
         u"Zw8 Ma8-2. Zw9 Ma9-2. Zw10 Ma10-2. Zw11 Ma11-2. Zw12 Ma12-3."},
        {6,
         {u"Option34(3)", u"Option33(3)", u"Option32(3)", u"Option31(2)", u"Option30(2)",
          u"Option29(2)"},
         u"Zw13 Ma13-2. Zw14 Ma14-2. Zw15 Ma15-2. Zw16 Ma16-3. Zw17 Ma17-3. Zw18 Ma18-3. "},
        {7,
         {u"Option21(3)", u"Check3(7)", u"Check2(1)", u"Check2(0)", u"Check3(1)"},
         u"Lena hat an der Arbeitsgemeinschaft 'Chor' teilgenommen. Bemerkung.\r\n"
         u"Im Fach Mathematik und Religion übt sie weiter.\r\nLena Ve3."},
    };
    open(Lena, 0);
    for (const auto& page : pages) {
        turnTo(page.page);
        for (const TextView choice : page.choices)
            EXPECT_TRUE(click(choice)) << utf8FromText(choice);
        EXPECT_EQ(text(page.page), page.text);
    }
}

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

TEST_F(EntryScreen12, RemarksOfTheFirstHalfYearEndWithTheChosenTail) {
    installation.firstHalfYear();
    open(Lena, 7);
    EXPECT_FALSE(control(u"Option21(0)").reachable());
    choose({u"Option23(2)"});
    EXPECT_EQ(text(7), u"");
    EXPECT_EQ(marked(), Names{"Option23(2)"});
    EXPECT_FALSE(isOn(u"Option23(2)"));
    choose({u"Check3(0)"});
    EXPECT_EQ(text(7), u"Im Fach Deutsch Schluss2.");
    EXPECT_EQ(marked(), (Names{"Check3(0)", "Option23(2)", "Label5"}));
    choose({u"Option23(0)", u"Check3(0)"});
    EXPECT_EQ(text(7), u"");
    EXPECT_EQ(marked(), Names{"Option23(0)"});
}

TEST_F(EntryScreen12, RemarksOfTheSecondHalfYearHaveAFixedTail) {
    open(Mia, 7);
    EXPECT_TRUE(control(u"Option23(0)").Visible);
    EXPECT_FALSE(click(u"Option23(0)") || click(u"Option23(1)"));
    EXPECT_EQ(control<CheckBox>(u"Check2(0)").Caption,
              u"Mia hat an den Arbeitsgemeinschaften  und 'Schach''Chor' teilgenommen");
    EXPECT_EQ(control<CheckBox>(u"Check2(1)").Caption, u"Bemerkung");
    choose({u"Check3(2)"});
    EXPECT_EQ(marked(), (Names{"Check3(2)", "Option23(0)", "Label5"}));
    EXPECT_EQ(text(7), u"Im Fach Sachunterricht übt sie weiter.");
    choose({u"Check2(1)", u"Check3(2)"});
    EXPECT_EQ(text(7), u"Bemerkung.\r\n");
    EXPECT_EQ(marked(), Names{"Check2(1)"});
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
