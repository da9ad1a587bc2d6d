#pragma once

#include <QTemporaryFile>

#include <memory>

class QApplication;

namespace zeugnis::test {

/// The application that windows need, on a large display that is not there.
class LargeDisplay {
  public:
    LargeDisplay();
    ~LargeDisplay();

  private:
    QTemporaryFile m_display;
    std::unique_ptr<QApplication> m_application;
};

} // namespace zeugnis::test
