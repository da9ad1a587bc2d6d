#pragma once

#include <memory>

class QApplication;

namespace zeugnis::test {

/// The application that windows need, on a large display that is not there.
class LargeDisplay {
  public:
    LargeDisplay();
    ~LargeDisplay();

  private:
    std::unique_ptr<QApplication> m_application;
};

} // namespace zeugnis::test
