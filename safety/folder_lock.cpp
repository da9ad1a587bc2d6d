#include "safety/folder_lock.h"

#include "platform/process.h"
#include "safety/seal.h"

#include <array>
#include <charconv>
#include <sstream>
#include <utility>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view Kind = "zeugnis-offen";

constexpr const char* Stem = "Offen";

// The lock of the machine lies in a file of its own: the other one is replaced at each beat.
fs::path lockFile(const Paths& paths) { return paths.root / "Offen.sperre"; }
fs::path holderFile(const Paths& paths) { return paths.root / "Offen.txt"; }
fs::path probeFile(const Paths& paths) {
    return paths.root / ("Offen.probe" + std::to_string(ownProcess()));
}

std::string bytesOf(const Holder& holder) {
    return sealed(Kind, utf8FromText(holder.machine) + '\n' + utf8FromText(holder.user) + '\n' +
                            stampOf(holder.since) + '\n' + std::to_string(holder.process) + '\n');
}

std::optional<Holder> holderFrom(std::string_view bytes) {
    const std::optional<std::string> content = unsealed(Kind, bytes);
    if (!content)
        return std::nullopt;
    std::istringstream lines(*content);
    std::array<std::string, 4> fields;
    for (std::string& field : fields)
        std::getline(lines, field);
    const std::optional<Moment> since = momentFrom(fields[2]);
    int process = 0;
    std::from_chars(fields[3].data(), fields[3].data() + fields[3].size(), process);
    if (!since)
        return std::nullopt;
    return Holder{textFromUtf8(fields[0]), textFromUtf8(fields[1]), *since, process};
}

bool isSame(const Holder& left, const Holder& right) {
    return left.machine == right.machine && left.process == right.process &&
           left.since == right.since;
}

} // namespace

Holder thisProgram(Moment since) { return {machineName(), userName(), since, ownProcess()}; }

FolderLock::FolderLock(const fs::path& programFolder, Holder self)
    : m_paths(programFolder), m_self(std::move(self)) {}

bool FolderLock::isItsFile(const fs::path& file) { return file.stem() == Stem; }

FolderLock::~FolderLock() { letGo(); }

FolderLock::Answer FolderLock::take() {
    if (makeFolder(m_paths, m_paths.root) != 0)
        return {};
    const raw::Opened opened = raw::openForWriting(lockFile(m_paths));
    if (opened.error != 0)
        return {};
    m_handle = opened.handle;
    const std::optional<Holder> holder = written();
    const bool here = !holder || holder->machine == m_self.machine;
    if (isHeld(raw::tryLock(m_handle), holder)) {
        raw::close(std::exchange(m_handle, -1));
        return {here ? Outcome::Held : Outcome::HeldFarAway, holder.value_or(Holder{})};
    }
    return {writeSelf() ? Outcome::Ours : Outcome::Unknown};
}

bool FolderLock::takeOver() {
    if (m_handle < 0) {
        const raw::Opened opened = raw::openForWriting(lockFile(m_paths));
        if (opened.error != 0)
            return false;
        m_handle = opened.handle;
        // Held by a living program where the lock reaches; the holder's file decides elsewhere.
        raw::tryLock(m_handle);
    }
    return writeSelf();
}

bool FolderLock::renew() {
    if (!m_ours)
        return false;
    if (const std::optional<Holder> holder = written(); holder && !isSame(*holder, m_self)) {
        m_ours = false;
        return false;
    }
    // A full disk is no other program.
    writeSelf();
    return true;
}

// Locks do not reach every other machine, and some disks know none.
bool FolderLock::isHeld(raw::Lock lock, const std::optional<Holder>& holder) const {
    if (lock == raw::Lock::Held)
        return true;
    if (!holder)
        return false;
    if (holder->machine != m_self.machine)
        return isFresh();
    return lock == raw::Lock::NotOffered && !isSame(*holder, m_self) &&
           processLives(holder->process);
}

std::optional<Holder> FolderLock::written() const {
    const raw::Content content = raw::read(holderFile(m_paths));
    return content.error == 0 ? holderFrom(content.bytes) : std::nullopt;
}

// Clocks of two machines differ, so the file system's own clock counts.
bool FolderLock::isFresh() const {
    std::error_code failed;
    const fs::file_time_type last = fs::last_write_time(holderFile(m_paths), failed);
    if (failed)
        return false;
    const fs::path probe = probeFile(m_paths);
    if (raw::replaceByRename(probe, {}, raw::Durability::Eventually) != 0)
        return true;
    const fs::file_time_type now = fs::last_write_time(probe, failed);
    raw::remove(probe);
    return failed || now - last < Silence;
}

bool FolderLock::writeSelf() {
    m_ours = raw::replaceByRename(holderFile(m_paths), bytesOf(m_self),
                                  raw::Durability::Eventually) == 0;
    return m_ours;
}

void FolderLock::letGo() {
    if (m_ours)
        if (const std::optional<Holder> holder = written(); holder && isSame(*holder, m_self))
            raw::remove(holderFile(m_paths));
    m_ours = false;
    if (m_handle >= 0)
        raw::close(std::exchange(m_handle, -1));
}

Text holderSentence(const Holder& holder) {
    if (holder.machine.empty())
        return u"Diese Klasse ist schon in einem anderen Fenster des Programms geöffnet.";
    return u"Diese Klasse ist schon geöffnet: am Rechner „" + holder.machine + u"“ von „" +
           holder.user + u"“, seit " + shownDay(holder.since) + u", " + shownTime(holder.since) +
           u" Uhr.";
}

} // namespace zeugnis::safety
