#pragma once

#include "driver/driver.h"
#include "driver/model_hand.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace zeugnis::test {

/// The driver on the control model, printing to `out`. Today is 15.03.2027.
class ModelDriver {
  public:
    ModelDriver(std::ostream& out, const std::filesystem::path& folder,
                WriteWatcher* watcher = nullptr)
        : m_answers(out),
          m_hand(m_answers),
          m_driver(out, {folder, u"15.03.2027", watcher}, m_answers, m_hand) {}

    /// Plays the lines and returns the exit code.
    int play(const std::string& commands) {
        std::istringstream lines(commands);
        return m_driver.run(lines);
    }

  private:
    driver::DialogScript m_answers;
    driver::ModelHand m_hand;
    driver::Driver m_driver;
};

/// The texts among the answers to `get`, in their order, with "\n" for their line ends.
inline std::vector<Text> textsIn(const std::string& events) {
    std::vector<Text> texts;
    std::istringstream lines(events);
    for (std::string line; std::getline(lines, line);) {
        const size_t start = line.find(" = \"");
        if (start == std::string::npos)
            continue;
        Text text = textFromUtf8(line.substr(start + 4, line.size() - start - 5));
        for (size_t i = text.find(u"\\r\\n"); i != Text::npos; i = text.find(u"\\r\\n"))
            text.replace(i, 4, u"\n");
        texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace zeugnis::test
