#pragma once

#include <functional>
#include <memory>

class QApplication;

namespace zeugnis::windowdriver {

/// The application that windows need, without a display. There is one in a process.
class Stage {
  public:
    Stage();
    ~Stage();

    /// Runs the play inside the event loop, where the program's windows live, and returns what it
    /// returned. One play comes after the other.
    static int play(const std::function<int()>& play);

  private:
    std::unique_ptr<QApplication> m_application;
};

} // namespace zeugnis::windowdriver
