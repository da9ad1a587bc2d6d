#pragma once

#include "driver/driver.h"
#include "driver/model_hand.h"

#include <sstream>
#include <string>

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

} // namespace zeugnis::test
