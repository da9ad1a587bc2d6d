#include "safety/damage.h"

#include "files/file_catalogue.h"
#include "files/section_stores.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "platform/whole_file.h"
#include "safety/flaws.h"
#include "safety/latest.h"
#include "safety/layouts.h"
#include "safety/states.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <system_error>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

// 36 children with long texts in all sections need a fifth of it.
constexpr std::uintmax_t LargestFile = 5'000'000;

// Whatever its case; as it is written if it is not there.
fs::path resolved(const Paths& paths, TextView name) {
    try {
        return Arbeitsverzeichnis(paths.program).path(name);
    } catch (const Laufzeitfehler&) {
        return paths.program / pathFromText(name);
    }
}

fs::path dataFolder(const Paths& paths) { return resolved(paths, dateien::Daten); }

using Wanted = std::function<bool(const std::string& name)>;

// Of the wanted ones all files of Daten that have a form, and all that were there.
std::set<std::string> filesToExamine(const Paths& paths, const Latest& latest,
                                     const Wanted& wanted) {
    std::set<std::string> names;
    std::error_code failed;
    std::error_code ignored;
    for (fs::directory_iterator entry(dataFolder(paths), failed), end; !failed && entry != end;
         entry.increment(failed))
        if (const std::optional<std::string> name = paths.nameOf(entry->path());
            name && wanted(*name) && entry->is_regular_file(ignored) && Latest::covers(*name) &&
            layoutOf(*name))
            names.insert(*name);
    // The lists of grades are looked at by the program that opens them: old ones may go.
    for (std::string& name : latest.names([&wanted](const std::string& name) {
             return wanted(name) && layoutOf(name) && !isReportList(name);
         }))
        names.insert(std::move(name));
    return names;
}

// The dated copies of a store, the newest first.
std::vector<fs::path> copiesOf(const Paths& paths, const std::string& name) {
    std::vector<std::pair<fs::file_time_type, fs::path>> dated;
    std::error_code ignored;
    for (const fs::path& file : filesEndingIn(dataFolder(paths) / "Sicherheit", ".txt"))
        for (const Speicherdatei& store : speicherdateien::Alle)
            if (sameIgnoringCase(shownName(name),
                                 Text(dateien::Daten) + u"\\" + Text(store.Datei)) &&
                sameIgnoringCase(
                    TextView(textFromPath(file.filename())).substr(0, store.Kopie.size()),
                    store.Kopie))
                dated.emplace_back(fs::last_write_time(file, ignored), file);
    std::sort(dated.rbegin(), dated.rend());
    std::vector<fs::path> files;
    files.reserve(dated.size());
    for (auto& [time, file] : dated)
        files.push_back(std::move(file));
    return files;
}

class Examination {
  public:
    explicit Examination(const fs::path& programFolder)
        : m_paths(programFolder), m_latest(programFolder), m_states(programFolder) {
        const fs::path list =
            resolved(m_paths, Text(dateien::Daten) + u"\\" + Text(dateien::Namen));
        const std::string name = m_paths.nameOf(list).value_or(std::string());
        std::error_code failed;
        const bool tooLarge = fs::file_size(list, failed) > LargestFile && !failed;
        const raw::Content names = tooLarge ? raw::Content() : raw::read(list);
        m_size = classSizeOf(names.bytes);
        // A damaged list is no measure for the others.
        if (const auto kept = m_latest.of(name);
            kept && (tooLarge || flawOf(name, names.bytes, m_size)))
            m_size = classSizeOf(*kept);
    }

    std::vector<Finding> of(const Wanted& wanted) {
        std::vector<Finding> findings;
        for (const std::string& name : filesToExamine(m_paths, m_latest, wanted))
            if (std::optional<Finding> finding = examineOne(name))
                findings.push_back(std::move(*finding));
        return findings;
    }

  private:
    std::optional<Finding> examineOne(const std::string& name) {
        const std::optional<fs::path> file = m_paths.fileOf(name);
        std::error_code ignored;
        // Reading anything else may never end.
        if (!file || (fs::exists(*file, ignored) && !fs::is_regular_file(*file, ignored)))
            return finding(name, {.kind = Damage::Unreadable}, {}, m_latest.of(name));
        if (const auto size = fs::file_size(*file, ignored); !ignored && size > LargestFile)
            return finding(name, {.kind = Damage::TooLarge}, {}, m_latest.of(name));
        const raw::Content held = raw::read(*file);
        const std::optional<std::string> kept = m_latest.of(name);
        if (held.error == ENOENT)
            return finding(name, {.kind = Damage::Missing}, held.bytes, kept);
        if (held.error != 0)
            return finding(name, {.kind = Damage::Unreadable}, held.bytes, kept);
        if (const std::optional<Flaw> flaw = flawOf(name, held.bytes, m_size))
            return finding(name, *flaw, held.bytes, kept);
        if (held.bytes == kept)
            return std::nullopt;
        if (held.bytes.empty() && kept)
            return finding(name, {.kind = Damage::Empty}, held.bytes, kept);
        if (kept && !isOurOwn(name, *kept))
            return finding(name, {.kind = Damage::ChangedByHand}, held.bytes, kept);
        m_latest.keep(name, held.bytes);
        return std::nullopt;
    }

    // Reading them all takes a while, and most starts need none.
    [[nodiscard]] const std::vector<State>& states() const {
        if (!m_stateList)
            m_stateList = m_states.list();
        return *m_stateList;
    }

    // The copy may lag behind by one save if the power has failed.
    [[nodiscard]] bool isOurOwn(const std::string& name, const std::string& kept) const {
        for (const State& state : states())
            if (std::find(state.files.begin(), state.files.end(), name) != state.files.end())
                for (const Former& one : m_states.read(state.id).value_or(Journal()).files)
                    if (one.name == name)
                        return one.content == kept;
        return false;
    }

    Finding finding(const std::string& name, const Flaw& flaw, const std::string& held,
                    const std::optional<std::string>& kept) const {
        Finding found{.kind = flaw.kind,
                      .file = name,
                      .record = flaw.record,
                      .pupil = flaw.pupil,
                      .field = flaw.field,
                      .sentence = {},
                      .consequence = {},
                      .good = lastGood(name, flaw, held, kept)};
        describe(found, flaw, m_size.pupils.size());
        return found;
    }

    [[nodiscard]] bool isGood(const std::string& name, const std::string& content) const {
        return !content.empty() && !flawOf(name, content, m_size);
    }

    [[nodiscard]] std::optional<GoodState> lastGood(const std::string& name, const Flaw& flaw,
                                                    const std::string& held,
                                                    const std::optional<std::string>& kept) const {
        if (flaw.kind == Damage::Encoding)
            if (std::optional<std::string> converted = fromUtf8(held);
                converted && isGood(name, *converted))
                return GoodState{u"der jetzige Inhalt, umgewandelt", std::move(*converted)};
        if (kept && isGood(name, *kept))
            return GoodState{u"wie zuletzt gespeichert", *kept};
        for (const fs::path& copy : copiesOf(m_paths, name))
            if (raw::Content content = raw::read(copy);
                content.error == 0 && isGood(name, content.bytes))
                return GoodState{u"die Kopie „" + textFromPath(copy.filename()) + u"“",
                                 std::move(content.bytes)};
        for (const State& state : states())
            for (Former& one : m_states.read(state.id).value_or(Journal()).files)
                if (one.name == name && one.content && isGood(name, *one.content))
                    return GoodState{u"vor dem " + shownDay(state.when) + u", " +
                                         shownTime(state.when) + u" Uhr",
                                     std::move(*one.content)};
        return std::nullopt;
    }

    Paths m_paths;
    Latest m_latest;
    States m_states;
    mutable std::optional<std::vector<State>> m_stateList = std::nullopt;
    ClassSize m_size;
};

} // namespace

std::vector<Finding> examine(const fs::path& programFolder) {
    return examine(programFolder, [](const std::string&) { return true; });
}

std::vector<Finding> examine(const fs::path& programFolder, const Wanted& wanted) {
    return Examination(programFolder).of(wanted);
}

void accept(const fs::path& programFolder, const std::string& file, Moment when) {
    const Latest latest(programFolder);
    const Paths paths(programFolder);
    const std::optional<fs::path> path = paths.fileOf(file);
    if (!path)
        return;
    const raw::Content held = raw::read(*path);
    if (held.error != 0)
        return;
    if (const std::optional<std::string> kept = latest.of(file))
        States(programFolder).add(when, u"Von Hand geändert: " + shownName(file), {{file, *kept}});
    latest.keep(file, held.bytes);
}

void bringBackGood(const Arbeitsverzeichnis& directory, Guard& guard, const Finding& finding) {
    if (!finding.good)
        return;
    const WriteUnit unit(directory.watcher());
    guard.nameUnit(u"Zurückgeholt: " + shownName(finding.file));
    writeWholeFile(directory, shownName(finding.file), finding.good->content);
}

Text withGermanQuotes(TextView text) {
    Text replaced;
    bool opening = true;
    for (const char16_t unit : text) {
        replaced += unit != u'"' ? unit : opening ? u'„' : u'“';
        opening = unit == u'"' ? !opening : opening;
    }
    return replaced;
}

} // namespace zeugnis::safety
