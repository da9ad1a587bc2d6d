#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zeugnis {

/// What a file held before it is written over.
struct FormerContent {
    bool stood = false;                              ///< there was such a file
    std::optional<std::string> bytes = std::nullopt; ///< empty if it could not be read
};

/// Someone who watches what is written to the data files. Nothing that a watcher does may fail for
/// the one who writes. Paths are absolute.
class WriteWatcher {
  public:
    virtual ~WriteWatcher() = default;

    /// What is written between these two calls belongs together. Of units within each other the
    /// outermost counts; a write outside of them is a unit of its own. `failed` tells that a
    /// run-time failure has ended it.
    virtual void unitBegins() noexcept = 0;
    virtual void unitEnds(bool failed) noexcept = 0;

    /// Before the file is touched for the first time in this write.
    virtual void beforeWrite(const std::filesystem::path& file, const FormerContent& former,
                             std::string_view bytes) noexcept = 0;
    /// After it: `done` tells that the file holds these bytes, and on the disk.
    virtual void afterWrite(const std::filesystem::path& file, std::string_view bytes,
                            bool done) noexcept = 0;
    /// Around the deletion of files that exist.
    virtual void beforeRemoval(std::span<const std::filesystem::path> files) noexcept = 0;
    virtual void afterRemoval(std::span<const std::filesystem::path> files) noexcept = 0;

    /// The machine has refused something: a file or a folder is there, or may be there, and cannot
    /// be read or written.
    virtual void machineFailed() noexcept = 0;
};

/// The bracket around a unit; null: nobody watches.
class WriteUnit {
  public:
    explicit WriteUnit(WriteWatcher* watcher);
    ~WriteUnit();
    WriteUnit(const WriteUnit&) = delete;
    WriteUnit& operator=(const WriteUnit&) = delete;

  private:
    WriteWatcher* m_watcher;
    int m_exceptions;
};

} // namespace zeugnis
