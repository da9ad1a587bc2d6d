#include "rescue/last_term.h"

#include "files/file_catalogue.h"
#include "files/pupil_list.h"
#include "files/section_stores.h"
#include "masterdata/master_data_screen.h"
#include "platform/code_page.h"
#include "platform/path_text.h"
#include "platform/raw_file.h"
#include "safety/layouts.h"
#include "safety/paths.h"
#include "safety/records.h"
#include "safety/states.h"

#include <algorithm>
#include <array>

namespace zeugnis::rescue {
namespace fs = std::filesystem;
namespace {

using safety::Former;

constexpr size_t BehindNames = 4; // number, class and names stand in front
constexpr std::array TextStores = {speicherdateien::AVSVTexte, speicherdateien::Texte12,
                                   speicherdateien::Texte34};

std::string inData(TextView file) { return utf8FromText(Text(dateien::Daten) + u"/" + Text(file)); }

bool isFile(const std::string& name, TextView file) {
    return sameIgnoringCase(textFromUtf8(name), Text(dateien::Daten) + u"/" + Text(file));
}

Text contentOf(const fs::path& folder, TextView file) {
    const auto path = safety::Paths(folder).fileOf(inData(file));
    return path ? decodeWindows1252(raw::read(*path).bytes) : Text();
}

Text field(const Text& content, size_t index) {
    const std::vector<safety::Record> records = safety::recordsOf(content);
    return records.empty() || index >= records.back().fields.size()
               ? Text()
               : records.back().fields[index].value;
}

struct Term {
    Text year;
    Text half;
    Text schoolClass;

    bool operator==(const Term&) const = default;
};

void learnTerm(Term& term, const std::string& file, const Text& content) {
    constexpr size_t Year = 5;
    constexpr size_t Half = 6;
    if (isFile(file, dateien::Basisdaten)) {
        term.year = field(content, Year);
        term.half = field(content, Half);
    } else if (isFile(file, dateien::Namen)) {
        term.schoolClass = field(content, 1);
    }
}

Term currentTerm(const fs::path& folder) {
    Term term;
    for (const TextView file : {dateien::Basisdaten, dateien::Namen})
        learnTerm(term, inData(file), contentOf(folder, file));
    return term;
}

Text shown(const Term& term) {
    return term.schoolClass + u", " + term.half + u". Halbjahr " + term.year;
}

bool hasText(const Text& content) {
    const std::vector<safety::Record> records = safety::recordsOf(content);
    return std::any_of(records.begin(), records.end(), [](const safety::Record& record) {
        return std::any_of(record.fields.begin() +
                               std::ptrdiff_t(std::min(BehindNames, record.fields.size())),
                           record.fields.end(),
                           [](const safety::Field& one) { return !trimmed(one.value).empty(); });
    });
}

} // namespace

// Back through time: before an action the files held what its state holds. The stores are blanked
// before the new half-year is written, so the texts stand in a state that is older still.
LastTerm::LastTerm(const fs::path& programFolder) {
    const Term now = currentTerm(programFolder);
    Term then = now;
    std::map<std::string, Text> stores;
    const safety::States states(programFolder);
    for (const safety::State& state : states.list()) {
        const auto journal = states.read(state.id);
        if (!journal)
            continue;
        for (const Former& former : journal->files) {
            const Text content = decodeWindows1252(former.content.value_or(std::string()));
            learnTerm(then, former.name, content);
            for (const Speicherdatei& store : TextStores)
                if (isFile(former.name, store.Datei))
                    stores[inData(store.Datei)] = content;
        }
        const bool isEarlier = then.year != now.year || then.half != now.half;
        if (isEarlier && std::any_of(stores.begin(), stores.end(),
                                     [](const auto& one) { return hasText(one.second); })) {
            m_name = shown(then);
            m_stores = std::move(stores);
            return;
        }
    }
}

std::vector<LastTerm::Section> LastTerm::of(const Schueler& child) const {
    std::vector<Section> sections;
    for (const auto& [file, content] : m_stores) {
        const auto layout = safety::layoutOf(file);
        const std::vector<safety::Record> records = safety::recordsOf(content);
        const safety::Record* record =
            safety::recordFor(records, *layout, child.Nachname + u", " + child.Vorname);
        if (record == nullptr)
            continue;
        for (size_t i = BehindNames; i < std::min(record->fields.size(), layout->fields.size());
             ++i)
            if (!trimmed(record->fields[i].value).empty())
                sections.push_back(
                    {file, i - BehindNames, layout->fields[i], record->fields[i].value});
    }
    return sections;
}

Text termOf(const fs::path& programFolder) { return shown(currentTerm(programFolder)); }

Blanking blanksTexts(const Control& control, const fs::path& programFolder) {
    const auto* basis = dynamic_cast<const GsBasis*>(&control.screen());
    if (basis == nullptr || (&control != &basis->Command3 && &control != &basis->Command5))
        return {};
    const bool any =
        std::any_of(TextStores.begin(), TextStores.end(), [&](const Speicherdatei& store) {
            return hasText(contentOf(programFolder, store.Datei));
        });
    return {.happens = any, .atOnce = &control == &basis->Command3};
}

int keepState(const fs::path& programFolder, const fs::path& into, const Text& name) {
    const safety::Paths paths(programFolder);
    std::vector<Former> files;
    std::error_code failed;
    const auto take = [&](const fs::path& folder) {
        for (const fs::path& file : safety::filesEndingIn(folder, "", failed)) {
            const auto inside = paths.nameOf(file);
            if (inside && safety::layoutOf(*inside))
                files.push_back({*inside, raw::read(file).bytes});
        }
    };
    take(paths.program / pathFromText(dateien::Daten));
    take(paths.program);
    return safety::States(into).keep(safety::now(), name, files);
}

} // namespace zeugnis::rescue
