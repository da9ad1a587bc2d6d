#include "safety/typed.h"

#include "platform/path_text.h"
#include "safety/bring_back.h"
#include "safety/states.h"
#include "tests/support/test_installation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeugnis::safety::test {
namespace {
namespace fs = std::filesystem;
using namespace zeugnis::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const Text Screen = u"GsArbeitsverhalten";

class TypedTest : public testing::Test {
  protected:
    [[nodiscard]] TypedStore run() {
        clock += std::chrono::minutes(1);
        return TypedStore(folder.path(), [this] { return clock; });
    }

    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path() / "Notsicherung/Getippt"))
            names.push_back(utf8FromPath(entry.path().extension()));
        return names;
    }

    const Typed text{"Daten/AVSVspeicher.txt", u"Ahlers, Tom", 0, 4,
                     u"Tom\tübt\\n\r\nund \"liest\" – auch ł."};
    const Typed lock{"Daten/AVSVWahl.txt", u"Ahlers, Tom", 0, 4, u"1"};
    const Typed modul{"Daten/AG.Txt", {}, 2, 1, u"Es gab leider keine AG"};
    TestInstallation folder;
    Moment clock = *momentFrom("2026-11-22 22:30:00");
};

TEST_F(TypedTest, IsOfferedToTheNextSessionBesideWhatTheFilesHold) {
    TypedStore killed = run();
    EXPECT_EQ(killed.set(Screen, {text, lock}), 0);
    EXPECT_EQ(killed.set(u"Kompetenzen", {modul}), 0);
    EXPECT_THAT(killed.offers(), IsEmpty());

    TypedStore next = run();
    const std::vector<Offer> offers = next.offers();
    ASSERT_THAT(offers, SizeIs(3));
    EXPECT_EQ(offers[0].screen, Screen);
    EXPECT_EQ(offers[0].typed, text);
    EXPECT_EQ(offers[0].fieldName, u"Arbeitsverhalten");
    EXPECT_EQ(offers[0].inFile, u"");
    EXPECT_EQ(offers[1].inFile, u"0");
    EXPECT_EQ(offers[2].typed, modul);
    EXPECT_EQ(offers[2].inFile, u"Es gab keine AG");

    // What was taken or refused goes, one by one, and what this run types stays.
    EXPECT_EQ(next.set(Screen, {lock}), 0);
    EXPECT_EQ(next.settle(offers[0]), 0);
    EXPECT_THAT(next.offers(), SizeIs(2));
    EXPECT_EQ(next.settle(offers[1]), 0);
    EXPECT_EQ(next.settle(offers[2]), 0);
    EXPECT_THAT(next.offers(), IsEmpty());
    EXPECT_THAT(run().offers(), SizeIs(1));
}

TEST_F(TypedTest, WhatIsSavedOrInTheFilesIsNotOffered) {
    TypedStore first = run();
    first.set(Screen, {text, lock});
    first.set(Screen, {});
    EXPECT_THAT(files(), IsEmpty());
    first.set(Screen, {{"Daten/AVSVWahl.txt", u"Ahlers, Tom", 0, 4, u"0"}});
    EXPECT_THAT(run().offers(), IsEmpty());
}

TEST_F(TypedTest, WhatIsDiscardedGoesToTheFormerStatesAndComesBackFromThere) {
    TypedStore store = run();
    Typed plain = text;
    plain.value = u"Tom \"übt\".";
    store.set(Screen, {plain, lock});
    EXPECT_EQ(store.discard(Screen, u"Verworfen: Arbeits- und Sozialverhalten"), 0);
    EXPECT_THAT(run().offers(), IsEmpty());
    const std::vector<State> states = States(folder.path()).list();
    ASSERT_THAT(states, SizeIs(1));
    EXPECT_EQ(states[0].action, u"Verworfen: Arbeits- und Sozialverhalten");

    Guard guard(folder.path());
    Arbeitsverzeichnis directory(folder.path());
    directory.watchWrites(&guard);
    const std::vector<Former> formers = States(folder.path()).read(states[0].id)->files;
    const std::vector<Difference> found = differencesTo(Paths(folder.path()), formers);
    ASSERT_THAT(found, SizeIs(2));
    EXPECT_EQ(found[1].former, u"Tom „übt“.");
    EXPECT_TRUE(bringBackText(directory, guard, formers, found[1]));
    EXPECT_THAT(differencesTo(Paths(folder.path()), formers), IsEmpty());
}

TEST_F(TypedTest, IsKeptForThirtyDaysAndNotAgainstDamage) {
    run().set(Screen, {text});
    clock += std::chrono::days(30);
    EXPECT_THAT(run().offers(), IsEmpty());
    EXPECT_THAT(files(), IsEmpty());
    folder.write(u"Notsicherung/Getippt/x.getippt", u"Unfug");
    folder.write(u"Notsicherung/Getippt/y.getippt", {});
    EXPECT_THAT(run().offers(), IsEmpty());
    EXPECT_THAT(files(), ElementsAre(".beschaedigt", ".beschaedigt"));
}

TEST_F(TypedTest, SaysThatItCannotBeKept) {
    folder.write(u"Notsicherung", u"kein Ordner");
    EXPECT_NE(run().set(Screen, {text}), 0);
    EXPECT_THAT(run().offers(), IsEmpty());
}

} // namespace
} // namespace zeugnis::safety::test
