#include "controls/control.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_screen.h"

namespace zeugnis::test {
namespace {

using Controls = ControlsTest;

TEST_F(Controls, CheckBoxSetFromCodeCountsAsAClickOnlyIfItChanges) {
    a->Check1.setValue(false);
    EXPECT_EQ(happened(), Log{});
    a->Check1.setValue(true);
    a->Check1.setValue(true);
    EXPECT_EQ(happened(), Log{"A.Check1 Click"});
    user::click(a->Check1);
    EXPECT_FALSE(a->Check1.value());
    EXPECT_EQ(happened(), Log{"A.Check1 Click"});
}

TEST_F(Controls, OptionsOfOneContainerExcludeEachOtherAcrossTheirArrays) {
    a->Option1(1).setValue(true);
    a->Option3(1).setValue(true); // in another frame
    happened();
    user::click(a->Option2(0));
    EXPECT_EQ(happened(), Log{"A.Option2(0) Click"}) << "the one that goes off does so silently";
    EXPECT_FALSE(a->Option1(1).value());
    EXPECT_TRUE(a->Option2(0).value());
    EXPECT_TRUE(a->Option3(1).value());
}

TEST_F(Controls, OptionRunsItsHandlerOnlyWhenItGoesOn) {
    a->Option1(0).onClick = [&] {
        log.emplace_back(a->Option1(0).value() && !a->Option1(2).value() ? "is on" : "is off");
    };
    a->Option1(2).setValue(true);
    happened();
    a->Option1(0).setValue(true);
    EXPECT_EQ(happened(), Log{"is on"});
    user::click(a->Option1(0));
    a->Option1(0).setValue(true);
    a->Option1(0).setValue(false);
    EXPECT_EQ(happened(), Log{});
    EXPECT_FALSE(a->Option1(0).value());
}

TEST_F(Controls, ArraysFailForMembersThatDoNotExist) {
    EXPECT_EQ(a->find(u"Option3(1)"), &a->Option3(1));
    EXPECT_EQ(a->find(u"Option3(0)"), nullptr);
    for (const int index : {0, 3, -1})
        EXPECT_EQ(failureOf([&] { a->Option3(index).setValue(true); }), "index-out-of-range");
}

} // namespace
} // namespace zeugnis::test
