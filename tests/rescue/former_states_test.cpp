#include "rescue/former_states.h"

#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "editors/editor34.h"
#include "masterdata/master_data_screen.h"
#include "rescue/forethought.h"
#include "rescue/last_term.h"
#include "tests/rescue/rescue_test.h"

#include <gmock/gmock.h>

namespace zeugnis::rescue::test {
namespace {

using namespace zeugnis::test;
using safety::Difference;
using testing::HasSubstr;

const Text TomsText = u"Tom hört zu.";

class FormerStatesTest : public RescueTest {
  protected:
    using RescueTest::RescueTest;

    // Has a text for the first child in the file.
    void writeToms() {
        auto& screen = machine.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
        user::pick(screen.Combo1, 0);
        click(screen.Command1);
        write(screen.Text1(0), TomsText);
        click(screen.Command4);
        machine.programm.unload(screen.name());
    }

    GsBasis& openMasterData() { return machine.open<GsBasis>(bildschirme::GsBasis); }

    [[nodiscard]] std::string stored() const {
        return utf8FromText(installation.read(u"Daten/AVSVspeicher.txt"));
    }

    // What the teacher does: the topmost action of this name, then the button for all of it.
    void bringBackAllBefore(TextView action) {
        machine.programm.unload(bildschirme::GsBasis);
        former.read();
        for (size_t i = 0; i < former.states().size(); ++i)
            if (former.states()[i].action == action) {
                former.choose(i);
                EXPECT_TRUE(former.bringBackAll());
                return;
            }
        ADD_FAILURE() << "no such action";
    }

    FormerStates former{machine.programm, guard, installation.path()};
};

TEST_F(FormerStatesTest, AChangeOfTheClassThatBlankedAllStoresComesBack) {
    writeToms();
    GsBasis& basis = openMasterData();
    machine.dialogs.answers = {Antwort::Ja, Antwort::Ja};
    click(basis.Command3);
    write(basis.Text1(5), u"4a");
    click(basis.Command1(0));
    ASSERT_EQ(stored().find("Tom hört"), std::string::npos);
    bringBackAllBefore(u"Alle Texte der Klasse geleert");
    EXPECT_THAT(stored(), HasSubstr("Tom hört zu."));
    EXPECT_EQ(installation.read(u"Daten/Namen.Txt").substr(0, 6), u"1,\"3a\"");
}

TEST_F(FormerStatesTest, TextsThatWereSortedAwayComeBackToTheirChildren) {
    writeToms();
    GsBasis& basis = openMasterData();
    machine.dialogs.answers = {Antwort::Ja};
    click(basis.Command5);
    click(basis.Command6);
    machine.programm.unload(basis.name());
    machine.dialogs.answers = {Antwort::Ja};
    machine.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    ASSERT_EQ(stored().find("Tom hört"), std::string::npos);

    // As long as the screen is open it would write over what has come back.
    former.read();
    former.choose(0);
    EXPECT_NE(former.obstacle(), u"");
    EXPECT_FALSE(former.bringBackPupil(u"Zander, Tom"));
    machine.programm.unload(bildschirme::GsArbeitsverhalten);

    // The class stays sorted; all of the action comes in its order, and so does one child.
    former.choose(0);
    EXPECT_TRUE(former.bringBackAll());
    EXPECT_THAT(stored(), HasSubstr("2,\"3a\",\"Zander\",\"Tom\",\"Tom hört zu.\""));
    former.choose(0);
    EXPECT_TRUE(std::any_of(former.differences().begin(), former.differences().end(),
                            [](const Difference& one) {
                                return one.pupil == u"Zander, Tom" && one.current == TomsText;
                            }));
    EXPECT_TRUE(former.bringBackPupil(u"Zander, Tom"));
    former.choose(0);
    EXPECT_TRUE(former.bringBackPupil(u"Zander, Tom"));
    EXPECT_THAT(stored(), HasSubstr("2,\"3a\",\"Zander\",\"Tom\",\"Tom hört zu.\""));
}

TEST_F(FormerStatesTest, ADeletedModuleComesBackAlone) {
    auto& editor = machine.open<GSAenderung34>(bildschirme::GSAenderung34);
    const Text before = installation.read(u"Daten/Interessen34.Txt");
    machine.dialogs.answers = {Antwort::Ja, Antwort::Ja};
    click(editor.Command1(1));
    click(editor.Command2(1));
    write(editor.Text3(0), u"");
    click(editor.Command5);
    machine.programm.unload(editor.name());
    ASSERT_NE(installation.read(u"Daten/Interessen34.Txt"), before);
    former.read();
    former.choose(0);
    ASSERT_FALSE(former.differences().empty());
    size_t wanted = 0;
    while (former.differences()[wanted].file != "Daten/Interessen34.Txt")
        ++wanted;
    EXPECT_EQ(former.differences()[wanted].current, u"");
    EXPECT_TRUE(former.bringBackText(wanted));
    EXPECT_EQ(installation.read(u"Daten/Interessen34.Txt").substr(0, 20), before.substr(0, 20));
}

std::vector<Kind> fullClass() {
    std::vector<Kind> kinder;
    kinder.reserve(SchuelerHoechstens);
    for (int i = 0; i < SchuelerHoechstens; ++i)
        kinder.push_back({u"Kind" + textFromNumber(99 - i), u"Eins", u"m"});
    return kinder;
}

class FullClass : public FormerStatesTest {
  protected:
    FullClass() : FormerStatesTest(fullClass()) {}
};

TEST_F(FullClass, AClassListThatSortingHasWipedComesBack) {
    const Text before = installation.read(u"Daten/Namen.Txt");
    {
        GsBasis& basis = openMasterData();
        machine.dialogs.answers = {Antwort::Ja, Antwort::Ja};
        click(basis.Command5);
        EXPECT_NE(tooManyPupils(basis.Command4(2)), u"");
        click(basis.Command4(2));
    }
    machine.programm.unload(bildschirme::GsBasis);
    GsBasis& basis = openMasterData();
    machine.dialogs.answers = {Antwort::Ja, Antwort::Ja};
    click(basis.Command5);
    click(basis.Command6);
    ASSERT_LT(installation.read(u"Daten/Namen.Txt").size(), before.size());
    bringBackAllBefore(u"Basisdaten gespeichert");
    EXPECT_EQ(installation.read(u"Daten/Namen.Txt"), before);
}

// The stores are blanked with the Yes, the half-year is written with the save.
TEST_F(FormerStatesTest, TheLastHalfYearsTextsAreKnownForGoodIfTheyWereKept) {
    Schueler tom;
    tom.Nachname = u"Zander";
    tom.Vorname = u"Tom";
    GsBasis& basis = openMasterData();
    EXPECT_FALSE(blanksTexts(basis.Command3, installation.path()).happens) << "nothing to lose";
    machine.programm.unload(basis.name());
    writeToms();
    GsBasis& school = openMasterData();
    EXPECT_TRUE(blanksTexts(school.Command3, installation.path()).atOnce);
    EXPECT_TRUE(blanksTexts(school.Command5, installation.path()).happens);
    EXPECT_FALSE(blanksTexts(school.Command6, installation.path()).happens);
    const Text before = termOf(installation.path());
    ASSERT_EQ(keepState(installation.path(), installation.path(), u"Fertig"), 0);
    const TestInstallation next;
    Text nextTerm = installation.read(u"Daten/Basisdaten.txt");
    nextTerm.replace(nextTerm.find(u'/') + 4, 1, u"9");
    next.write(u"Daten/Basisdaten.txt", nextTerm);
    ASSERT_EQ(keepState(installation.path(), next.path(), before), 0);
    EXPECT_EQ(LastTerm(next.path()).of(tom).size(), 1U) << "in the folder of the next half-year";
    machine.dialogs.answers = {Antwort::Ja};
    click(school.Command3);
    EXPECT_FALSE(LastTerm(installation.path()).isKnown()) << "the half-year is still the same";
    const Text other = school.Text1(4).text() == u"1" ? u"2" : u"1";
    click(school.Text1(4));
    school.Text1(4).setText(other);
    click(school.Command1(0));

    safety::States(installation.path()).thinOut(safety::now() + std::chrono::days(3));
    for (const bool lateInTheYear : {false, true}) {
        if (lateInTheYear)
            safety::States(installation.path()).thinOut(safety::now() + std::chrono::days(170));
        const LastTerm last(installation.path());
        ASSERT_TRUE(last.isKnown());
        EXPECT_EQ(last.name(), before);
        ASSERT_EQ(last.of(tom).size(), 1U);
        EXPECT_EQ(last.of(tom)[0].text, TomsText);
        EXPECT_EQ(last.of(tom)[0].heading, u"Arbeitsverhalten");
    }
    safety::States(installation.path()).thinOut(safety::now() + std::chrono::days(400));
    ASSERT_EQ(safety::States(installation.path()).list().size(), 1U);
    EXPECT_EQ(safety::States(installation.path()).list()[0].action, u"Aufgehoben: Fertig");
    EXPECT_TRUE(LastTerm(installation.path()).isKnown());
}

} // namespace
} // namespace zeugnis::rescue::test
