// Plays presentation.script and compares how the screens look with presentation.expected: of each
// control what differs from the default when its screen is shown first, then what has changed; in a
// further class what differs from how the screen opened first.

#include "driver/command_line.h"
#include "tests/support/model_driver.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <utility>
#include <vector>

namespace zeugnis::test {
namespace {
namespace fs = std::filesystem;

const fs::path SourceFolder = ZEUGNIS_SOURCE_FOLDER;

// Both fixtures in one: the files of all years.
void layOut(const fs::path& folder, const std::string& klasse, const std::string& halbjahr) {
    for (const char* fixture : {"klasse3a", "klasse2b"})
        fs::copy(SourceFolder / "tests" / "fixtures" / fixture, folder,
                 fs::copy_options::recursive | fs::copy_options::skip_existing);
    const auto edit = [&](const char* file, const std::string& former, const std::string& later) {
        std::ostringstream content;
        content << std::ifstream(folder / "Daten" / file, std::ios::binary).rdbuf();
        std::string text = content.str();
        for (size_t at = text.find(former); at != std::string::npos;
             at = text.find(former, at + later.size()))
            text.replace(at, former.size(), later);
        std::ofstream(folder / "Daten" / file, std::ios::binary) << text;
    };
    edit("Namen.Txt", "\"3a\"", '"' + klasse + '"');
    edit("Basisdaten.txt", "\"2\"", '"' + halbjahr + '"');
}

using Properties = std::map<std::string, std::string>;

// What is looked at, and what it is unless somebody has set it.
const Properties Defaults = {{"Caption", "\"\""}, {"ToolTip", "\"\""}, {"BackColor", "0xF0F0F0"},
                             {"Enabled", "1"},    {"Visible", "1"},    {"Locked", "0"}};

// Neighbours in an array of which the same properties have changed share a line, which names what
// all have in common once: Option2(0..3) Enabled=1 Caption="a"|"b"|"c"|"d".
class Lines {
  public:
    using Changes = std::vector<std::pair<std::string, std::string>>; // property and value

    explicit Lines(std::ostream& out) : m_out(out) {}
    ~Lines() { flush(); }
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;

    void add(const std::string& control, const Changes& changes) {
        const size_t paren = control.find('(');
        const std::string stem = control.substr(0, paren);
        const bool isArray = paren != std::string::npos;
        if (!isArray || stem != m_stem || !sameProperties(changes))
            flush();
        m_stem = stem;
        if (isArray)
            m_indices.push_back(control.substr(paren + 1, control.size() - paren - 2));
        m_members.push_back(changes);
    }

  private:
    [[nodiscard]] bool sameProperties(const Changes& changes) const {
        return !m_members.empty() &&
               std::equal(changes.begin(), changes.end(), m_members[0].begin(), m_members[0].end(),
                          [](const auto& a, const auto& b) { return a.first == b.first; });
    }

    [[nodiscard]] std::string valuesOf(size_t property) const {
        std::string all;
        bool same = true;
        for (const Changes& member : m_members) {
            all += (all.empty() ? "" : "|") + member[property].second;
            same = same && member[property] == m_members[0][property];
        }
        return same ? m_members[0][property].second : all;
    }

    void flush() {
        if (m_members.empty())
            return;
        m_out << m_stem;
        if (!m_indices.empty())
            m_out << '(' << m_indices.front()
                  << (m_indices.size() == 1 ? "" : ".." + m_indices.back()) << ')';
        for (size_t i = 0; i < m_members[0].size(); ++i)
            m_out << ' ' << m_members[0][i].first << '=' << valuesOf(i);
        m_out << '\n';
        m_indices.clear();
        m_members.clear();
    }

    std::ostream& m_out;
    std::string m_stem;
    std::vector<std::string> m_indices;
    std::vector<Changes> m_members;
};

// What is known of the properties of one screen.
class Look {
  public:
    // Prints what has changed, control by control.
    void take(const std::string& dump, std::ostream& out) {
        std::vector<std::pair<std::string, Lines::Changes>> changes;
        std::istringstream lines(dump);
        for (std::string line; std::getline(lines, line);) {
            const size_t sign = line.find(" = ");
            const std::string name = line.substr(0, sign);
            const size_t dot = name.rfind('.');
            const auto usual = Defaults.find(name.substr(dot + 1));
            if (usual == Defaults.end())
                continue;
            std::string& former = m_known.try_emplace(name, usual->second).first->second;
            const std::string value = line.substr(sign + 3);
            if (std::exchange(former, value) == value)
                continue;
            const std::string control = name.substr(0, dot);
            if (changes.empty() || changes.back().first != control)
                changes.emplace_back(control, Lines::Changes());
            changes.back().second.emplace_back(usual->first, value);
        }
        if (m_first.empty())
            printInventory(out);
        Lines printed(out);
        for (const auto& [control, what] : changes)
            printed.add(control, what);
        if (m_first.empty())
            m_first = m_known;
    }
    // For another installation: only what differs from how the screen opened in the first.
    void startAnew() { m_known = m_first; }

  private:
    void printInventory(std::ostream& out) const {
        std::map<std::string, std::pair<int, int>> arrays; // first and last index
        int single = 0;
        for (const auto& [name, value] : m_known) {
            const std::string control = name.substr(0, name.rfind('.'));
            if (!name.ends_with(".Visible"))
                continue;
            const size_t paren = control.find('(');
            if (paren == std::string::npos) {
                ++single;
                continue;
            }
            const int index = std::stoi(control.substr(paren + 1));
            auto& [first, last] =
                arrays.try_emplace(control.substr(0, paren), index, index).first->second;
            first = std::min(first, index);
            last = std::max(last, index);
        }
        out << single << " single controls";
        for (const auto& [name, range] : arrays)
            out << ", " << name.substr(name.find('.') + 1) << '(' << range.first << ".."
                << range.second << ')';
        out << '\n';
    }

    Properties m_known;
    Properties m_first;
};

// One run of the program: what its commands print, but for the dumps.
class Run {
  public:
    Run(const std::string& klasse, const std::string& halbjahr) {
        layOut(m_folder.path(), klasse, halbjahr);
        m_driver.emplace(m_printed, m_folder.path());
    }

    std::string command(const std::string& line) {
        m_printed.str({});
        m_driver->play(line);
        return m_printed.str();
    }

  private:
    TemporaryFolder m_folder;
    std::ostringstream m_printed;
    std::optional<ModelDriver> m_driver;
};

std::string contentOf(const fs::path& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

std::string played(const std::string& script) {
    std::ostringstream out;
    std::optional<Run> run;
    std::map<std::string, Look> looks;
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string word, first, second;
        words >> word >> first >> second;
        if (word.empty() || word == "#")
            continue;
        out << "> " << line << '\n';
        if (word == "class") {
            run.emplace(first, second);
            for (auto& [screen, look] : looks)
                look.startAnew();
        } else if (word == "show") {
            looks[first].take(run->command("dump " + first), out);
        } else {
            out << run->command(line);
        }
    }
    return out.str();
}

TEST(Presentation, OfAllScreensIsAsExpected) {
    const fs::path base = SourceFolder / "tests" / "program" / "presentation";
    const auto with = [&](const char* extension) { return fs::path(base).concat(extension); };
    const std::string actual = played(contentOf(with(".script")));
    if (actual == contentOf(with(".expected")))
        return;
    const fs::path kept = fs::current_path() / "presentation.actual";
    std::ofstream(kept, std::ios::binary) << actual;
    ADD_FAILURE() << "compare " << kept << " with " << with(".expected");
}

} // namespace
} // namespace zeugnis::test
