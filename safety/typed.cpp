#include "safety/typed.h"

#include "platform/code_page.h"
#include "platform/path_text.h"
#include "platform/process.h"
#include "platform/raw_file.h"
#include "safety/damage.h"
#include "safety/layouts.h"
#include "safety/states.h"
#include "safety/typed_format.h"

#include <algorithm>
#include <cerrno>

namespace zeugnis::safety {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view Ending = ".getippt";

// The place in a file that something typed would go to; null without one.
class Place {
  public:
    Place(const Typed& typed, TextView content)
        : m_layout(layoutOf(typed.file)), m_records(recordsOf(content)) {
        const Record* record =
            m_layout ? recordFor(m_records, *m_layout, typed.pupil, typed.number) : nullptr;
        if (record != nullptr && typed.field < record->fields.size())
            m_field = &record->fields[typed.field];
    }
    [[nodiscard]] const Field* field() const { return m_field; }
    [[nodiscard]] Text fieldName(size_t field) const {
        return m_layout && field < m_layout->fields.size() ? m_layout->fields[field] : Text();
    }

  private:
    std::optional<Layout> m_layout;
    std::vector<Record> m_records;
    const Field* m_field = nullptr;
};

Text contentOf(const Paths& paths, const std::string& name) {
    const std::optional<fs::path> file = paths.fileOf(name);
    return file ? decodeWindows1252(raw::read(*file).bytes) : Text();
}

// The files as they would be with everything that was typed.
std::vector<Former> withTyped(const Paths& paths, const std::vector<Typed>& all) {
    std::map<std::string, Text> contents;
    for (const Typed& one : all) {
        Text& content = contents.try_emplace(one.file, contentOf(paths, one.file)).first->second;
        const Place place(one, content);
        // As a save could write it.
        const Text value = nearestInWindows1252(withGermanQuotes(one.value));
        if (const Field* field = place.field())
            content.replace(field->begin, field->end - field->begin,
                            field->quoted ? u"\"" + value + u"\"" : value);
    }
    std::vector<Former> formers;
    for (const auto& [name, content] : contents)
        if (content != contentOf(paths, name))
            formers.push_back({name, encodeWindows1252(content)});
    return formers;
}

} // namespace

std::vector<Typed> notInFiles(const fs::path& programFolder, const std::vector<Typed>& all) {
    struct File {
        std::optional<Layout> layout;
        std::vector<Record> records;
    };
    const Paths paths(programFolder);
    std::map<std::string, File> files;
    std::vector<Typed> missing;
    for (const Typed& one : all) {
        const auto [place, isNew] = files.try_emplace(one.file);
        File& file = place->second;
        if (isNew)
            file = {layoutOf(one.file), recordsOf(contentOf(paths, one.file))};
        const Record* record =
            file.layout ? recordFor(file.records, *file.layout, one.pupil, one.number) : nullptr;
        if (record == nullptr || one.field >= record->fields.size() ||
            record->fields[one.field].value != one.value)
            missing.push_back(one);
    }
    return missing;
}

TypedStore::TypedStore(const fs::path& programFolder, Clock clock)
    : m_paths(programFolder),
      m_clock(std::move(clock)),
      m_run(journalStem(m_clock(), 0) + '-' + std::to_string(ownProcess())) {}

fs::path TypedStore::fileOf(const std::string& run) const {
    return m_paths.typed / (run + std::string(Ending));
}

int TypedStore::write(const std::string& run, Moment when, const Screens& screens) const {
    const fs::path file = fileOf(run);
    if (screens.empty()) {
        const int error = raw::remove(file);
        return error == 0 ? raw::syncFolder(m_paths.typed) : error == ENOENT ? 0 : error;
    }
    if (const int error = makeFolder(m_paths, m_paths.typed); error != 0)
        return error;
    return raw::replaceByRename(file, runBytes({when, screens}), raw::Durability::AtOnce);
}

int TypedStore::set(const Text& screen, const std::vector<Typed>& all) {
    const auto found = m_screens.find(screen);
    if (found == m_screens.end() ? all.empty() : found->second == all)
        return 0;
    if (all.empty())
        m_screens.erase(found);
    else
        m_screens[screen] = all;
    return write(m_run, m_clock(), m_screens);
}

int TypedStore::discard(const Text& screen, const Text& action) {
    const auto found = m_screens.find(screen);
    if (found == m_screens.end())
        return 0;
    if (const std::vector<Former> formers = withTyped(m_paths, found->second); !formers.empty())
        if (const int error = States(m_paths.program).add(m_clock(), action, formers); error != 0)
            return error;
    return set(screen, {});
}

std::vector<Offer> TypedStore::offers() {
    std::vector<Offer> all;
    std::vector<fs::path> files = filesEndingIn(m_paths.typed, Ending);
    std::reverse(files.begin(), files.end());
    for (const fs::path& file : files) {
        const std::string name = utf8FromPath(file.stem());
        const raw::Content content = raw::read(file);
        if (name == m_run || content.error != 0)
            continue;
        const std::optional<Run> run = runFrom(content.bytes);
        if (!run) {
            fs::path aside = file;
            aside += Damaged;
            raw::rename(file, aside);
            continue;
        }
        if (m_clock() - run->when > TypedKept) {
            raw::remove(file);
            continue;
        }
        for (const auto& [screen, typed] : run->screens)
            for (const Typed& one : typed) {
                const Place place(one, contentOf(m_paths, one.file));
                const Text inFile = place.field() != nullptr ? place.field()->value : Text();
                if (inFile != one.value)
                    all.push_back(
                        {name, run->when, screen, one, place.fieldName(one.field), inFile});
            }
    }
    return all;
}

int TypedStore::settle(const Offer& offer) {
    const raw::Content content = raw::read(fileOf(offer.run));
    if (content.error != 0)
        return content.error == ENOENT ? 0 : content.error;
    std::optional<Run> run = runFrom(content.bytes);
    if (!run || offer.run == m_run)
        return 0;
    std::vector<Typed>& typed = run->screens[offer.screen];
    std::erase(typed, offer.typed);
    if (typed.empty())
        run->screens.erase(offer.screen);
    return write(offer.run, run->when, run->screens);
}

} // namespace zeugnis::safety
