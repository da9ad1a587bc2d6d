#pragma once

#include "platform/write_watcher.h"

namespace zeugnis {

/// The pointer that says that work goes on. While an action runs nobody could set it after a while,
/// so it comes with what is known to take long: a window that is made, files that are written.
class BusyPointer {
  public:
    BusyPointer() = default;
    ~BusyPointer() { rest(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

    void work();
    /// The action is over, or asks the user.
    void rest();

  private:
    bool m_shown = false;
};

/// Shows the pointer while files are written, and passes on all that it hears.
class BusyWrites : public WriteWatcher {
  public:
    BusyWrites(BusyPointer& pointer, WriteWatcher& next) : m_pointer(pointer), m_next(next) {}

    void unitBegins() noexcept override { m_next.unitBegins(); }
    void unitEnds(bool failed) noexcept override { m_next.unitEnds(failed); }
    void beforeWrite(const std::filesystem::path& file, const FormerContent& former,
                     std::string_view bytes) noexcept override {
        m_pointer.work();
        m_next.beforeWrite(file, former, bytes);
    }
    void afterWrite(const std::filesystem::path& file, std::string_view bytes,
                    bool done) noexcept override {
        m_next.afterWrite(file, bytes, done);
    }
    void beforeRemoval(std::span<const std::filesystem::path> files) noexcept override {
        m_next.beforeRemoval(files);
    }
    void afterRemoval(std::span<const std::filesystem::path> files) noexcept override {
        m_next.afterRemoval(files);
    }
    void machineFailed() noexcept override { m_next.machineFailed(); }

  private:
    BusyPointer& m_pointer;
    WriteWatcher& m_next;
};

} // namespace zeugnis
