#include "review/insertion_window.h"

#include "common/screen_names.h"
#include "controls/user_actions.h"
#include "tests/support/failure_of.h"
#include "tests/support/test_programm.h"

namespace zeugnis::test {
namespace {

class InsertionWindow : public testing::Test {
  protected:
    Einfuegungen& open(int activeForm) {
        installation.write(u"Daten/AktivForm.txt", textFromNumber(activeForm) + u"\r\n");
        program.emplace(installation);
        return program->open<Einfuegungen>(bildschirme::Einfuegungen);
    }
    // What each entry puts on a clipboard that holds "alt".
    std::vector<Text> offered(Einfuegungen& window) {
        std::vector<Text> texts;
        for (int i = 0; i < static_cast<int>(window.List1.entries().size()); ++i) {
            program->clipboard.setText(u"alt");
            texts.push_back(failureOf([&] { user::pick(window.List1, i); }) == "none"
                                ? program->clipboard.text()
                                : u"failure");
        }
        return texts;
    }
    Clipboard& clipboard() { return program->clipboard; }

    TestInstallation installation;
    std::optional<TestProgramm> program;
};

using Texts = std::vector<Text>;
constexpr TextView Strich = u"\r\n___________________________";

TEST_F(InsertionWindow, OffersThePhrasesOfTheEntryScreen) {
    const Texts behaviour = {u"sehr", u"als Sprecher<in>"};
    const Texts yearGroups = {u"oft"};
    for (const int form : {0, 1, 2}) {
        Einfuegungen& window = open(form);
        EXPECT_EQ(window.List1.entries(), form == 0 ? behaviour : yearGroups);
        EXPECT_EQ(offered(window), window.List1.entries());
        EXPECT_TRUE(window.Command1(0).Visible && window.Command1(2).Visible);
    }
}

TEST_F(InsertionWindow, OffersFewPlaceholdersToTheBehaviourEditor) {
    Einfuegungen& window = open(4);
    EXPECT_EQ(window.List1.entries(),
              (Texts{u"<p0>            h0\r\n", Text(Strich), u"<p1>        h1\r\n",
                     u"<p2>           h2\r\n", u"<p4>           h4\r\n", u"<p6>           h6\r\n",
                     u"<p8>                    h8\r\n"}));
    EXPECT_EQ(offered(window), (Texts{u"", u"", u"<p1>", u"<p2>", u"<p4>", u"<p6>", u"<p8>"}));
    EXPECT_FALSE(window.Command1(0).Visible || window.Command1(1).Visible);
}

TEST_F(InsertionWindow, OffersAllPlaceholdersToTheYearGroupEditors) {
    Einfuegungen& window = open(5);
    EXPECT_EQ(window.List1.entries(),
              (Texts{u"<p0>            h0\r\n", Text(Strich), u"<p1>        h1\r\n",
                     u"<p2>           h2\r\n", u"<p3>             h3\r\n", u"<p4>           h4\r\n",
                     u"<p5>            h5\r\n", u"<p6>           h6\r\n", u"<p7>          h7\r\n",
                     u"<p8>                    h8\r\n", u"<p9>        h9\r\n",
                     u"<p10>         h10\r\n", u"<p11>      h11\r\n"}));
    EXPECT_EQ(offered(window),
              (Texts{u"failure", u"<p0>", u"<p1>", u"<p2>", u"<p3>", u"<p4>", u"<p5>", u"<p6>",
                     u"<p7>", u"<p8>", u"<p9>", u"<p10>", u"<p11>"}));
    EXPECT_EQ(failureOf([&] { user::pick(window.List1, 0); }), "index-out-of-range");
}

TEST_F(InsertionWindow, OffersNothingElsewhere) {
    for (const int form : {-1, 3, 6, 7}) {
        Einfuegungen& window = open(form);
        EXPECT_EQ(window.List1.entries(), Texts{});
        EXPECT_TRUE(window.Check1.value() && window.AlwaysOnTop);
    }
}

TEST_F(InsertionWindow, KeepsTheFormThatItWasLoadedWith) {
    Einfuegungen& window = open(1);
    installation.write(u"Daten/AktivForm.txt", u"0\r\n");
    user::click(window.Command1(1));
    EXPECT_EQ(window.List1.entries(), Texts{});
    EXPECT_EQ(installation.read(u"Daten/Einfügungen2.txt"),
              u"\"Es sind keine Eintragungen vorhanden\"\r\n");
    EXPECT_EQ(installation.read(u"Daten/Einfügungen1.txt"),
              u"\"sehr\"\r\n\"als Sprecher<in>\"\r\n");
    EXPECT_EQ(open(2).List1.entries(), Texts{u"Es sind keine Eintragungen vorhanden"});
}

TEST_F(InsertionWindow, KeepsTheEleventhDoubleQuoteOfANewText) {
    Einfuegungen& window = open(0);
    program->dialogs.inputs = {std::nullopt, u"", u"1\"2\"3\"4\"5\"6\"7\"8\"9\"10\"11\"", u"Łódź"};
    for (int i = 0; i < 2; ++i) {
        clipboard().setText(u"alt");
        user::click(window.Command1(2));
        EXPECT_EQ(clipboard().text(), u"");
        EXPECT_EQ(installation.read(u"Daten/Einfügungen1.txt"),
                  u"\"sehr\"\r\n\"als Sprecher<in>\"\r\n");
    }
    user::click(window.Command1(2));
    user::click(window.Command1(2));
    EXPECT_EQ(installation.read(u"Daten/Einfügungen1.txt"),
              u"\"sehr\"\r\n\"als Sprecher<in>\"\r\n\"1'2'3'4'5'6'7'8'9'10'11\"\"\r\n"
              u"\"Lódz\"\r\n")
        << "what the files cannot hold takes its nearest form";
}

TEST_F(InsertionWindow, NeedsASelectionToDelete) {
    Einfuegungen& window = open(0);
    EXPECT_EQ(failureOf([&] { user::click(window.Command1(0)); }), "invalid-call");
    EXPECT_EQ(installation.read(u"Daten/Einfügungen1.txt"),
              u"\"sehr\"\r\n\"als Sprecher<in>\"\r\n");
}

TEST_F(InsertionWindow, MissingOrTooLongFilesFail) {
    for (const TextView file :
         {u"Daten/Einfügungen1.txt", u"Daten/AktivForm.txt", u"Daten/Platzhalter.txt"}) {
        installation.remove(file);
        program.emplace(installation);
        EXPECT_EQ(failureOf([&] { program->programm.load(bildschirme::Einfuegungen); }),
                  "file-not-found")
            << utf8FromText(file);
    }
    Text rows;
    for (int row = 1; row <= 31; ++row)
        rows += textFromNumber(row) + u",\"<x>\",\"y\"\r\n";
    for (const TextView surplus : {u"", u"32,\"<x>\",\"y\"\r\n"}) {
        installation.write(u"Daten/Platzhalter.txt", rows + Text(surplus));
        EXPECT_EQ(failureOf([&] { open(5); }), surplus.empty() ? "none" : "index-out-of-range");
    }
}

} // namespace
} // namespace zeugnis::test
