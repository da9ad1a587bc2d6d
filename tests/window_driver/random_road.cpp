#include "tests/window_driver/random_road.h"

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/screen.h"
#include "controls/text_box.h"
#include "driver/driver.h"
#include "driver/model_hand.h"
#include "program/all_screens.h"
#include "review/insertion_window.h"
#include "tests/support/test_installation.h"
#include "tests/window_driver/stage.h"
#include "tests/window_driver/window_hand.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <random>
#include <sstream>

namespace zeugnis::windowdriver {
namespace {
namespace fs = std::filesystem;

constexpr std::array<const char*, 9> Texts = {
    "\"Sie lacht.\"", "\"a\"",        "\"\\\"so\\\"\"",    "\"<Vorname> und <sie/er>\"",
    "\"\"",           "\"  zwei  \"", "\"ein\\r\\nzwei\"", "\"ł€ß é\"",
    "\"12\""};
constexpr std::array<int, 7> Keys = {8, 8, 13, 34, 50, 97, 228};

/// Chooses what to do next by what the control model has to offer.
class RoadFinder {
    size_t below(size_t bound) {
        return std::uniform_int_distribution<size_t>(0, bound - 1)(m_chance);
    }

    template <typename Range>
    auto oneOf(const Range& range) {
        return range[below(range.size())];
    }

  public:
    explicit RoadFinder(unsigned seed) : m_chance(seed) {}

    std::vector<std::string> beginning() {
        constexpr int Answers = 30;
        std::vector<std::string> commands;
        commands.reserve(2 * Answers + 1);
        for (int i = 0; i < Answers; ++i)
            commands.push_back("answer " + oneOf(std::array<std::string, 2>{"yes", "no"}));
        for (int i = 0; i < Answers; ++i)
            commands.push_back("input " + (below(6) == 0 ? "cancel" : line()));
        commands.emplace_back("start");
        return commands;
    }

    std::string next(const Programm& program) {
        const std::vector<Screen*>& screens = program.screens();
        if (below(12) == 0)
            return "dump " + utf8FromText(screens[below(screens.size())]->name());
        if (below(40) == 0)
            return oneOf(std::array<std::string, 4>{"screens", "clipboard", "clipboard " + text(),
                                                    "clipboard clear"});
        // Mostly in the screen that was opened last.
        const Screen& screen =
            below(4) == 0 ? *screens[below(screens.size())] : *lastShown(screens);
        const bool isStart = screen.name() == bildschirme::GsStart;
        if (isStart && screens.size() < 3 && below(2) == 0)
            return opening(screen);
        if (below(60) == 0 && screen.shown() && !isStart)
            return "close " + utf8FromText(screen.name());
        if (below(60) == 0)
            return "blur " + utf8FromText(screen.name());
        return at(reachableOne(screen));
    }

  private:
    std::string text() { return oneOf(Texts); }

    // The line of an input box takes no line end.
    std::string line() {
        const std::string chosen = text();
        return chosen.find("\\n") == std::string::npos ? chosen : "\"zwei\"";
    }

    static const Screen* lastShown(const std::vector<Screen*>& screens) {
        const auto found = std::find_if(screens.rbegin(), screens.rend(),
                                        [](const Screen* screen) { return screen->shown(); });
        return *found;
    }

    std::string opening(const Screen& start) {
        const std::string name = "click " + utf8FromText(start.name());
        if (below(3) == 0)
            return name + oneOf(std::array<std::string, 2>{".Command2", ".Command3"});
        return name + ".Command1(" + std::to_string(below(7)) + ")";
    }

    // What the windows keep back: see README.md.
    static bool isHeldBack(const Control& control) {
        const auto* insertions = dynamic_cast<const Einfuegungen*>(&control.screen());
        return insertions != nullptr && &control == &insertions->Command1(0) &&
               !insertions->EintragGewaehlt();
    }

    size_t entryOf(const ListControl& list) {
        const auto* insertions = dynamic_cast<const Einfuegungen*>(&list.screen());
        const size_t held = insertions != nullptr && insertions->KopfzeileBeendet() ? 1 : 0;
        return held + below(list.entries().size() - held);
    }

    // Some commands go to what cannot be reached, but not most of them.
    const Control& reachableOne(const Screen& screen) {
        const auto& controls = screen.controls();
        const Control* control = oneOf(controls);
        for (int i = 0; (i < 6 && !control->reachable()) || isHeldBack(*control); ++i)
            control = oneOf(controls);
        return *control;
    }

    std::string at(const Control& control) {
        const std::string name = utf8FromText(control.screen().name() + u"." + control.fullName());
        if (dynamic_cast<const Timer*>(&control) != nullptr)
            return "tick " + name;
        if (const auto* box = dynamic_cast<const TextBox*>(&control))
            return inBox(*box, name);
        if (const auto* list = dynamic_cast<const ListControl*>(&control))
            if (!list->entries().empty() && below(5) != 0)
                return "select " + name + ' ' + std::to_string(entryOf(*list));
        constexpr std::array<const char*, 10> Actions = {"click", "click",   "click", "click",
                                                         "click", "click",   "click", "dblclick",
                                                         "focus", "dblclick"};
        return std::string(oneOf(Actions)) + ' ' + name;
    }

    std::string inBox(const TextBox& box, const std::string& name) {
        switch (below(9)) {
        case 0:
            return "focus " + name;
        case 1:
            return "dblclick " + name;
        case 2:
            return "key " + name + ' ' + std::to_string(oneOf(Keys));
        case 3:
            return "paste " + name + ' ' + text();
        case 4:
            return "settext " + name + ' ' + text();
        case 5:
            return "caret " + name + ' ' + std::to_string(placeIn(box)) + ' ' +
                   std::to_string(placeIn(box));
        case 6:
            return "click " + name;
        default:
            return "type " + name + ' ' + text();
        }
    }

    // Not between the two characters of a line end, where no caret can stand.
    size_t placeIn(const TextBox& box) {
        const size_t place = below(box.text().size() + 2);
        const bool splits = place > 0 && place < box.text().size() &&
                            TextView(box.text()).substr(place - 1, 2) == Zeilenende;
        return splits ? place - 1 : place;
    }

    std::mt19937 m_chance;
};

/// The control model and the windows side by side, each on its own copy of the installation.
class Pair {
  public:
    explicit Pair(const fs::path& installation)
        : m_modelScript(m_modelOut),
          m_modelHand(m_modelScript),
          m_windowScript(m_windowOut),
          m_windowHand(m_windowOut, m_windowScript) {
        for (const fs::path& folder : {m_modelFolder.path(), m_windowFolder.path()})
            fs::copy(installation, folder, fs::copy_options::recursive);
        m_model = std::make_unique<driver::Driver>(
            m_modelOut, driver::Surroundings{m_modelFolder.path(), u"15.03.2027"}, m_modelScript,
            m_modelHand);
        m_windows = std::make_unique<driver::Driver>(
            m_windowOut, driver::Surroundings{m_windowFolder.path(), u"15.03.2027"}, m_windowScript,
            m_windowHand);
    }

    [[nodiscard]] const Programm* program() const { return m_model->running(); }
    [[nodiscard]] bool ended() const { return m_ended; }

    /// What is different after the command.
    std::string step(const std::string& command) {
        m_road += command + '\n';
        m_modelOut.str({});
        m_windowOut.str({});
        const std::optional<int> model = m_model->step(command);
        const std::optional<int> windows = m_windows->step(command);
        m_ended = model.has_value() || windows.has_value();
        if (m_modelOut.str() == m_windowOut.str() && model == windows)
            return {};
        return m_road + firstDifference(m_modelOut.str(), m_windowOut.str());
    }

    [[nodiscard]] std::string differenceInFiles() const {
        const auto model = filesIn(m_modelFolder.path());
        const auto windows = filesIn(m_windowFolder.path());
        for (const auto& [name, content] : model)
            if (const auto found = windows.find(name);
                found == windows.end() || found->second != content)
                return m_road + "the file differs: " + name + '\n';
        return model.size() == windows.size() ? std::string() : m_road + "another file is there\n";
    }

  private:
    static std::string firstDifference(const std::string& model, const std::string& windows) {
        std::istringstream modelLines(model);
        std::istringstream windowLines(windows);
        std::string modelLine;
        std::string windowLine;
        do {
            modelLine = windowLine = "(nothing)";
            std::getline(modelLines, modelLine);
            std::getline(windowLines, windowLine);
        } while (modelLine == windowLine && modelLines);
        return "model:   " + modelLine + "\nwindows: " + windowLine + '\n';
    }

    static std::map<std::string, std::string> filesIn(const fs::path& folder) {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (!entry.is_regular_file())
                continue;
            std::ostringstream content;
            content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            files.emplace(fs::relative(entry.path(), folder).string(), content.str());
        }
        return files;
    }

    test::TemporaryFolder m_modelFolder;
    test::TemporaryFolder m_windowFolder;
    std::ostringstream m_modelOut;
    std::ostringstream m_windowOut;
    driver::DialogScript m_modelScript;
    driver::ModelHand m_modelHand;
    driver::DialogScript m_windowScript;
    WindowHand m_windowHand;
    std::unique_ptr<driver::Driver> m_model;
    std::unique_ptr<driver::Driver> m_windows;
    std::string m_road;
    bool m_ended = false;
};

std::string walk(unsigned seed, int commands) {
    const fs::path fixtures = fs::path(ZEUGNIS_SOURCE_FOLDER) / "tests" / "fixtures";
    Pair pair(fixtures / (seed % 2 == 0 ? "klasse2b" : "klasse3a"));
    RoadFinder finder(seed);
    const auto go = [&](const std::string& command) { return pair.step(command); };
    for (const std::string& command : finder.beginning())
        if (std::string difference = go(command); !difference.empty() || pair.ended())
            return difference;
    for (int i = 0; i < commands && !pair.ended(); ++i)
        if (std::string difference = go(finder.next(*pair.program())); !difference.empty())
            return difference;
    if (!pair.ended())
        for (const Screen* screen : pair.program()->screens())
            if (std::string difference = go("dump " + utf8FromText(screen->name()));
                !difference.empty())
                return difference;
    return pair.differenceInFiles();
}

} // namespace

std::string differenceOnRandomRoad(unsigned seed, int commands) {
    std::string difference;
    Stage::play([&] {
        difference = walk(seed, commands);
        return 0;
    });
    return difference;
}

} // namespace zeugnis::windowdriver
