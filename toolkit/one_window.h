#pragma once

#include <QObject>

#include <filesystem>
#include <functional>

class QWidget;

namespace zeugnis {

/// A document or class is open in one window at a time, although each is a process of its own: who
/// is asked for one that is open already brings the window of the other to the front.
class OneWindow : public QObject {
  public:
    /// Answers for the file or folder from now on; `window` tells which one is to come to the
    /// front, or null. If nobody can be asked on this machine, documents open twice, and nothing
    /// else happens.
    OneWindow(const std::filesystem::path& opened, std::function<QWidget*()> window);

    /// True if it was open and its window has come to the front. Returns at the latest
    /// after two seconds.
    static bool bringToFront(const std::filesystem::path& opened);
};

} // namespace zeugnis
