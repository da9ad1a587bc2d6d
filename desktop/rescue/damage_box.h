#pragma once

#include "platform/working_directory.h"
#include "rescue/forethought.h"
#include "safety/damage.h"

#include <set>

class QWidget;

namespace zeugnis {

/// Tells what is the matter with data files, one box after the other, before a routine reads them,
/// and does what is chosen.
class DamageBox {
  public:
    DamageBox(Arbeitsverzeichnis& directory, safety::Guard& guard,
              std::filesystem::path programFolder);

    /// What was left as it is on purpose is not asked for again in this run.
    void askFor(const std::vector<safety::Finding>& findings, QWidget* owner);
    void examine(QWidget* owner) { askFor(safety::examine(m_folder), owner); }
    /// Only what the start page itself reads.
    void examineStart(QWidget* owner) {
        askFor(safety::examine(m_folder, rescue::isReadAtStart), owner);
    }

  private:
    void ask(const safety::Finding& finding, QWidget* owner);
    void look(const safety::Finding& finding, QWidget* owner);
    void bringBack(const safety::Finding& finding, QWidget* owner);
    [[nodiscard]] std::string held(const safety::Finding& finding) const;

    Arbeitsverzeichnis& m_directory;
    safety::Guard& m_guard;
    std::filesystem::path m_folder;
    std::set<std::pair<std::string, std::string>> m_left; ///< file and what it held
};

} // namespace zeugnis
