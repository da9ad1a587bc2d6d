#include "safety/states.h"

#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "safety/actions.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <set>
#include <system_error>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

using namespace std::chrono;

// Behind the time in the name of the file.
constexpr std::string_view Kept = "-aufgehoben";

constexpr days Month{31};
constexpr days HalfYear{183};

std::uintmax_t sizeOf(const fs::path& file) {
    std::error_code failed;
    const std::uintmax_t size = fs::file_size(file, failed);
    return failed ? 0 : size;
}

// A state of a clock that was wrong may lie ahead; it is as good as one of today.
enum class Age { Today, LastMonth, LastHalfYear, Older };

Age ageOf(const State& state, Moment today) {
    const days age = dayOf(today) - dayOf(state.when);
    return age <= days(0)    ? Age::Today
           : age <= Month    ? Age::LastMonth
           : age <= HalfYear ? Age::LastHalfYear
                             : Age::Older;
}

Moment startOfSpan(Moment moment, Age age) {
    return age == Age::LastMonth ? Moment(dayOf(moment)) : Moment(floor<weeks>(moment));
}

// Told from the oldest on, whether a state is the first of its span for any of its files.
class FirstOfSpan {
  public:
    bool take(const State& state, Moment span) {
        bool first = false;
        for (const std::string& file : state.files)
            first = m_seen.emplace(file, span).second || first;
        return first;
    }

  private:
    std::set<std::pair<std::string, Moment>> m_seen;
};

} // namespace

std::vector<State> States::list() const {
    std::vector<State> states;
    for (const fs::path& file : filesEndingIn(m_paths.states, FormerState)) {
        const std::string id = utf8FromPath(file.stem());
        const std::optional<Journal> journal = read(id);
        if (!journal || journal->files.empty())
            continue;
        State state{id, journal->begin, journal->action, {}, sizeOf(file)};
        for (const Former& one : journal->files)
            state.files.push_back(one.name);
        if (state.action.empty())
            state.action = actionOf({state.files.begin(), state.files.end()});
        states.push_back(std::move(state));
    }
    std::reverse(states.begin(), states.end());
    return states;
}

std::optional<Journal> States::read(const std::string& id) const {
    if (pathFromUtf8(id).filename() != pathFromUtf8(id))
        return std::nullopt;
    const raw::Content content = raw::read(m_paths.states / (id + std::string(FormerState)));
    if (content.error != 0)
        return std::nullopt;
    return readJournal(content.bytes);
}

int States::add(Moment when, const Text& action, const std::vector<Former>& files) const {
    return write(when, "", action, files);
}

int States::keep(Moment when, const Text& name, const std::vector<Former>& files) const {
    return write(when, Kept, u"Aufgehoben: " + name, files);
}

int States::write(Moment when, std::string_view mark, const Text& action,
                  const std::vector<Former>& files) const {
    if (const int error = makeFolder(m_paths, m_paths.states); error != 0)
        return error;
    std::string bytes = journalHead(when);
    for (size_t i = 0; i < files.size(); ++i)
        bytes += journalRecord(files[i], {files.begin(), files.begin() + std::ptrdiff_t(i)});
    bytes += journalEnd(action);
    std::error_code ignored;
    for (int number = 0; number < journalsPerSecond; ++number) {
        const fs::path file = m_paths.states / (journalStem(when, number) + std::string(mark) +
                                                std::string(FormerState));
        if (!fs::exists(file, ignored))
            return raw::replaceByRename(file, bytes, raw::Durability::AtOnce);
    }
    return EEXIST;
}

std::vector<Former> States::allBefore(const std::string& id) const {
    std::map<std::string, Former> files;
    for (const fs::path& file : filesEndingIn(m_paths.states, FormerState)) {
        if (utf8FromPath(file.stem()) < id)
            continue;
        if (const std::optional<Journal> journal = read(utf8FromPath(file.stem())))
            for (const Former& one : journal->files)
                files.try_emplace(one.name, one);
    }
    std::vector<Former> all;
    all.reserve(files.size());
    for (auto& [name, one] : files)
        all.push_back(std::move(one));
    return all;
}

void States::thinOut(Moment today, std::uintmax_t limit) const {
    for (const fs::path& folder : {m_paths.states, m_paths.latest, m_paths.typed})
        for (const fs::path& rest : filesEndingIn(folder, raw::BesideEnding))
            raw::remove(rest);
    const auto drop = [this](const State& state) {
        return raw::remove(m_paths.states / (state.id + std::string(FormerState))) == 0;
    };
    std::vector<State> states = list();
    std::erase_if(states, [](const State& state) { return state.id.ends_with(Kept); });
    std::reverse(states.begin(), states.end());
    FirstOfSpan firsts;
    std::erase_if(states, [&](const State& state) {
        const Age age = ageOf(state, today);
        if (age == Age::Today ||
            (age != Age::Older && firsts.take(state, startOfSpan(state.when, age))))
            return false;
        return drop(state);
    });
    std::uintmax_t total = 0;
    for (const State& state : states)
        total += state.bytes;
    // A day of many saves is thinned before older days are given up.
    FirstOfSpan ofHours;
    std::erase_if(states, [&](const State& state) {
        if (total <= limit || ageOf(state, today) != Age::Today ||
            ofHours.take(state, floor<hours>(state.when)) || today - state.when < hours(1))
            return false;
        total -= state.bytes;
        return drop(state);
    });
    for (const State& state : states)
        if (total > limit && drop(state))
            total -= state.bytes;
}

bool States::makeRoom(std::uintmax_t bytes) const {
    std::uintmax_t freed = 0;
    for (const fs::path& file : filesEndingIn(m_paths.states, FormerState)) {
        if (freed >= bytes)
            break;
        const std::uintmax_t size = sizeOf(file);
        if (!utf8FromPath(file.stem()).ends_with(Kept) && raw::remove(file) == 0)
            freed += size;
    }
    return freed > 0;
}

std::uintmax_t States::size() const {
    std::uintmax_t total = 0;
    for (const fs::path& file : filesEndingIn(m_paths.states, FormerState))
        total += sizeOf(file);
    return total;
}

} // namespace zeugnis::safety
