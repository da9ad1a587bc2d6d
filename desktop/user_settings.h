#pragma once

class QSettings;

namespace zeugnis {

class WindowHost;

/// What the program remembers for a user on this machine, beside all classes.
QSettings userSettings();

/// Keeps for the next run whether the report stands beside the input and whether spelling is
/// checked: brings both back when it is made, and sets them down when it goes.
class RememberedComfort {
  public:
    explicit RememberedComfort(WindowHost& host);
    ~RememberedComfort();
    RememberedComfort(const RememberedComfort&) = delete;
    RememberedComfort& operator=(const RememberedComfort&) = delete;

  private:
    WindowHost& m_host;
};

} // namespace zeugnis
