#pragma once

#include <QObject>

#include <functional>

namespace zeugnis {

/// Hears that the program is asked to end from outside: by SIGTERM, SIGINT or SIGHUP, and when the
/// desktop is shut down. There is one in a process.
class Termination : public QObject {
    Q_OBJECT

  public:
    /// `setDown` keeps what is not saved; `mayReturn` tells whether the event loop can be left now.
    Termination(std::function<void()> setDown, std::function<bool()> mayReturn);
    ~Termination() override;

  private:
    void end();

    std::function<void()> m_setDown;
    std::function<bool()> m_mayReturn;
};

} // namespace zeugnis
