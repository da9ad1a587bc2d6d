#pragma once

#include "safety/paths.h"

#include <functional>

namespace zeugnis::safety {

/// A copy of each data file as the program has last written it, to see what others have changed.
/// A copy that is missing or damaged is as good as none.
class Latest {
  public:
    explicit Latest(const std::filesystem::path& programFolder) : m_paths(programFolder) {}
    explicit Latest(const Paths& paths) : m_paths(paths) {}

    /// Whether copies of the file are kept: of all in Daten but work files and dated copies,
    /// and of the lists of absences and grades.
    [[nodiscard]] static bool covers(const std::string& name);

    /// In place and not at once on the disk: it is for comparing. Gives 0 or the number of an
    /// error.
    int keep(const std::string& name, std::string_view content) const;

    [[nodiscard]] std::optional<std::string> of(const std::string& name) const;

    /// The files that there is a copy of, by name: those that `wanted` takes.
    [[nodiscard]] std::vector<std::string>
    names(const std::function<bool(const std::string& name)>& wanted) const;

  private:
    Paths m_paths;
};

} // namespace zeugnis::safety
