#include "comfort/class_overview.h"

#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/test_programm.h"

namespace zeugnis::test {
namespace {

constexpr TextView Long =
    u" arbeitet im Unterricht immer aufmerksam mit und bringt eigene Gedanken in das Gespräch der "
    u"Klasse ein. In Gruppen hilft # anderen Kindern gern und hält sich dabei an alle Regeln, die "
    u"wir gemeinsam vereinbart haben.";

Text about(const Text& name, const Text& pronoun, const Text& more = {}) {
    Text text = name + Text(Long) + more;
    text.replace(text.find(u'#'), 1, pronoun);
    return text;
}

TEST(ClassOverview, FindsTwinsBehindNamesAndPronounsAndMarksWhatDiffers) {
    const auto alike = [](const Text& tom, const Text& lena) {
        return SindFastGleich(VergleichswoerterVon(tom, u"Tom"),
                              VergleichswoerterVon(lena, u"Lena"));
    };
    EXPECT_TRUE(alike(about(u"Tom", u"er"), about(u"Lena", u"sie")));
    EXPECT_TRUE(alike(about(u"Tom", u"er", u" Prima."), about(u"Lena", u"sie")));
    EXPECT_FALSE(
        alike(about(u"Tom", u"er", u" Das Rechnen fällt noch schwer."), about(u"Lena", u"sie")));
    EXPECT_FALSE(alike(u"Tom liest gern.", u"Lena liest gern.")) << "short ones may well be alike";

    const Text left = u"Tom liest. Er malt gern.";
    const auto [here, there] = UnterschiedeZwischen(left, u"Anna Lena liest. Sie malt.");
    Text marked;
    for (const Textstelle& place : here)
        marked += left.substr(place.Anfang, place.Laenge) + u"|";
    EXPECT_EQ(marked, u"Tom|Er|gern|");
    ASSERT_EQ(there.size(), 2U);
    EXPECT_EQ(there[0].Laenge, 9U) << "neighbours are one";
}

// Children, pages and texts that have been asked about.
TEST(ClassOverview, LooksAtATextOnceAndAtTwinsWhenOneOfThemChanges) {
    const TestInstallation installation(
        {{u"Ahlers", u"Tom", u"m"}, {u"Boll", u"Lena", u"w"}, {u"Celik", u"Emir", u"m"}});
    TestProgramm program(installation);
    auto& screen = program.open<GsArbeitsverhalten>(bildschirme::GsArbeitsverhalten);
    std::vector<Textfrage> asked;
    bool known = false;
    Klassenuebersicht overview(*EingabeschirmAus(screen), [&](const Textfrage& question) {
        asked.push_back(question);
        return known ? std::optional(std::vector<Text>(question.Zwillinge.size(), u"Zwilling."))
                     : std::nullopt;
    });
    const auto type = [&](int child, const Text& text) {
        user::pick(screen.Combo1, child);
        user::click(screen.Command1);
        user::click(screen.Text1(0));
        screen.Text1(0).setText(text);
        asked.clear();
        return overview.Staende();
    };
    type(0, about(u"Tom", u"er"));
    EXPECT_EQ(overview.Staende()[0].Seiten[0].Stand, Seitenstand::MitText);
    EXPECT_EQ(asked.size(), 2U) << "not known is asked again";
    known = true;
    type(1, about(u"Lena", u"sie"));
    ASSERT_EQ(asked.size(), 2U);
    asked.clear();
    const auto states = overview.Staende();
    EXPECT_EQ(asked.size(), 0U);
    for (const size_t child : {0U, 1U}) {
        EXPECT_EQ(states[child].Seiten[0].Stand, Seitenstand::MitHinweis);
        EXPECT_EQ(states[child].Seiten[0].Zwillinge,
                  (std::vector<Zwilling>{{static_cast<int>(1 - child), false}}));
    }
    type(2, u"Emir liest.");
    EXPECT_EQ(asked.size(), 1U) << "one text has changed";
    EXPECT_EQ(type(1, u"Lena malt.")[0].Seiten[0].Stand, Seitenstand::MitText);
    EXPECT_EQ(asked.size(), 2U) << "the twin is none any more";
}

} // namespace
} // namespace zeugnis::test
