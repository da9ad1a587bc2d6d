#pragma once

#include "platform/raw_file.h"
#include "safety/moment.h"
#include "safety/paths.h"

#include <chrono>

namespace zeugnis::safety {

/// Who has the folder open.
struct Holder {
    Text machine;
    Text user;
    Moment since{};
    int process = 0;
};

/// This program, on this machine, for this user.
Holder thisProgram(Moment since);

/// One program at a time on an installation, on local disks, sticks and network drives. Where the
/// machine can lock a file it does, and a crash leaves nothing; a program of another machine is
/// known to live by the time of its file, which it renews.
class FolderLock {
  public:
    /// `self` is thisProgram() but in tests.
    FolderLock(const std::filesystem::path& programFolder, Holder self);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    enum class Outcome {
        Ours,        ///< nobody else has it, whatever a crash has left
        Held,        ///< a program of this machine has it open
        HeldFarAway, ///< a program of another machine has it open, or had until a moment ago
        Unknown,     ///< the folder cannot be written, so nobody can tell; it is not locked
    };
    struct Answer {
        Outcome outcome = Outcome::Unknown;
        Holder holder{}; ///< of Held and HeldFarAway
    };

    /// A file of the lock, by its name or path: it belongs to one folder and one moment.
    static bool isItsFile(const std::filesystem::path& file);

    /// Takes the folder if it is free.
    Answer take();

    /// Takes it from a program of another machine, after the teacher was warned. False if it cannot
    /// be had.
    bool takeOver();

    /// Shows other machines that this program lives. To be called at least each Beat while the
    /// program runs. False if another program has taken the folder over meanwhile.
    bool renew();

    [[nodiscard]] bool isOurs() const { return m_ours; }

    static constexpr std::chrono::seconds Beat{30};
    /// A file that was not renewed for so long was left behind.
    static constexpr std::chrono::seconds Silence{120};

  private:
    [[nodiscard]] bool isHeld(raw::Lock lock, const std::optional<Holder>& holder) const;
    [[nodiscard]] std::optional<Holder> written() const;
    [[nodiscard]] bool isFresh() const;
    bool writeSelf();
    void letGo();

    Paths m_paths;
    Holder m_self;
    int m_handle = -1;
    bool m_ours = false;
};

/// German: who has it open, and since when.
Text holderSentence(const Holder& holder);

} // namespace zeugnis::safety
