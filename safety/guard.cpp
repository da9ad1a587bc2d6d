#include "safety/guard.h"

#include "platform/raw_file.h"
#include "safety/actions.h"
#include "safety/latest.h"
#include "safety/restore.h"

#include <algorithm>
#include <cerrno>
#include <exception>
#include <map>
#include <system_error>
#include <utility>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

constexpr std::uintmax_t SpareRoom = 1'000'000;

// Nothing that goes wrong here may reach the one who writes.
template <typename Work>
void quietly(Work work) noexcept {
    try {
        work();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): memory at most
    }
}

bool isNothing(const fs::path& file) {
    std::error_code failed;
    return fs::symlink_status(file, failed).type() == fs::file_type::not_found;
}

bool isRegular(const fs::path& file) {
    std::error_code failed;
    const fs::file_status status = fs::status(file, failed);
    return status.type() == fs::file_type::regular || (failed && !fs::exists(status));
}

} // namespace

struct Guard::Unit {
    std::set<std::string> touched;              ///< written or deleted, changed or not
    std::vector<Former> formers;                ///< of all that has been changed
    std::set<std::string> known;                ///< their names
    std::set<std::string> writes;               ///< written with other bytes than before
    std::map<std::string, std::string> written; ///< what the data files hold now
    Text action;
    bool broken = false;      ///< the machine has failed
    bool unjournaled = false; ///< the journal could not be kept up
    fs::path journal;
    int handle = -1;
    size_t length = 0;
    Moment begin{};
};

Guard::Guard(const fs::path& programFolder, Clock clock)
    : m_paths(programFolder), m_clock(std::move(clock)) {}

Guard::~Guard() = default;

Guard::Unit& Guard::unit() {
    if (!m_unit)
        m_unit = std::make_unique<Unit>();
    return *m_unit;
}

void Guard::nameUnit(const Text& action) { unit().action = action; }

void Guard::thinOutStates() {
    const States states(m_paths.program);
    states.thinOut(m_clock());
    m_statesSize = states.size();
}

void Guard::unitBegins() noexcept {
    if (m_depth++ == 0)
        m_unit.reset();
}

void Guard::unitEnds(bool failed) noexcept {
    if (--m_depth > 0)
        return;
    m_depth = 0;
    quietly([&] { endUnit(failed && m_unit && m_unit->broken); });
    m_unit.reset();
}

void Guard::beforeWrite(const fs::path& file, const FormerContent& former,
                        std::string_view bytes) noexcept {
    quietly([&] {
        const std::optional<std::string> name = m_paths.nameOf(file);
        if (!name || !isRegular(file))
            return;
        unit().touched.insert(*name);
        if (former.bytes == bytes)
            return;
        unit().writes.insert(*name);
        if (unit().known.contains(*name))
            return;
        if (former.stood ? !former.bytes : !isNothing(file))
            return goWithoutJournal(EACCES);
        std::vector<Former> files(1);
        files.front() = {*name, former.bytes};
        if (unit().formers.empty())
            addHabits(files);
        setDown(std::move(files));
    });
}

void Guard::afterWrite(const fs::path& file, std::string_view bytes, bool done) noexcept {
    quietly([&] {
        const std::optional<std::string> name = m_paths.nameOf(file);
        if (done && m_unit && name && Latest::covers(*name))
            m_unit->written[*name] = bytes;
    });
    if (m_depth == 0)
        unitEnds(!done);
}

void Guard::beforeRemoval(std::span<const fs::path> files) noexcept {
    quietly([&] {
        std::vector<Former> formers;
        for (const fs::path& file : files) {
            const std::optional<std::string> name = m_paths.nameOf(file);
            if (!name)
                continue;
            unit().touched.insert(*name);
            if (unit().known.contains(*name))
                continue;
            raw::Content content = raw::read(file);
            if (content.error != 0)
                return goWithoutJournal(content.error);
            formers.push_back({*name, std::move(content.bytes)});
        }
        if (!formers.empty())
            setDown(std::move(formers));
    });
}

void Guard::afterRemoval(std::span<const fs::path> /*files*/) noexcept {
    if (m_depth == 0)
        unitEnds(false);
}

void Guard::machineFailed() noexcept {
    if (m_unit || m_depth > 0)
        quietly([&] { unit().broken = true; });
}

// Each putting on the disk takes its time, so what is likely to come goes there with the first.
void Guard::addHabits(std::vector<Former>& files) {
    const auto habit = m_habits.find(files.front().name);
    if (habit == m_habits.end())
        return;
    for (const std::string& name : habit->second) {
        const std::optional<fs::path> file = m_paths.fileOf(name);
        if (!file || name == files.front().name)
            continue;
        if (raw::Content content = raw::read(*file); content.error == 0)
            files.push_back({name, std::move(content.bytes)});
        else if (isNothing(*file))
            files.push_back({name});
    }
}

// The formers go to memory in any case: with them a unit can be taken back even if the journal
// could not be written.
void Guard::setDown(std::vector<Former> files) {
    Unit& running = unit();
    std::string records;
    for (Former& file : files) {
        records += journalRecord(file, running.formers);
        running.known.insert(file.name);
        running.formers.push_back(std::move(file));
    }
    if (!running.unjournaled)
        if (const int error = appendToJournal(records); error != 0)
            goWithoutJournal(error);
}

int Guard::appendToJournal(std::string_view records) {
    const bool first = unit().handle < 0;
    if (first)
        if (const int error = openJournal(); error != 0)
            return error;
    if (first) {
        const std::string head = journalHead(unit().begin);
        if (const int error = raw::write(unit().handle, head); error != 0)
            return error;
        unit().length = head.size();
    }
    int error = writeAndSync(records);
    if (error == ENOSPC && States(m_paths.program).makeRoom(records.size() + SpareRoom) &&
        raw::truncate(unit().handle, unit().length) == 0)
        error = writeAndSync(records);
    if (error == 0 && first)
        error = raw::syncFolder(m_paths.states);
    unit().length += records.size();
    return error;
}

int Guard::writeAndSync(std::string_view bytes) {
    const int error = raw::write(unit().handle, bytes);
    return error == 0 ? raw::sync(unit().handle) : error;
}

int Guard::openJournal() {
    retryPending();
    if (const int error = makeFolder(m_paths, m_paths.states); error != 0)
        return error;
    unit().begin = m_clock();
    int error = EEXIST;
    for (int number = 0; error == EEXIST && number < journalsPerSecond; ++number) {
        const std::string stem = journalStem(unit().begin, number);
        // A former state of the same second keeps its name.
        if (!isNothing(m_paths.states / (stem + std::string(FormerState))))
            continue;
        unit().journal = m_paths.states / (stem + std::string(UnderWay));
        const raw::Opened opened = raw::createNew(unit().journal);
        error = opened.error;
        unit().handle = opened.handle;
    }
    if (error == 0)
        raw::tryLock(unit().handle);
    return error;
}

// What is in the journal already stays there until the unit has ended: should the machine fail
// altogether, the next start takes back that much.
void Guard::goWithoutJournal(int error) {
    if (std::exchange(unit().unjournaled, true))
        return;
    sayUnavailable(error);
}

void Guard::endUnit(bool broken) {
    if (!m_unit)
        return;
    if (m_unit->formers.empty())
        return keepLatest();
    if (broken)
        takeBack();
    else
        keep();
}

void Guard::keep() {
    Unit& running = *m_unit;
    std::vector<std::string> habit;
    for (const Former& one : running.formers)
        if (running.writes.contains(one.name))
            habit.push_back(one.name);
    if (!habit.empty())
        m_habits[habit.front()] = habit;
    const bool wanted = std::any_of(running.formers.begin(), running.formers.end(),
                                    [](const Former& one) { return worthKeeping(one.name); });
    Outcome outcome = Outcome::Kept;
    if (running.handle >= 0) {
        syncTouchedFolders();
        const Text action = running.action.empty() ? actionOf(running.touched) : running.action;
        const bool asState = wanted && !running.unjournaled && !goesWithLast();
        if (asState)
            raw::write(running.handle, journalEnd(action));
        outcome = closeJournal(asState) ? Outcome::Kept : Outcome::Pending;
        if (asState)
            m_keptAt = running.begin;
        if (asState && m_statesSize && (*m_statesSize += running.length) > StatesLimit)
            thinOutStates();
    }
    keepLatest();
    if (onUnitEnd)
        onUnitEnd(outcome);
}

bool Guard::goesWithLast() const {
    const auto since = m_unit->begin - m_keptAt;
    const auto wentOn = [&](const Former& one) {
        const auto last = m_lastWritten.find(one.name);
        return last != m_lastWritten.end() && last->second == one.content;
    };
    return since.count() >= 0 && since < together &&
           std::all_of(m_unit->formers.begin(), m_unit->formers.end(), wentOn);
}

// These copies are for comparing only, so they need not be on the disk at once.
void Guard::keepLatest() {
    const Latest latest(m_paths);
    for (const auto& [name, content] : m_unit->written)
        if (m_unit->known.contains(name) || latest.of(name) != content)
            latest.keep(name, content);
    m_lastWritten = std::move(m_unit->written);
}

// Names that came or went must be on the disk before the journal goes.
void Guard::syncTouchedFolders() {
    std::set<fs::path> folders;
    for (const Former& one : m_unit->formers)
        if (const std::optional<fs::path> file = m_paths.fileOf(one.name))
            if (!one.content || isNothing(*file))
                folders.insert(file->parent_path());
    for (const fs::path& folder : folders)
        raw::syncFolder(folder);
}

void Guard::takeBack() {
    const bool done = restore(m_paths, m_unit->formers).complete();
    const bool journaled = m_unit->handle >= 0 && !m_unit->unjournaled;
    if (!done && m_unit->handle >= 0)
        raw::close(std::exchange(m_unit->handle, -1));
    closeJournal(false);
    if (onUnitEnd)
        onUnitEnd(done ? Outcome::TakenBack : journaled ? Outcome::Pending : Outcome::Broken);
}

// From here on the next start takes nothing back. False if the journal could not be got rid of in
// any way.
bool Guard::closeJournal(bool asState) {
    Unit& running = *m_unit;
    if (running.handle < 0)
        return true;
    fs::path state = running.journal;
    state.replace_extension(FormerState);
    bool gone = asState && raw::rename(running.journal, state) == 0;
    gone = gone || raw::remove(running.journal) == 0;
    int error = gone ? raw::syncFolder(m_paths.states) : EIO;
    // Empty it takes nothing back either.
    if (!gone && raw::truncate(running.handle, 0) == 0) {
        gone = true;
        error = raw::sync(running.handle);
    }
    raw::close(std::exchange(running.handle, -1));
    if (!gone)
        m_pending.insert(running.journal);
    if (error != 0)
        sayUnavailable(error);
    return gone;
}

// What the disk would not let go of before it may let go of now.
void Guard::retryPending() {
    std::erase_if(m_pending, [](const fs::path& journal) { return raw::remove(journal) == 0; });
}

void Guard::sayUnavailable(int error) {
    if (std::exchange(m_said, true) || !onUnavailable)
        return;
    const bool full = raw::meansFull(error);
    onUnavailable(u"Der Ordner „Notsicherung“ kann nicht beschrieben werden" +
                  Text(full ? u", weil auf dem Datenträger kein Platz mehr frei ist" : u"") +
                  u". Sie können weiterarbeiten und speichern wie gewohnt, aber ohne "
                  u"Sicherheitsnetz.");
}

} // namespace zeugnis::safety
