#pragma once

#include "safety/journal.h"
#include "safety/paths.h"

#include <cstdint>

namespace zeugnis::safety {

inline constexpr std::uintmax_t StatesLimit = 50'000'000;

/// What stood before an action that changed files of the installation.
struct State {
    std::string id;                 ///< sorts by time
    Moment when{};                  ///< the beginning of the action
    Text action;                    ///< "Basisdaten gespeichert"
    std::vector<std::string> files; ///< that the action has changed, made or deleted
    std::uintmax_t bytes = 0;
};

/// The former states of an installation. Whatever is damaged is passed over.
class States {
  public:
    explicit States(const std::filesystem::path& programFolder) : m_paths(programFolder) {}

    /// The newest first.
    [[nodiscard]] std::vector<State> list() const;

    [[nodiscard]] std::optional<Journal> read(const std::string& id) const;

    /// A state that no unit has left. Gives 0 or the number of an error.
    int add(Moment when, const Text& action, const std::vector<Former>& files) const;

    /// What the files hold now, under a name of the teacher's. It is not thinned out.
    int keep(Moment when, const Text& name, const std::vector<Former>& files) const;

    /// What the whole installation held right before the action, as far as it differs from now by
    /// what is kept: of each file the oldest content that was kept then or later.
    [[nodiscard]] std::vector<Former> allBefore(const std::string& id) const;

    /// Keeps all of today, of the last month the first of each day for each file, of the last
    /// half-year the first of each week, and nothing older; then as many as the limit allows. What
    /// was kept under a name stays. Also takes away what a kill has left in Notsicherung.
    void thinOut(Moment today, std::uintmax_t limit = StatesLimit) const;

    /// Gives up the oldest states without a name until there is that much more room. False if there
    /// was none.
    [[nodiscard]] bool makeRoom(std::uintmax_t bytes) const;

    [[nodiscard]] std::uintmax_t size() const;

  private:
    int write(Moment when, std::string_view mark, const Text& action,
              const std::vector<Former>& files) const;

    Paths m_paths;
};

} // namespace zeugnis::safety
