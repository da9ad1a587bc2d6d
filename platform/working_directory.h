#pragma once

#include "platform/text.h"

#include <filesystem>

namespace zeugnis {

class WriteWatcher;

/// The program's working directory, as a value: the process itself never changes its own.
/// Names are relative, may use "\" or "/", and resolve without regard to case.
class Arbeitsverzeichnis {
  public:
    /// Starts in the program folder, which must exist.
    explicit Arbeitsverzeichnis(const std::filesystem::path& programFolder);

    /// Fails with path-not-found if the folder does not exist, with access-denied if that cannot
    /// be told, and then stays where it was. "..\" always leads to the folder above.
    void change(TextView folder);

    /// The path behind a name. An existing file is found in any case; a new one gets the name as
    /// it is written. Fails as change() does if a folder on the way cannot be reached.
    [[nodiscard]] std::filesystem::path path(TextView name) const;

    /// A name as it is shown in a message: with its folder, relative to the program folder.
    [[nodiscard]] Text displayName(TextView name) const;

    [[nodiscard]] const std::filesystem::path& current() const { return m_current; }
    [[nodiscard]] const std::filesystem::path& programFolder() const { return m_base; }

    /// Who watches what is written by way of this directory and its copies; null, as at first, for
    /// nobody. Must outlive them.
    [[nodiscard]] WriteWatcher* watcher() const { return m_watcher; }
    void watchWrites(WriteWatcher* watcher) { m_watcher = watcher; }

  private:
    std::filesystem::path m_base;
    std::filesystem::path m_current;
    WriteWatcher* m_watcher = nullptr;
};

/// The folder that the program was started in, which is the program folder. Fails with
/// path-not-found if it has been deleted meanwhile.
std::filesystem::path startFolder();

/// Into a folder, work there, and back with "..\" at the end of the block.
class Ordnerwechsel {
  public:
    Ordnerwechsel(Arbeitsverzeichnis& directory, TextView folder) : m_directory(directory) {
        m_directory.change(folder);
    }
    // The folder above is always there to go to.
    ~Ordnerwechsel() { m_directory.change(u"..\\"); } // NOLINT(bugprone-exception-escape)
    Ordnerwechsel(const Ordnerwechsel&) = delete;
    Ordnerwechsel& operator=(const Ordnerwechsel&) = delete;

  private:
    Arbeitsverzeichnis& m_directory;
};

} // namespace zeugnis
