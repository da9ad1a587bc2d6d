#include "controls/program.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_screen.h"

namespace zeugnis::test {
namespace {

using Programs = ControlsTest;

TEST_F(Programs, LoadingIsDoneOnceAndAFreshScreenHasNoState) {
    programm.load(u"B");
    EXPECT_FALSE(programm.find(u"B")->shown());
    TestScreen& b = open(u"B");
    b.Text1(0).setText(u"alt");
    const int raises = b.raises();
    EXPECT_EQ(&open(u"B"), &b);
    EXPECT_EQ(b.raises(), raises + 1) << "showing it again brings it to the front";
    programm.unload(u"B");
    EXPECT_EQ(programm.find(u"B"), nullptr);
    EXPECT_EQ(open(u"B").Text1(0).text(), u"");
    EXPECT_EQ(happened(), (Log{"B load", "B.Text1(0) Change", "B destroyed", "B load"}));
}

TEST_F(Programs, UnloadingDropsTheFocusWithoutLeaveEvent) {
    TestScreen& b = open(u"B");
    user::focus(b.Text1(0));
    happened();
    programm.unload(u"B");
    programm.unload(u"B");
    user::focus(a->Text1(0));
    EXPECT_EQ(happened(), Log{"B destroyed"});
}

TEST_F(Programs, ScreenUnloadedInItsOwnHandlerLivesUntilTheOutermostHandlerEnds) {
    TestScreen& b = open(u"B");
    b.Text1(0).onLostFocus = [&] {
        programm.unload(u"B");
        log.emplace_back("after unload");
    };
    user::focus(b.Text1(0));
    a->Command1.onClick = [&] {
        log.emplace_back(programm.find(u"B") == nullptr ? "B is gone" : "B is there");
        log.emplace_back("click ends");
    };
    happened();
    user::click(a->Command1);
    EXPECT_EQ(happened(), (Log{"after unload", "B is gone", "click ends", "B destroyed"}));

    TestScreen& again = open(u"B");
    again.Command1.onClick = [&] { programm.unload(u"B"); };
    happened();
    EXPECT_TRUE(user::doubleClick(again.Command1)) << "the second click finds no screen any more";
    EXPECT_EQ(happened(), (Log{"A.Command1 LostFocus", "B destroyed"}));
}

TEST_F(Programs, ScreenMayUnloadItselfWhileItLoads) {
    class Fleeting : public TestScreen {
      public:
        using TestScreen::TestScreen;
        void load() override { programm().unload(name()); }
    };
    programm.registerScreen(u"C",
                            [&](Programm& p) { return std::make_unique<Fleeting>(p, u"C", log); });
    programm.show(u"C");
    EXPECT_EQ(programm.find(u"C"), nullptr);
    EXPECT_EQ(happened(), Log{"C destroyed"});
    EXPECT_EQ(failureOf([&] { programm.load(u"D"); }), "invalid-call");
}

TEST_F(Programs, CloseBoxUnloadsWithoutLeaveEvent) {
    TestScreen& b = open(u"B");
    user::focus(b.Text1(0));
    happened();
    user::close(b);
    EXPECT_EQ(programm.screens(), std::vector<Screen*>{a});
    EXPECT_FALSE(programm.ended());
    EXPECT_EQ(happened(), Log{"B destroyed"});
}

} // namespace
} // namespace zeugnis::test
