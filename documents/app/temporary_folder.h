#pragma once

#include <QTemporaryDir>

#include <filesystem>

/// Where texts of children lie that must not stay.
namespace zeugnis::dokumente {

/// A folder that goes with the object. After a kill RemoveLeftFolders() removes it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] std::filesystem::path path() const;

    /// It is needed longer: a word processor has a document of it open.
    void stay() { m_folder.setAutoRemove(false); }

  private:
    QTemporaryDir m_folder;
    int m_lock = -1; ///< of a file in it, as long as this program lives
};

/// Removes the folders of programs that have ended, but for those in which a word processor has
/// something open, or has saved something within the last week.
void RemoveLeftFolders();

} // namespace zeugnis::dokumente
