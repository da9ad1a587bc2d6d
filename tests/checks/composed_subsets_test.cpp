#include "checks/hunspell_spelling.h"
#include "checks/text_checks.h"
#include "tests/support/model_driver.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

// Composes every subset of the groups of every page, for a boy and a girl, and counts how many of
// the broken texts are found and how many of the right ones raise an alarm. What is right is told
// by the modules alone: each choice is a sentence of its own.

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

constexpr int OnlyOne = 0; // the one button of its group, which has the index 1

struct Group {
    std::string Control;
    int Options;
    std::string Label;
};

struct Page {
    std::string Screen;
    int Number;
    std::vector<Group> Groups;
};

const std::vector<Page>& pages() {
    static const std::vector<Page> All = {
        {"Kompetenzen", 1, {{"Option2", 4, ""}, {"Option3", 4, ""}, {"Option44", 4, ""}}},
        {"Kompetenzen",
         2,
         {{"Option4", 7, ""},
          {"Option5", 7, ""},
          {"Option6", 7, ""},
          {"Option7", 4, ""},
          {"Option8", 4, ""},
          {"Option45", 4, ""}}},
        {"Kompetenzen",
         3,
         {{"Option9", 4, ""},
          {"Option10", 4, ""},
          {"Option11", 4, "Label9"},
          {"Option12", 4, "Label4"},
          {"Option13", 6, "Label8"},
          {"Option24", 6, "Label10"}}},
        {"Kompetenzen",
         4,
         {{"Option14", 5, "Label11"},
          {"Option35", 2, "Label12"},
          {"Option15", 5, "Label12"},
          {"Option16", 6, "Label13"},
          {"Option20", 4, "Label14"},
          {"Option28", OnlyOne, ""},
          {"Option25", 5, "Label15"}}},
        {"Kompetenzen",
         5,
         {{"Option17", 3, "Label17"},
          {"Option18", 3, "Label18"},
          {"Option19", 3, "Label19"},
          {"Option26", 3, "Label20"},
          {"Option27", 4, "Label21"}}},
        {"Kompetenzen",
         6,
         {{"Option29", 3, "Label22"},
          {"Option30", 3, "Label23"},
          {"Option31", 3, "Label24"},
          {"Option32", 4, "Label25"},
          {"Option33", 4, "Label26"},
          {"Option34", 4, "Label27"}}},
    };
    return All;
}

struct Sex {
    const char16_t* Name;
    const char16_t* Letter;
    int Form; ///< 0 male, 1 female
};
constexpr std::array<Sex, 2> Sexes = {{{u"Mats", u"m", 0}, {u"Lena", u"w", 1}}};

Text expanded(Text text, const Sex& sex) {
    const std::vector<std::pair<Text, std::array<Text, 2>>> forms = {
        {u"<Vorname>", {sex.Name, sex.Name}}, {u"<Er/Sie>", {u"Er", u"Sie"}},
        {u"<sie/er>", {u"er", u"sie"}},       {u"<ihr/ihm>", {u"ihm", u"ihr"}},
        {u"<Ihm/Ihr>", {u"Ihm", u"Ihr"}},     {u"<ihr/sein>", {u"sein", u"ihr"}},
    };
    for (const auto& [mark, form] : forms)
        for (size_t i = text.find(mark); i != Text::npos; i = text.find(mark))
            text.replace(i, mark.size(), form.at(static_cast<size_t>(sex.Form)));
    return text;
}

// One blank between words, none at the ends.
Text squeezed(const Text& text) {
    Text result;
    for (const char16_t unit : text)
        if (unit != u' ' || (!result.empty() && result.back() != u' '))
            result += unit;
    return trimmed(result);
}

class DriverRun {
  public:
    explicit DriverRun(const fs::path& folder) : m_folder(folder) {}

    void say(const std::string& line) { m_script += line + "\n"; }
    void get(const std::string& property) { say("get " + property); }

    /// The texts that were asked for, in their order.
    std::vector<Text> results() {
        std::ostringstream events;
        EXPECT_EQ(test::ModelDriver(events, m_folder).play(m_script + "quit\n"), 0) << events.str();
        EXPECT_EQ(events.str().find("unreachable"), std::string::npos) << events.str();
        return test::textsIn(events.str());
    }

  private:
    fs::path m_folder;
    std::string m_script;
};

class ComposedSubsets : public testing::TestWithParam<const char16_t*> {
  protected:
    ComposedSubsets() {
        const Text klasse = GetParam();
        const fs::path modules = fs::path(ZEUGNIS_SOURCE_FOLDER) / "install";
        fs::copy(modules, installation.path(),
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        const std::vector<test::Kind> children = {{u"Ahlers", u"Mats", u"m"},
                                                  {u"Bäcker", u"Lena", u"w"}};
        installation.klassenliste(klasse, children);
        installation.leereSpeicher(klasse, children);
        for (const TextView file : {u"Daten/12Speicher.txt", u"Daten/12Sperre.txt"}) {
            const bool locks = file.ends_with(u"Sperre.txt");
            Text content;
            for (size_t i = 0; i < children.size(); ++i) {
                content += textFromNumber(static_cast<int>(i) + 1) + u",\"" + klasse + u"\",\"" +
                           children[i].Nachname + u"\",\"" + children[i].Vorname + u"\"";
                for (int field = 0; field < 8; ++field)
                    content += locks ? u",0" : u",\"\"";
                content += u"\r\n";
            }
            installation.write(file, content);
        }
        Arbeitsverzeichnis verzeichnis(installation.path());
        words = BausteinwoerterLesen(verzeichnis);
        dictionary = DeutscheRechtschreibung();
    }

    [[nodiscard]] bool isYearOne() const { return GetParam()[0] == u'1'; }

    [[nodiscard]] std::vector<Group> groupsOf(const Page& page) const {
        std::vector<Group> groups = page.Groups;
        if (isYearOne())
            std::erase_if(groups, [](const Group& group) { return group.Control == "Option25"; });
        return groups;
    }

    static std::string control(const Page& page, const Group& group, int variant) {
        const int index = group.Options == OnlyOne ? 1 : variant % group.Options;
        return page.Screen + "." + group.Control + "(" + std::to_string(index) + ")";
    }

    void open(DriverRun& run, const Page& page, int child) const {
        run.say("start");
        run.say("click GsStart.Command1(1)");
        run.say("select Kompetenzen.Combo1 " + std::to_string(child));
        run.say("click Kompetenzen.Command1(" + std::to_string(page.Number) + ")");
    }

    // The sentence that each group gives.
    std::vector<Text> sentencesOf(const Page& page, const Sex& sex, int variant) const {
        DriverRun run(installation.path());
        open(run, page, sex.Form);
        const std::vector<Group> groups = groupsOf(page);
        for (const Group& group : groups) {
            run.get(control(page, group, variant) + ".Caption");
            if (!group.Label.empty())
                run.get(page.Screen + "." + group.Label + ".Caption");
        }
        const std::vector<Text> captions = run.results();
        std::vector<Text> sentences;
        size_t next = 0;
        for (const Group& group : groups) {
            Text sentence = captions.at(next++);
            if (!group.Label.empty())
                sentence.insert(0, captions.at(next++) + u" ");
            if (!sentence.ends_with(u'.'))
                sentence += u'.';
            sentences.push_back(expanded(sentence, sex));
        }
        return sentences;
    }

    std::vector<Text> composed(const Page& page, const Sex& sex, int variant) const {
        DriverRun run(installation.path());
        open(run, page, sex.Form);
        const std::string box = page.Screen + ".Text1(" + std::to_string(page.Number) + ")";
        const std::vector<Group> groups = groupsOf(page);
        for (unsigned subset = 1; subset < 1U << groups.size(); ++subset) {
            for (size_t i = 0; i < groups.size(); ++i)
                if ((subset >> i & 1U) != 0)
                    run.say("click " + control(page, groups[i], variant));
            run.get(box + ".Text");
            run.say("click " + box);
            run.say("click " + page.Screen + ".Command4");
        }
        return run.results();
    }

    // What the subset should read; empty if it leaves a sentence open.
    Text ideal(const Page& page, const std::vector<Text>& sentences, unsigned subset) const {
        const std::vector<Group> groups = groupsOf(page);
        Text text;
        for (size_t i = 0; i < groups.size(); ++i) {
            if ((subset >> i & 1U) == 0)
                continue;
            Text sentence = sentences[i];
            if (groups[i].Control == "Option35") { // goes on with the next group
                if ((subset >> (i + 1) & 1U) == 0)
                    return {};
                sentence.pop_back();
                const Text& next = sentences[i + 1];
                const Text label = next.substr(0, next.find(u"rechnet"));
                const Text verb = next.substr(label.size());
                const size_t behind = verb.find(u' ', verb.find(u' ') + 1);
                text += (text.empty() ? u"" : u" ") + sentence + verb.substr(behind);
                ++i;
                continue;
            }
            text += (text.empty() ? u"" : u" ") + sentence;
        }
        return text;
    }

    test::TestInstallation installation;
    Bausteinwoerter words;
    std::unique_ptr<Rechtschreibung> dictionary;
};

TEST_P(ComposedSubsets, EveryBrokenOneIsFoundAndNoOtherRaisesAnAlarm) {
    const std::set<Text> names = {u"Mats", u"Lena"};
    int total = 0;
    int broken = 0;
    int missed = 0;
    int alarms = 0;
    for (const Page& page : pages())
        for (const Sex& sex : Sexes)
            for (const int variant : {0, 1, 2, 3}) {
                const std::vector<Text> sentences = sentencesOf(page, sex, variant);
                const std::vector<Text> texts = composed(page, sex, variant);
                for (size_t i = 0; i < texts.size(); ++i) {
                    const Text right = ideal(page, sentences, static_cast<unsigned>(i) + 1);
                    const bool isBroken = right.empty() || squeezed(texts[i]) != right;
                    const Textumstand about{.Vorname = sex.Name,
                                            .Geschlecht = sex.Letter,
                                            .Bausteine = &words,
                                            .Woerterbuch = dictionary.get(),
                                            .Bekannt = &names};
                    const auto found = TextPruefen(texts[i], about);
                    ++total;
                    broken += isBroken ? 1 : 0;
                    missed += isBroken && found.empty() ? 1 : 0;
                    alarms += !isBroken && !found.empty() ? 1 : 0;
                    if (isBroken == found.empty())
                        ADD_FAILURE()
                            << (isBroken ? "missed: " : "alarm: ") << utf8FromText(texts[i])
                            << (found.empty() ? "" : " at " + utf8FromText(found[0].Stelle));
                }
            }
    RecordProperty("total", total);
    std::cout << total << " texts, " << broken << " broken, " << missed << " of them missed, "
              << alarms << " false alarms\n";
    EXPECT_GT(broken, 0);
}

// Work and social behaviour: whatever is chosen is composed to whole sentences.
TEST_P(ComposedSubsets, NoTextOnBehaviourRaisesAnAlarm) {
    const std::set<Text> names = {u"Mats", u"Lena"};
    int total = 0;
    for (const Sex& sex : Sexes)
        for (int line = 1; line <= 9; ++line)
            for (const auto& [button, box, categories] :
                 {std::tuple("Command1", 0, 7), {"Command2", 1, 6}}) {
                DriverRun run(installation.path());
                run.say("start\nclick GsStart.Command1(0)");
                run.say("select GsArbeitsverhalten.Combo1 " + std::to_string(sex.Form));
                run.say(std::string("click GsArbeitsverhalten.") + button);
                for (unsigned subset = 1; subset < 1U << static_cast<unsigned>(categories);
                     ++subset) {
                    for (int i = 0; i < categories; ++i) {
                        const bool isRating = i == categories - 1;
                        const bool isChosen = (subset >> static_cast<unsigned>(i) & 1U) != 0;
                        if (!isChosen || (isRating && line > 5))
                            continue;
                        run.say("click GsArbeitsverhalten.Command3(" + std::to_string(i) + ")");
                        run.say("click GsArbeitsverhalten.Option1(" + std::to_string(line) + ")");
                    }
                    const std::string text =
                        "GsArbeitsverhalten.Text1(" + std::to_string(box) + ")";
                    run.get(text + ".Text");
                    run.say("click " + text);
                    run.say("click GsArbeitsverhalten.Command6");
                }
                for (const Text& text : run.results()) {
                    const auto found = TextPruefen(text, {.Vorname = sex.Name,
                                                          .Geschlecht = sex.Letter,
                                                          .Bausteine = &words,
                                                          .Woerterbuch = dictionary.get(),
                                                          .Bekannt = &names});
                    ++total;
                    if (!found.empty())
                        ADD_FAILURE() << "alarm: " << utf8FromText(text) << " at "
                                      << utf8FromText(found[0].Stelle);
                }
            }
    std::cout << total << " texts\n";
}

INSTANTIATE_TEST_SUITE_P(Years, ComposedSubsets, testing::Values(u"1a", u"2b"),
                         [](const auto& one) { return utf8FromText(one.param); });

} // namespace
} // namespace zeugnis
