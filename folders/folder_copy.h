#pragma once

#include "platform/text.h"

#include <filesystem>
#include <functional>

namespace zeugnis {

/// A folder that is being built beside its place. It appears there when it is put in place; until
/// then, and if that never comes, nothing stays.
class FolderCopy {
  public:
    /// Fails with access-denied if there is something at the place already, or if the folder beside
    /// it cannot be made.
    explicit FolderCopy(const std::filesystem::path& place);
    ~FolderCopy();
    FolderCopy(const FolderCopy&) = delete;
    FolderCopy& operator=(const FolderCopy&) = delete;

    [[nodiscard]] const std::filesystem::path& folder() const { return m_beside; }

    /// Copies the files of another folder for which `wanted` says so, by their names from there,
    /// each put on the disk and compared with what was read. A file that is there is written over;
    /// all folders come along. What is neither is left out. Returns the number of files. Fails with
    /// access-denied or disk-full; the sentence names the file.
    int copyFrom(const std::filesystem::path& source,
                 const std::function<bool(const std::filesystem::path& name)>& wanted);

    void putInPlace();

  private:
    std::filesystem::path m_place;
    std::filesystem::path m_beside;
};

/// Runs the work and returns an empty text, or the sentence of the failure that it ended with.
Text obstacleIn(const std::function<void()>& work);

} // namespace zeugnis
