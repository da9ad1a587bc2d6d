#pragma once

#include "platform/write_watcher.h"
#include "safety/journal.h"
#include "safety/paths.h"
#include "safety/states.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <span>

namespace zeugnis::safety {

/// Makes one piece of what an action of the user writes. Before a file is touched for the first
/// time in a unit, what it holds is on the disk in the unit's journal; when the unit has ended the
/// journal becomes a former state. A unit that the machine broke is taken back at once, or at the
/// next start by takeBackInterrupted().
class Guard : public WriteWatcher {
  public:
    explicit Guard(const std::filesystem::path& programFolder, Clock clock = now);
    ~Guard() override;
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    enum class Outcome {
        Kept,      ///< all of it stands
        TakenBack, ///< everything is as before
        Pending,   ///< the disk has failed, too: the next start takes it back
        Broken,    ///< it failed without a net, and the files may be half old and half new
    };

    /// Called once, with a German sentence, when Notsicherung cannot be written. The program then
    /// works without the net. Must not write data files.
    std::function<void(const Text& sentence)> onUnavailable;

    /// Called after each unit that has changed or tried to change a file.
    std::function<void(Outcome outcome)> onUnitEnd;

    /// For many small units: one that goes on from what the one before has left in the same files,
    /// within this time of the last that was kept, leaves no former state of its own.
    std::chrono::seconds together{0};

    /// What the former state of the unit under way will say that was done.
    void nameUnit(const Text& action);

    /// Gives up former states that are not worth their room any more; for the start.
    void thinOutStates();

    void unitBegins() noexcept override;
    void unitEnds(bool failed) noexcept override;
    void beforeWrite(const std::filesystem::path& file, const FormerContent& former,
                     std::string_view bytes) noexcept override;
    void afterWrite(const std::filesystem::path& file, std::string_view bytes,
                    bool done) noexcept override;
    void beforeRemoval(std::span<const std::filesystem::path> files) noexcept override;
    void afterRemoval(std::span<const std::filesystem::path> files) noexcept override;
    void machineFailed() noexcept override;

  private:
    struct Unit;

    Unit& unit();
    void setDown(std::vector<Former> files);
    void addHabits(std::vector<Former>& files);
    int appendToJournal(std::string_view records);
    int writeAndSync(std::string_view bytes);
    int openJournal();
    void goWithoutJournal(int error);
    void endUnit(bool takeBack);
    void keep();
    [[nodiscard]] bool goesWithLast() const;
    void keepLatest();
    void takeBack();
    void syncTouchedFolders();
    bool closeJournal(bool asState);
    void retryPending();
    void sayUnavailable(int error);

    Paths m_paths;
    Clock m_clock;
    std::unique_ptr<Unit> m_unit;
    int m_depth = 0; ///< of units within each other
    /// The files that the last unit wrote which began with a file: the next one likely writes them
    /// again, so they are set down together.
    std::map<std::string, std::vector<std::string>> m_habits;
    std::map<std::string, std::string> m_lastWritten; ///< by the last unit
    Moment m_keptAt{};                                ///< the last former state
    bool m_said = false;
    std::optional<std::uintmax_t> m_statesSize; ///< empty until it is asked for
    std::set<std::filesystem::path> m_pending;  ///< journals that would not go
};

} // namespace zeugnis::safety
