#include "rescue/saved_state.h"

#include "behaviour/avsv_editor.h"
#include "files/file_catalogue.h"
#include "files/section_stores.h"
#include "masterdata/master_data_screen.h"
#include "platform/raw_file.h"
#include "rescue/held_texts.h"
#include "safety/layouts.h"
#include "safety/paths.h"

#include <algorithm>

namespace zeugnis::rescue {
namespace {

using safety::Typed;

std::string inData(TextView file) { return utf8FromText(Text(dateien::Daten) + u"/" + Text(file)); }

// Locks and choices come with their texts.
void keepTexts(std::vector<Typed>& held) {
    std::map<std::string, std::optional<safety::Layout>> layouts;
    std::erase_if(held, [&](const Typed& one) {
        const auto [layout, isNew] = layouts.try_emplace(one.file);
        if (isNew)
            layout->second = safety::layoutOf(one.file);
        return layout->second && one.field < layout->second->texts.size() &&
               !layout->second->texts[one.field];
    });
}

// What the net need not bring back, but a save writes.
void addColours(const GSAVSVAenderung& editor, std::vector<Typed>& held) {
    constexpr size_t FirstColour = 2;
    for (const bool av : {true, false})
        for (int k = 0; k < (av ? KategorienAV : KategorienSV); ++k)
            for (int line = 0; line < 9; ++line)
                held.push_back(
                    {inData(av ? dateien::AVKategorien : dateien::SVKategorien),
                     {},
                     static_cast<size_t>(k) + 1,
                     FirstColour + static_cast<size_t>(line),
                     textFromNumber((av ? editor.FormulierungenAV : editor.FormulierungenSV)
                                        .Zeilenfarben[line][k])});
}

void addRestOfMasterData(const GsBasis& basis, std::vector<Typed>& held) {
    constexpr int ClassBox = 5;
    held.push_back({inData(dateien::Sibankpfad), {}, 1, 0, basis.Text1(SibankFeld).text()});
    size_t number = 0;
    for (const Text& group : basis.List1.entries())
        held.push_back({inData(dateien::AGListe), {}, ++number, 0, group});
    for (int i = 0; i < basis.Liste.Schuelerzahl; ++i)
        held.push_back({inData(dateien::Namen),
                        basis.Liste.Kinder[i].Nachname + u", " + basis.Liste.Kinder[i].Vorname, 0,
                        1, basis.Text1(ClassBox).text()});
}

// The editor of the lines frees them of blanks when a category is left, and at a save.
Typed cleaned(Typed line) {
    if (line.file == inData(dateien::TexteAV) || line.file == inData(dateien::TexteSV))
        for (int times = 0; times < 2; ++times)
            line.value = LeerzeichenBereinigen(trimmed(line.value));
    return line;
}

bool sameButForBlanks(const std::vector<Typed>& one, const std::vector<Typed>& other) {
    return std::equal(
        one.begin(), one.end(), other.begin(), other.end(),
        [](const Typed& a, const Typed& b) { return a == b || cleaned(a) == cleaned(b); });
}

std::vector<Typed> writtenBySave(const Screen& screen) {
    std::vector<Typed> held = heldBy(screen);
    keepTexts(held);
    const auto* editor = dynamic_cast<const GSAVSVAenderung*>(&screen);
    if (editor != nullptr && editor->Geladen)
        addColours(*editor, held);
    if (const auto* basis = dynamic_cast<const GsBasis*>(&screen))
        addRestOfMasterData(*basis, held);
    return held;
}

} // namespace

SavedState::SavedState(const Screen& screen, std::filesystem::path programFolder,
                       safety::Clock clock)
    : m_screen(screen), m_folder(std::move(programFolder)), m_clock(std::move(clock)) {}

void SavedState::look() {
    std::vector<Typed> held = writtenBySave(m_screen);
    if (held.empty())
        return;
    Written written = writtenAt(held);
    const bool first = m_written.empty();
    const bool wasWritten = !first && written != m_written;
    m_written = std::move(written);
    if (first) {
        m_settled = std::move(held);
        return;
    }
    if (wasWritten || m_lacking) {
        m_lacking = !isInFiles(held);
        if (!m_lacking)
            m_settled = held;
    }
    if (wasWritten && !m_lacking)
        m_saved = m_clock();
    m_changed = m_lacking || !sameButForBlanks(held, m_settled);
}

bool SavedState::isInFiles(const std::vector<Typed>& held) const {
    std::vector<Typed> missing = safety::notInFiles(m_folder, held);
    std::transform(missing.begin(), missing.end(), missing.begin(), cleaned);
    return missing.empty() || safety::notInFiles(m_folder, missing).empty();
}

SavedState::Written SavedState::writtenAt(const std::vector<Typed>& held) const {
    const safety::Paths paths(m_folder);
    Written written;
    for (const Typed& one : held) {
        const auto [time, isNew] = written.try_emplace(one.file);
        if (const auto file = isNew ? paths.fileOf(one.file) : std::nullopt)
            time->second = raw::writtenAt(*file);
    }
    return written;
}

} // namespace zeugnis::rescue
