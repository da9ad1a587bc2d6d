#include "controls/user_actions.h"

#include "tests/support/test_screen.h"

namespace zeugnis::test {
namespace {

using UserActions = ControlsTest;

TEST_F(UserActions, ReachOnlyWhatIsShownVisibleAndEnabledWithAllContainers) {
    CheckBox& box = a->Check1; // in Frame2 in Frame1
    for (Control* obstacle : std::initializer_list<Control*>{&box, &a->Frame2, &a->Frame1})
        for (bool Control::*property : {&Control::Visible, &Control::Enabled}) {
            obstacle->*property = false;
            EXPECT_FALSE(user::click(box) || user::focus(box) || user::doubleClick(box));
            obstacle->*property = true;
        }
    programm.hide(u"A");
    EXPECT_FALSE(user::click(box) || user::type(a->Text1(0), u"x") || user::pick(a->List1, 0));
    EXPECT_EQ(happened(), Log{});
    programm.show(u"A");
    EXPECT_TRUE(user::click(box));
    EXPECT_EQ(happened(), Log{"A.Check1 Click"});
}

TEST_F(UserActions, ClickMovesTheFocusFirst) {
    user::focus(a->Text1(0));
    EXPECT_EQ(happened(), Log{}) << "Tab brings no click";
    user::click(a->Text1(1));
    EXPECT_EQ(happened(), (Log{"A.Text1(0) LostFocus", "A.Text1(1) Click"}));
    user::click(a->Text1(1));
    EXPECT_EQ(happened(), Log{"A.Text1(1) Click"});
    user::click(a->Command1);
    EXPECT_EQ(happened(), (Log{"A.Text1(1) LostFocus", "A.Command1 Click"}));
    user::focus(a->Text1(0));
    EXPECT_EQ(happened(), Log{"A.Command1 LostFocus"});
}

TEST_F(UserActions, EveryControlThatHoldsTheFocusTakesItAtAClick) {
    for (Control* control : std::initializer_list<Control*>{
             &a->Option1(0), &a->Check1, &a->List1, &a->Combo1, &a->Command1, &a->Text1(1)}) {
        user::focus(a->Text1(0));
        happened();
        user::click(*control);
        EXPECT_EQ(happened().at(0), "A.Text1(0) LostFocus");
    }
}

TEST_F(UserActions, LabelOfTheSameScreenLeavesTheFocusAndOfAnotherTakesIt) {
    TestScreen& b = open(u"B");
    user::focus(a->Text1(0));
    happened();
    user::click(a->Label1);
    EXPECT_EQ(happened(), Log{"A.Label1 Click"});
    user::click(b.Label1);
    EXPECT_EQ(happened(), (Log{"A.Text1(0) LostFocus", "B.Label1 Click"}));
}

TEST_F(UserActions, MessageBoxLeavesTheFocus) {
    a->Text1(0).onChange = [&] { programm.machine().dialogs.message({.text = u"Hinweis"}); };
    user::type(a->Text1(0), u"x");
    EXPECT_EQ(programm.focus(), &a->Text1(0));
    EXPECT_EQ(happened(), Log{"A.Text1(0) Key120"});
}

TEST_F(UserActions, BlurAndHidingTheScreenLeaveTheBox) {
    TestScreen& b = open(u"B");
    for (const std::function<void()>& leaving : std::initializer_list<std::function<void()>>{
             [&] { user::blur(*a); }, [&] { programm.hide(u"A"); },
             [&] { user::focus(b.Text1(0)); }}) {
        user::focus(a->Text1(0));
        happened();
        user::blur(b);
        EXPECT_EQ(happened(), Log{});
        leaving();
        EXPECT_EQ(happened(), Log{"A.Text1(0) LostFocus"});
        programm.show(u"A");
    }
}

TEST_F(UserActions, HandlersRunInsideOneAnother) {
    a->Check1.onClick = [&] { log.emplace_back("check"); };
    a->Text1(1).onChange = [&] {
        log.emplace_back("change begins");
        a->Check1.setValue(true);
        log.emplace_back("change ends");
    };
    a->Text1(0).onLostFocus = [&] { a->Text1(1).setText(u"x"); };
    a->Command1.onClick = [&] {
        log.emplace_back("click begins");
        a->setFocus(a->Text1(0));
        a->setFocus(a->Option1(0));
        log.emplace_back("click ends");
    };
    user::click(a->Command1);
    EXPECT_EQ(happened(), (Log{"click begins", "A.Command1 LostFocus", "change begins", "check",
                               "change ends", "click ends"}));
    EXPECT_FALSE(a->Option1(0).value()) << "the focus alone selects nothing";
}

TEST_F(UserActions, DoubleClickIsClickThenDblClickWhereItStillArrives) {
    user::doubleClick(a->Text1(0));
    EXPECT_EQ(happened(), (Log{"A.Text1(0) Click", "A.Text1(0) DblClick"}));
    a->Label1.onClick = [&] { a->Label1.Visible = false; };
    user::doubleClick(a->Label1);
    EXPECT_EQ(happened(), Log{});
}

TEST_F(UserActions, KeyThatIsOnlySeenPassesTheKeyHandlerAndLeavesTheText) {
    char16_t seen = 0;
    a->Text1(0).onKeyPress = [&](char16_t& key) { seen = key; };
    EXPECT_TRUE(user::keySeen(a->Text1(0), 13));
    EXPECT_EQ(seen, 13);
    EXPECT_EQ(a->Text1(0).text(), u"");
    EXPECT_EQ(programm.focus(), &a->Text1(0));
}

TEST_F(UserActions, NothingArrivesAfterTheEndOfTheProgram) {
    user::focus(a->Text1(0));
    user::close(*a); // the screen that the program was started with
    EXPECT_TRUE(programm.ended());
    user::blur(*a);
    EXPECT_FALSE(user::click(a->Command1) || user::type(a->Text1(0), u"x") ||
                 user::tick(a->Timer1));
    EXPECT_EQ(happened(), Log{});
}

} // namespace
} // namespace zeugnis::test
