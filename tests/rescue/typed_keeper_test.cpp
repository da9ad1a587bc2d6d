#include "rescue/typed_keeper.h"

#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "editors/editor34.h"
#include "rescue/forethought.h"
#include "rescue/offers.h"
#include "rescue/taking.h"
#include "shell/start_page.h"
#include "tests/rescue/rescue_test.h"
#include "years34/entry_screen.h"

#include <gmock/gmock.h>

namespace zeugnis::rescue::test {
namespace {

using namespace zeugnis::test;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class TypedKeeperTest : public RescueTest {
  protected:
    TypedKeeperTest() {
        guard.onUnitEnd = [this](safety::Guard::Outcome outcome) { keeper.unitEnded(outcome); };
        keeper.actionEnded();
    }

    template <typename S>
    S& open(TextView name) {
        S& screen = machine.open<S>(name);
        keeper.actionEnded();
        return screen;
    }

    GsArbeitsverhalten& typeForTom(const Text& text) {
        auto& screen = open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
        user::pick(screen.Combo1, 0);
        click(screen.Command1);
        write(screen.Text1(0), text);
        keeper.actionEnded();
        return screen;
    }

    void leave(Control& button, Antwort answer) {
        keeper.note();
        machine.dialogs.answers = {answer};
        keeper.questionComes();
        click(button);
        keeper.answered(machine.dialogs.shown.back(), answer);
        keeper.actionEnded();
    }

    [[nodiscard]] std::vector<OfferedText> nextStart() {
        clock += std::chrono::minutes(5);
        safety::TypedStore store(installation.path(), [this] { return clock; });
        return OfferList(store, clock).texts();
    }

    safety::Moment clock = *safety::momentFrom("2026-11-22 22:30:00");
    TypedKeeper keeper{machine.programm, installation.path(), [this] { return clock; }};
};

TEST_F(TypedKeeperTest, WhatStandsInTheBoxIsOfferedAndTakenAsAHandWould) {
    typeForTom(u"Tom hört zu.");
    EXPECT_EQ(keeper.setDown(), 0);
    const auto offered = nextStart();
    ASSERT_THAT(offered, SizeIs(1));
    EXPECT_EQ(offered[0].who, u"Zander, Tom");
    EXPECT_EQ(offered[0].section, u"Arbeitsverhalten");
    EXPECT_EQ(offered[0].when, u"heute, 22:30 Uhr");
    EXPECT_THAT(offered[0].withIt, Not(IsEmpty())) << "the lock comes and goes with the text";

    TestProgramm next(installation);
    next.programm.show(bildschirme::GsStart);
    // What is taken over is kept in its turn until it is saved.
    TypedKeeper nextKeeper(next.programm, installation.path());
    EXPECT_TRUE(openFor(next.programm, offered[0].offer));
    nextKeeper.actionEnded();
    EXPECT_EQ(take(next.programm, offered[0].offer), u"");
    EXPECT_NE(nextKeeper.unsavedSentence(), u"");
    const auto& screen =
        dynamic_cast<GsArbeitsverhalten&>(*next.programm.find(bildschirme::GsArbeitsverhalten));
    EXPECT_EQ(screen.Text1(0).text(), u"Tom hört zu.");
    EXPECT_EQ(screen.Speicher.AV.Gesperrt[0], 1);
}

TEST_F(TypedKeeperTest, CountsAsSavedOnlyWhatIsKept) {
    auto& screen = typeForTom(u"Tom hört zu.");
    keeper.setDown();
    keeper.unitEnded(safety::Guard::Outcome::TakenBack);
    keeper.actionEnded();
    EXPECT_THAT(utf8FromText(keeper.unsavedSentence()), HasSubstr("Zander, Tom: Arbeitsverhalten"));
    click(screen.Command4);
    keeper.actionEnded();
    keeper.setDown();
    EXPECT_THAT(nextStart(), IsEmpty());
    EXPECT_EQ(keeper.unsavedSentence(), u"");
}

TEST_F(TypedKeeperTest, AKnowingNoGoesToTheFormerStates) {
    auto& screen = typeForTom(u"Tom hört zu.");
    leave(screen.Command5, Antwort::Nein);
    EXPECT_THAT(nextStart(), IsEmpty());
    const auto states = safety::States(installation.path()).list();
    EXPECT_TRUE(std::any_of(states.begin(), states.end(), [](const safety::State& state) {
        return state.action == u"Nicht gespeichert (auf Ihr „Nein“ hin)";
    }));
}

TEST_F(TypedKeeperTest, WhatAnotherScreenDroppedUnaskedIsOffered) {
    typeForTom(u"Tom hört zu.");
    keeper.note();
    click(dynamic_cast<GsStart&>(*machine.programm.startScreen()).Command1(0));
    keeper.actionEnded();
    keeper.setDown();
    EXPECT_THAT(nextStart(), SizeIs(1));
}

TEST_F(TypedKeeperTest, ModulesAndTheOtherYearsAreKeptAndTakenToo) {
    auto& editor = open<GSAenderung34>(bildschirme::GSAenderung34);
    machine.dialogs.answers = {Antwort::Ja};
    click(editor.Command1(1));
    click(editor.Command2(1));
    keeper.actionEnded();
    write(editor.Text3(2), u"Neuer Baustein");
    auto& entry = open<GSAGFI>(bildschirme::GSAGFI);
    user::pick(entry.Combo1, 1);
    click(entry.Command2(2));
    keeper.actionEnded();
    write(entry.Text3, u"Lena liest.");
    keeper.setDown();
    const auto offered = nextStart();
    ASSERT_THAT(offered, SizeIs(2));

    TestProgramm next(installation);
    next.programm.show(bildschirme::GsStart);
    next.dialogs.answers = {Antwort::Ja};
    for (const OfferedText& one : offered) {
        EXPECT_TRUE(openFor(next.programm, one.offer));
        EXPECT_EQ(take(next.programm, one.offer), u"");
    }
    EXPECT_EQ(dynamic_cast<GSAenderung34&>(*next.programm.find(bildschirme::GSAenderung34))
                  .Text3(2)
                  .text(),
              u"Neuer Baustein");
}

TEST_F(TypedKeeperTest, QuotesAreMendedWhereverTheyStandAndTheChildOnDisplayStays) {
    auto& entry = open<GSAGFI>(bildschirme::GSAGFI);
    user::pick(entry.Combo1, 0);
    click(entry.Command2(1));
    write(entry.Text2, u"Tom mag \"Ronja\".");
    user::pick(entry.Combo1, 1);
    click(entry.Command2(2));
    EXPECT_THAT(textsWithQuotes(entry), testing::ElementsAre(u"Zander, Tom: Interessen"));
    EXPECT_TRUE(mayWrite(entry.Command1(0)));
    mendQuotes(entry);
    EXPECT_THAT(textsWithQuotes(entry), IsEmpty());
    EXPECT_EQ(entry.Speicher.Texte[1][0], u"Tom mag „Ronja“.");
    EXPECT_EQ(entry.Combo1.listIndex(), 1);
    EXPECT_EQ(entry.Seite, 2);
}

} // namespace
} // namespace zeugnis::rescue::test
