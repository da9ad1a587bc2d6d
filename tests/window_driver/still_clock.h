#pragma once

#include <QObject>

class QWidget;

namespace zeugnis {

class Timer;

namespace windowdriver {

/// Holds the timers of the screens, so that a road does the same however long it takes; they fire
/// when they are told to.
class StillClock : public QObject {
  public:
    StillClock();
    ~StillClock() override;

    /// Lets the timer fire once, if it runs.
    void strike(QWidget& window, const Timer& timer);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool m_strikes = false;
};

} // namespace windowdriver
} // namespace zeugnis
