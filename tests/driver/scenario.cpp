#include "tests/driver/scenario.h"

#include "driver/command_line.h"
#include "platform/path_text.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace zeugnis::test {
namespace {
namespace fs = std::filesystem;

const fs::path SourceFolder = ZEUGNIS_SOURCE_FOLDER;
constexpr std::string_view FileHeading = "=== ";

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

// Lines that begin with "#!" prepare the installation; for the driver they are comments.
class Preparation {
  public:
    Preparation(const std::string& script, const TemporaryFolder& folder) : m_folder(folder) {
        fs::path source = "tests/fixtures/klasse3a";
        std::istringstream lines(script);
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("#!"))
                m_steps.push_back(driver::splitCommand(line.substr(2)));
        for (const auto& step : m_steps)
            if (step.at(0).text == u"installation")
                source = fs::path(step.at(1).text);
        fs::copy(SourceFolder / source, folder.path(), fs::copy_options::recursive);
        for (const auto& step : m_steps)
            run(step);
    }

  private:
    void run(const std::vector<driver::Word>& step) const {
        const Text& command = step.at(0).text;
        const Text& file = step.at(1).text;
        if (command == u"remove") {
            EXPECT_TRUE(m_folder.has(file)) << utf8FromText(file);
            m_folder.remove(file);
        } else if (command == u"copy") {
            m_folder.write(step.at(2).text, m_folder.read(file));
        } else if (command == u"replace") {
            const Text& former = step.at(2).text;
            Text content = m_folder.read(file);
            const size_t at = content.find(former);
            ASSERT_NE(at, Text::npos) << utf8FromText(former);
            m_folder.write(file, content.replace(at, former.size(), step.at(3).text));
        } else {
            EXPECT_EQ(command, u"installation");
        }
    }

    const TemporaryFolder& m_folder;
    std::vector<std::vector<driver::Word>> m_steps;
};

// A file as .files shows it: UTF-8, with signs for CR and LF in front of each new line.
std::string shown(const TemporaryFolder& folder, const std::string& name) {
    const Text path = textFromUtf8(name);
    if (!folder.has(path))
        return "(missing)\n";
    std::string text;
    for (const char16_t unit : folder.read(path))
        text += unit == u'\r' ? "␍" : unit == u'\n' ? "␊\n" : utf8FromText(TextView(&unit, 1));
    return text.empty() || text.back() == '\n' ? text : text + "(no line end)\n";
}

std::string filesNamedIn(const std::string& expected, const TemporaryFolder& folder) {
    std::string actual;
    std::istringstream lines(expected);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(FileHeading))
            actual += line + "\n" + shown(folder, line.substr(FileHeading.size()));
    return actual;
}

int exitCodeFor(const std::string& expected) {
    std::istringstream lines(expected);
    std::string last;
    for (std::string line; std::getline(lines, line);)
        last = line;
    return last.starts_with("fatal ") ? 1 : last.starts_with("error ") ? 2 : 0;
}

} // namespace

std::vector<std::string> scenariosIn(const std::string& folder) {
    const fs::path scenarios = SourceFolder / "tests" / "scenarios";
    std::vector<std::string> names;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(scenarios / folder, missing))
        if (entry.path().extension() == ".script")
            names.push_back(
                utf8FromPath(fs::relative(entry.path(), scenarios).replace_extension()));
    std::sort(names.begin(), names.end());
    return names;
}

void playScenario(const std::string& name, const Play& play) {
    const fs::path base = SourceFolder / "tests" / "scenarios" / name;
    const auto with = [&](const char* extension) { return fs::path(base).concat(extension); };
    const std::string script = contentOf(with(".script"));
    const std::string expected = contentOf(with(".expected"));

    const TemporaryFolder folder;
    const Preparation preparation(script, folder);
    std::istringstream commands(script);
    std::ostringstream printed;
    EXPECT_EQ(play(commands, printed, {folder.path(), u"15.03.2027"}), exitCodeFor(expected));
    EXPECT_EQ(printed.str(), expected);
    if (fs::exists(with(".files"))) {
        const std::string files = contentOf(with(".files"));
        EXPECT_EQ(filesNamedIn(files, folder), files);
    }
}

} // namespace zeugnis::test
