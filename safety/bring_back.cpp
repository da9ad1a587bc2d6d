#include "safety/bring_back.h"

#include "files/file_catalogue.h"
#include "platform/code_page.h"
#include "platform/whole_file.h"
#include "safety/layouts.h"
#include "safety/records.h"

#include <algorithm>
#include <map>

namespace zeugnis::safety {
namespace {

// A field in the place of another, as it stands in the former content: with its quotes or without.
struct Change {
    size_t record;
    size_t field;
    Text raw;
};

const Former* find(const std::vector<Former>& formers, const std::string& name) {
    const auto found = std::find_if(formers.begin(), formers.end(), [&](const Former& one) {
        return one.content && sameIgnoringCase(shownName(one.name), shownName(name));
    });
    return found == formers.end() ? nullptr : &*found;
}

// The files as they are, with changes that go to the disk together.
class Pending {
  public:
    explicit Pending(const Arbeitsverzeichnis& directory) : m_directory(directory) {}

    struct File {
        Text content;
        std::vector<Record> records;
        std::vector<Change> changes;
    };

    File& file(const std::string& name) {
        const auto [place, made] = m_files.try_emplace(name);
        if (made) {
            place->second.content = decodeWindows1252(readWholeFile(m_directory, shownName(name)));
            place->second.records = recordsOf(place->second.content);
        }
        return place->second;
    }

    [[nodiscard]] bool changed() const {
        return std::any_of(m_files.begin(), m_files.end(),
                           [](const auto& one) { return !one.second.changes.empty(); });
    }

    void write() {
        for (auto& [name, file] : m_files) {
            // From behind, so that the places in front stay.
            std::sort(file.changes.begin(), file.changes.end(),
                      [](const Change& a, const Change& b) {
                          return std::pair(a.record, a.field) > std::pair(b.record, b.field);
                      });
            for (const Change& change : file.changes) {
                const Field& field = file.records[change.record].fields[change.field];
                file.content.replace(field.begin, field.end - field.begin, change.raw);
            }
            if (!file.changes.empty())
                writeWholeFile(m_directory, shownName(name), encodeWindows1252(file.content));
        }
    }

  private:
    const Arbeitsverzeichnis& m_directory;
    std::map<std::string, File> m_files;
};

// Takes over the fields from `from` to `to` of a child's record. False without such a record.
bool takeOver(Pending& pending, const Former& former, const Text& pupil, size_t from, size_t to) {
    const std::optional<Layout> layout = layoutOf(former.name);
    if (!layout || !layout->byPupil)
        return false;
    const Text content = decodeWindows1252(*former.content);
    const std::vector<Record> records = recordsOf(content);
    Pending::File& file = pending.file(former.name);
    const Record* then = recordFor(records, *layout, pupil);
    const Record* now = recordFor(file.records, *layout, pupil);
    if (then == nullptr || now == nullptr || then->fields.size() < layout->fields.size() ||
        now->fields.size() < layout->fields.size())
        return false;
    for (size_t i = from; i < std::min(to, layout->fields.size()); ++i)
        if (const Field& field = then->fields[i]; field.value != now->fields[i].value)
            file.changes.push_back({static_cast<size_t>(now - file.records.data()), i,
                                    content.substr(field.begin, field.end - field.begin)});
    return true;
}

// The names of the children in the order of a content.
std::vector<Text> pupilsIn(const Text& content, const Layout& layout) {
    std::vector<Text> names;
    for (const Record& record : recordsOf(content))
        names.push_back(pupilOf(record, layout));
    return names;
}

Text lineOf(const Text& content, const Record& record) {
    return content.substr(record.fields.front().begin,
                          record.fields.back().end - record.fields.front().begin);
}

// A store by pupil in the order of the class list, if both name the same children: the screens read
// it by place. Anything else stays as it was.
std::string inOrderOf(const std::vector<Text>& pupils, const Former& former) {
    const std::optional<Layout> layout = layoutOf(former.name);
    const Text content = decodeWindows1252(*former.content);
    if (!layout || !layout->byPupil)
        return *former.content;
    std::vector<Text> then = pupilsIn(content, *layout);
    std::vector<Text> now = pupils;
    std::sort(then.begin(), then.end());
    std::sort(now.begin(), now.end());
    if (then != now || std::adjacent_find(now.begin(), now.end()) != now.end() ||
        pupilsIn(content, *layout) == pupils)
        return *former.content;
    const std::vector<Record> records = recordsOf(content);
    Text ordered;
    for (size_t i = 0; i < pupils.size(); ++i) {
        const Record& record = *recordFor(records, *layout, pupils[i]);
        Text line = lineOf(content, record);
        const Field& number = record.fields.front();
        line.replace(0, number.end - number.begin, textFromNumber(static_cast<int>(i) + 1));
        ordered += line + Text(Zeilenende);
    }
    return encodeWindows1252(ordered);
}

void write(const Arbeitsverzeichnis& directory, Guard& guard, Pending& pending,
           const Text& action) {
    const WriteUnit unit(directory.watcher());
    guard.nameUnit(action);
    pending.write();
}

bool stillAsTold(Pending& pending, const Difference& difference) {
    const std::vector<Record>& records = pending.file(difference.file).records;
    return difference.kind == Difference::Kind::Changed && difference.record < records.size() &&
           difference.field < records[difference.record].fields.size() &&
           records[difference.record].fields[difference.field].value == difference.current;
}

// Back in the form that the field has now.
Text rawFor(const Field& field, const Text& value) {
    return field.quoted ? u"\"" + value + u"\"" : value;
}

} // namespace

bool bringBackText(const Arbeitsverzeichnis& directory, Guard& guard,
                   const std::vector<Former>& formers, const Difference& difference) {
    Pending pending(directory);
    if (!stillAsTold(pending, difference))
        return false;
    Pending::File& file = pending.file(difference.file);
    const Field& field = file.records[difference.record].fields[difference.field];
    file.changes.push_back({difference.record, difference.field, rawFor(field, difference.former)});
    if (const Former* locks = find(formers, lockStoreOf(difference.file)))
        takeOver(pending, *locks, difference.pupil, difference.field, difference.field + 1);
    write(directory, guard, pending,
          u"Zurückgeholt: " + difference.what +
              (difference.pupil.empty() ? Text() : u" von " + difference.pupil));
    return true;
}

bool bringBackPupil(const Arbeitsverzeichnis& directory, Guard& guard,
                    const std::vector<Former>& formers, const Text& pupil) {
    Pending pending(directory);
    for (const Former& former : formers) {
        const bool copy = shownName(former.name).find(dateien::Sicherheit) != Text::npos;
        if (const auto layout = layoutOf(former.name);
            former.content && !copy && layout && layout->byPupil)
            takeOver(pending, former, pupil, layout->familyName + 2, layout->fields.size());
    }
    if (!pending.changed())
        return false;
    write(directory, guard, pending, u"Zurückgeholt: alles von " + pupil);
    return true;
}

void bringBackAll(const Arbeitsverzeichnis& directory, Guard& guard,
                  const std::vector<Former>& formers) {
    const WriteUnit unit(directory.watcher());
    guard.nameUnit(u"Zurückgeholt: ein früherer Stand");
    const Text list = Text(dateien::Daten) + u"\\" + Text(dateien::Namen);
    const std::string listName = utf8FromText(list);
    const Former* formerList = find(formers, listName);
    const Text names = decodeWindows1252(formerList != nullptr ? *formerList->content
                                                               : readWholeFile(directory, list));
    const std::vector<Text> pupils = pupilsIn(names, *layoutOf("Daten/Namen.Txt"));
    for (const Former& former : formers)
        if (former.content)
            writeWholeFile(directory, shownName(former.name), inOrderOf(pupils, former));
}

} // namespace zeugnis::safety
