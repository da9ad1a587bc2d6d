#include "rescue/saved_state.h"

#include "behaviour/avsv_editor.h"
#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "masterdata/master_data_screen.h"
#include "tests/rescue/rescue_test.h"

namespace zeugnis::rescue::test {
namespace {

using namespace zeugnis::test;

class SavedStateTest : public RescueTest {
  protected:
    // "saved at 1, changed", with the hour that the clock shows.
    std::string told(SavedState& state) {
        state.look();
        return (state.savedAt() ? "saved at " + std::to_string(hour(*state.savedAt())) : "") +
               (state.isChanged() ? ", changed" : "");
    }

    SavedState watch(const Screen& screen) {
        SavedState state(screen, installation.path(), [this] { return clock; });
        state.look();
        return state;
    }

    void wait() { clock += std::chrono::hours(1); }
    static long long hour(safety::Moment moment) {
        return moment.time_since_epoch() / std::chrono::hours(1);
    }

    safety::Moment clock{};
};

TEST_F(SavedStateTest, GoesByWhatTheFilesHold) {
    auto& screen = machine.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    SavedState state = watch(screen);
    EXPECT_EQ(told(state), "");
    wait();
    user::pick(screen.Combo1, 0);
    EXPECT_EQ(told(state), "saved at 1") << "a change of child saves";
    click(screen.Command1);
    click(screen.Text1(0));
    EXPECT_EQ(told(state), "saved at 1") << "a look into a box changes nothing";
    user::paste(screen.Text1(0), u"Tom liest.");
    EXPECT_EQ(told(state), "saved at 1, changed") << "it is still only in its box";
    screen.Text1(0).setText({});
    EXPECT_EQ(told(state), "saved at 1") << "taken back by hand";
    user::paste(screen.Text1(0), u"Tom malt.");
    wait();
    click(screen.Command4);
    EXPECT_EQ(told(state), "saved at 2");
    click(screen.Command6);
    EXPECT_EQ(told(state), "saved at 2, changed");
    user::pick(screen.Combo1, 1);
    EXPECT_EQ(told(state), "saved at 2");
}

TEST_F(SavedStateTest, KnowsWhatOthersWriteAndWhatASaveCleans) {
    installation.write(u"Daten/AVSVspeicher.txt",
                       u"1,\"3a\",\"Zander\",\"Tom\",\"Tom lacht.\",\"\"\r\n"
                       u"2,\"3a\",\"Ahlers\",\"Lena\",\"\",\"\"\r\n");
    auto& entry = machine.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    SavedState state = watch(entry);
    auto& basis = machine.open<GsBasis>(bildschirme::GsBasis);
    machine.dialogs.answers = {Antwort::Ja};
    click(basis.Command3);
    EXPECT_EQ(told(state), ", changed") << "the stores have been blanked";

    SavedState school = watch(basis);
    write(basis.Text1(5), u"4a");
    EXPECT_EQ(told(school), ", changed");

    machine.dialogs.answers = {Antwort::Ja};
    auto& editor = machine.open<GSAVSVAenderung>(bildschirme::GSAVSVAenderung);
    SavedState lines = watch(editor);
    click(editor.Command1(1));
    click(editor.Command3);
    EXPECT_EQ(told(lines), "");
    write(editor.Text2(1), u"hilft  gern ");
    EXPECT_EQ(told(lines), ", changed");
    machine.dialogs.answers = {Antwort::Ja, Antwort::Ja};
    click(editor.Command5);
    EXPECT_EQ(told(lines), "saved at 0");
    click(editor.Command7(1));
    EXPECT_EQ(told(lines), "saved at 0, changed") << "a colour";
}

} // namespace
} // namespace zeugnis::rescue::test
