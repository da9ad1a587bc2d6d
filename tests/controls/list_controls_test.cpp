#include "controls/list_controls.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_screen.h"

namespace zeugnis::test {
namespace {

class ListControls : public ControlsTest {
  protected:
    ListControls() {
        for (const char16_t* entry : {u"eins", u"zwei", u"drei"}) {
            a->List1.addItem(entry);
            a->Combo1.addItem(entry);
        }
    }
};

TEST_F(ListControls, IndexFromCodeRunsTheHandlerIfItChangesAndAPickAlways) {
    a->List1.setListIndex(1);
    EXPECT_EQ(happened(), Log{"A.List1 Click"});
    a->List1.setListIndex(1);
    EXPECT_EQ(happened(), Log{});
    user::pick(a->List1, 1);
    EXPECT_EQ(happened(), Log{"A.List1 Click"});
    a->List1.setListIndex(-1);
    EXPECT_EQ(happened(), Log{"A.List1 Click"});
}

TEST_F(ListControls, ClearingAndRemovingDeselectSilently) {
    a->List1.setListIndex(2);
    a->Combo1.setListIndex(1);
    happened();
    a->List1.removeItem(0);
    a->Combo1.clear();
    EXPECT_EQ(happened(), Log{});
    EXPECT_EQ(a->List1.listIndex(), -1);
    EXPECT_EQ(a->List1.entries(), (std::vector<Text>{u"zwei", u"drei"}));
    EXPECT_EQ(a->Combo1.listIndex(), -1);
    EXPECT_EQ(a->Combo1.Inscription, u"") << "no entry is left that it could show";
}

TEST_F(ListControls, EntriesThatDoNotExistFail) {
    for (const int index : {-1, 3})
        EXPECT_EQ(failureOf([&] { a->List1.removeItem(index); }), "invalid-call");
    for (const int index : {-2, 3})
        EXPECT_EQ(failureOf([&] { a->List1.setListIndex(index); }), "invalid-call");
    EXPECT_EQ(a->List1.entries().size(), 3U);
}

TEST_F(ListControls, ComboShowsThePickedEntry) {
    a->Combo1.Inscription = u"Namensliste";
    user::focus(a->Combo1);
    EXPECT_EQ(a->Combo1.Inscription, u"Namensliste");
    user::pick(a->Combo1, 2);
    EXPECT_EQ(a->Combo1.Inscription, u"drei");
}

TEST_F(ListControls, ComboTakesATypedTextThatIsNoEntry) {
    int changes = 0;
    a->Combo1.onChange = [&] { ++changes; };
    user::pick(a->Combo1, 1);
    EXPECT_EQ(changes, 0) << "a pick is a click";
    happened();
    user::type(a->Combo1, u"ł!");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(a->Combo1.Inscription, u"zweil!");
    EXPECT_EQ(a->Combo1.listIndex(), -1);
    EXPECT_EQ(happened(), Log{});
    a->Combo1.Enabled = false;
    EXPECT_FALSE(user::type(a->Combo1, u"x"));
}

} // namespace
} // namespace zeugnis::test
