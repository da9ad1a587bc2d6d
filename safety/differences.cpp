#include "safety/differences.h"

#include "platform/code_page.h"
#include "platform/raw_file.h"
#include "safety/layouts.h"
#include "safety/records.h"

#include <algorithm>
#include <deque>
#include <map>

namespace zeugnis::safety {
namespace {

Text lineOf(const Record& record) {
    Text line;
    for (const Field& field : record.fields)
        line += (line.empty() ? u"" : u", ") + field.value;
    return line;
}

// Which record of now belongs to which former one: by name where there are names (the n-th of a
// name to the n-th), else by position.
class Pairing {
  public:
    Pairing(const std::vector<Record>& current, const Layout& layout) : m_layout(layout) {
        for (size_t i = 0; i < current.size(); ++i)
            m_places[key(current[i], i)].push_back(i);
    }

    std::optional<size_t> take(const Record& former, size_t position) {
        std::deque<size_t>& places = m_places[key(former, position)];
        if (places.empty())
            return std::nullopt;
        const size_t place = places.front();
        places.pop_front();
        return place;
    }

    [[nodiscard]] std::vector<size_t> left() const {
        std::vector<size_t> all;
        for (const auto& [name, places] : m_places)
            all.insert(all.end(), places.begin(), places.end());
        std::sort(all.begin(), all.end());
        return all;
    }

  private:
    [[nodiscard]] Text key(const Record& record, size_t position) const {
        const Text pupil = pupilOf(record, m_layout);
        return pupil.empty() ? textFromNumber(static_cast<int>(position)) : pupil;
    }

    const Layout& m_layout;
    std::map<Text, std::deque<size_t>> m_places;
};

class Comparing {
  public:
    Comparing(const std::string& file, Layout layout) : m_file(file), m_layout(std::move(layout)) {}

    std::vector<Difference> all(const std::vector<Record>& former,
                                const std::vector<Record>& current) {
        Pairing pairing(current, m_layout);
        for (size_t i = 0; i < former.size(); ++i) {
            if (const std::optional<size_t> place = pairing.take(former[i], i))
                compare(former[i], current[*place], *place);
            else
                m_found.push_back({Difference::Kind::OnlyFormer,
                                   m_file,
                                   pupilOf(former[i], m_layout),
                                   u"Eintrag",
                                   lineOf(former[i]),
                                   {},
                                   i,
                                   0});
        }
        for (const size_t place : pairing.left())
            m_found.push_back({Difference::Kind::OnlyNow,
                               m_file,
                               pupilOf(current[place], m_layout),
                               u"Eintrag",
                               {},
                               lineOf(current[place]),
                               place,
                               0});
        return std::move(m_found);
    }

  private:
    void compare(const Record& former, const Record& current, size_t place) {
        const size_t count = std::max(former.fields.size(), current.fields.size());
        for (size_t i = 0; i < count; ++i) {
            const Text before = i < former.fields.size() ? former.fields[i].value : Text();
            const Text now = i < current.fields.size() ? current.fields[i].value : Text();
            if (before != now)
                m_found.push_back({Difference::Kind::Changed, m_file, pupilOf(current, m_layout),
                                   nameOf(i, place), before, now, place, i});
        }
    }

    [[nodiscard]] Text nameOf(size_t field, size_t record) const {
        Text name = field < m_layout.fields.size()
                        ? m_layout.fields[field]
                        : u"Feld " + textFromNumber(static_cast<int>(field) + 1);
        if (m_layout.byPupil || m_layout.texts.empty() || m_layout.texts.front())
            return name;
        return u"Zeile " + textFromNumber(static_cast<int>(record) + 1) + u", " + name;
    }

    const std::string& m_file;
    Layout m_layout;
    std::vector<Difference> m_found;
};

} // namespace

std::vector<Difference> differencesTo(const Paths& paths, const Former& former) {
    const std::optional<std::filesystem::path> file = paths.fileOf(former.name);
    if (!file)
        return {};
    const raw::Content held = raw::read(*file);
    const std::string content = former.content.value_or(std::string());
    if (content == held.bytes)
        return {};
    return Comparing(former.name, layoutOf(former.name).value_or(Layout()))
        .all(recordsOf(decodeWindows1252(content)), recordsOf(decodeWindows1252(held.bytes)));
}

std::vector<Difference> differencesTo(const Paths& paths, const std::vector<Former>& formers) {
    std::vector<Difference> all;
    for (const Former& former : formers)
        for (Difference& one : differencesTo(paths, former))
            all.push_back(std::move(one));
    return all;
}

} // namespace zeugnis::safety
