#include "checks/hunspell_spelling.h"
#include "checks/text_checks.h"
#include "tests/support/model_driver.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <sstream>

// As composed_subsets_test.cpp, for the pages whose sentences are made of several choices:
// interests, support and working groups, remarks. Here it is the choices that tell what is broken.

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

struct Page {
    const char16_t* Class;
    const char16_t* HalfYear;
    std::string Screen;
    std::string Start;
    std::string Button;
    std::string Box;
    std::string Reset;
    std::vector<std::string> Choices;
    std::function<bool(unsigned)> IsBroken; ///< of the choices as bits, the first the lowest
};

bool never(unsigned) { return false; }

// "Mats hat" + "im Lesen" + "gute Fortschritte gemacht, …": only the middle may be missing.
bool isPartOfAProgress(unsigned choices) {
    const unsigned progress = choices & 7U;
    return progress != 0 && progress != 5U && progress != 7U;
}

// "In" + subjects + what is said of them.
bool lacksTheEndOfAList(unsigned choices) { return (choices & 6U) != 0 && (choices & 8U) == 0; }

const std::vector<Page>& pages() {
    const auto page12 = [](const char16_t* halfYear, int number, std::vector<std::string> choices,
                           bool (*isBroken)(unsigned)) {
        const std::string index = "(" + std::to_string(number) + ")";
        return Page{u"2b",         halfYear,           "Kompetenzen",
                    "Command1(1)", "Command1" + index, "Text1" + index,
                    "Command4",    std::move(choices), isBroken};
    };
    const auto page34 = [](const char16_t* klasse, const char16_t* halfYear, int number,
                           std::vector<std::string> choices, bool (*isBroken)(unsigned)) {
        return Page{klasse,
                    halfYear,
                    "GSAGFI",
                    "Command1(2)",
                    "Command2(" + std::to_string(number) + ")",
                    "Text" + std::to_string(number + 1),
                    "Command1(2)",
                    std::move(choices),
                    isBroken};
    };
    const std::vector<std::string> remarks = {"Option2(0)", "Check5(1)", "Option3(0)",
                                              "Check2(0)",  "Check2(2)", "Option4(0)"};
    const std::vector<std::string> others = {"Option2(1)", "Check5(3)", "Option3(1)",
                                             "Check2(1)",  "Check2(2)", "Option4(3)"};
    static const std::vector<Page> All = {
        page12(u"1", 0, {"Option1(3)", "Check1(0)", "Check1(1)", "Check1(2)", "Check1(3)"}, never),
        page12(u"1", 7, {"Check2(1)", "Check3(0)", "Check3(7)", "Option23(1)"}, lacksTheEndOfAList),
        page12(u"2", 7, {"Check2(1)", "Check3(0)", "Check3(7)", "Option21(0)"}, never),
        page12(u"2", 7, {"Check2(1)", "Check3(2)", "Check3(5)", "Option21(3)"}, never),
        page34(u"3a", u"1", 0, {"Check1(0)", "Check1(3)", "Check1(5)", "Option6(2)"}, never),
        page34(u"3a", u"1", 1, {"Option1(1)", "Check3(0)", "Check3(3)", "Check3(6)"}, never),
        page34(u"3a", u"1", 2, remarks, isPartOfAProgress),
        page34(u"3a", u"2", 2, others, isPartOfAProgress),
        page34(u"4c", u"1", 2, others, isPartOfAProgress),
        page34(u"4c", u"2", 2, remarks, isPartOfAProgress),
    };
    return All;
}

class ComposedRemarks : public test::TestInstallation {
  public:
    explicit ComposedRemarks(const Page& page) : m_page(page) {
        fs::copy(fs::path(ZEUGNIS_SOURCE_FOLDER) / "install", path(),
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        const std::vector<test::Kind> children = {{u"Ahlers", u"Mats", u"m"},
                                                  {u"Bäcker", u"Lena", u"w"}};
        basisdaten(page.HalfYear, u"Grete Groß");
        klassenliste(page.Class, children);
        leereSpeicher(page.Class, children);
        for (const TextView file : {u"Daten/12Speicher.txt", u"Daten/12Sperre.txt"}) {
            Text content;
            for (size_t i = 0; i < children.size(); ++i) {
                content += textFromNumber(static_cast<int>(i) + 1) + u",\"" + page.Class +
                           u"\",\"" + children[i].Nachname + u"\",\"" + children[i].Vorname + u"\"";
                for (int field = 0; field < 8; ++field)
                    content += file.ends_with(u"Sperre.txt") ? u",0" : u",\"\"";
                content += u"\r\n";
            }
            write(file, content);
        }
    }

    /// The text of each subset, from that of the first choice alone on.
    [[nodiscard]] std::vector<Text> texts(int child) const {
        const std::string screen = m_page.Screen + ".";
        std::string script = "start\nclick GsStart." + m_page.Start + "\nselect " + screen +
                             "Combo1 " + std::to_string(child) + "\nclick " + screen +
                             m_page.Button + "\n";
        for (unsigned subset = 1; subset < 1U << m_page.Choices.size(); ++subset) {
            for (size_t i = 0; i < m_page.Choices.size(); ++i)
                if ((subset >> i & 1U) != 0)
                    script.append("click ").append(screen).append(m_page.Choices[i]).append("\n");
            script.append("get ").append(screen).append(m_page.Box).append(".Text\nclick ");
            script.append(screen).append(m_page.Box).append("\nclick ");
            script.append(screen).append(m_page.Reset).append("\n");
        }
        std::ostringstream events;
        EXPECT_EQ(test::ModelDriver(events, path()).play(script + "quit\n"), 0) << events.str();
        return test::textsIn(events.str());
    }

  private:
    const Page& m_page;
};

TEST(ComposedRemarks, EveryBrokenOneIsFoundAndNoOtherRaisesAnAlarm) {
    const std::set<Text> names = {u"Mats", u"Lena"};
    const auto dictionary = DeutscheRechtschreibung();
    int total = 0;
    int broken = 0;
    for (const Page& page : pages()) {
        const ComposedRemarks installation(page);
        Arbeitsverzeichnis verzeichnis(installation.path());
        const Bausteinwoerter words = BausteinwoerterLesen(verzeichnis);
        for (const int child : {0, 1}) {
            const std::vector<Text> texts = installation.texts(child);
            ASSERT_EQ(texts.size(), (1U << page.Choices.size()) - 1);
            for (size_t i = 0; i < texts.size(); ++i) {
                const bool isBroken = page.IsBroken(static_cast<unsigned>(i) + 1);
                const auto found = TextPruefen(texts[i], {.Vorname = child == 0 ? u"Mats" : u"Lena",
                                                          .Geschlecht = child == 0 ? u"m" : u"w",
                                                          .Bausteine = &words,
                                                          .Woerterbuch = dictionary.get(),
                                                          .Bekannt = &names});
                ++total;
                broken += isBroken ? 1 : 0;
                EXPECT_EQ(!found.empty(), isBroken)
                    << (isBroken ? "missed: " : "alarm: ") << utf8FromText(texts[i])
                    << (found.empty() ? "" : " at " + utf8FromText(found[0].Stelle));
            }
        }
    }
    std::cout << total << " texts, " << broken << " broken\n";
}

} // namespace
} // namespace zeugnis
