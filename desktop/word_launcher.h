#pragma once

#include "platform/machine.h"

#include <QString>
#include <QStringList>

namespace zeugnis {

/// Starts Word if it is found and the document exists, and otherwise the program's own document
/// program with the same arguments. Both run beside this program, in the program folder.
class WordLauncher : public Launcher {
  public:
    /// `ownFolder` is where the document program lies.
    explicit WordLauncher(QString ownFolder) : m_ownFolder(std::move(ownFolder)) {}

    void start(const Text& commandLine, const std::filesystem::path& programFolder) override;

  private:
    QString m_ownFolder;
};

} // namespace zeugnis
