#include "rescue/typed_keeper.h"

#include "controls/program.h"
#include "rescue/held_texts.h"
#include "safety/layouts.h"

#include <algorithm>
#include <utility>

namespace zeugnis::rescue {

using safety::Typed;

TypedKeeper::TypedKeeper(Programm& programm, const std::filesystem::path& programFolder,
                         safety::Clock clock)
    : m_programm(programm), m_folder(programFolder), m_store(programFolder, std::move(clock)) {}

TypedKeeper::Place TypedKeeper::placeOf(const Typed& typed) {
    return {typed.file, typed.pupil, typed.number, typed.field};
}

bool TypedKeeper::isLoaded(const Screen* screen) const {
    const auto& loaded = m_programm.screens();
    return std::find(loaded.begin(), loaded.end(), screen) != loaded.end();
}

void TypedKeeper::note(Watched& watched) {
    if (watched.screen == nullptr || !isLoaded(watched.screen))
        return;
    const std::vector<Typed> held = heldBy(*watched.screen);
    if (watched.saved.empty())
        for (const Typed& one : held)
            watched.saved.emplace(placeOf(one), one.value);
    watched.unsaved.clear();
    for (const Typed& one : held) {
        const auto saved = watched.saved.find(placeOf(one));
        if (saved == watched.saved.end() || saved->second != one.value)
            watched.unsaved.push_back(one);
    }
}

void TypedKeeper::note() {
    for (auto& [name, watched] : m_watched)
        note(watched);
}

void TypedKeeper::countAsSaved() {
    for (auto& [name, watched] : m_watched) {
        watched.left = safety::notInFiles(m_folder, watched.left);
        if (watched.unsaved.empty())
            continue;
        const std::vector<Typed> missing = safety::notInFiles(m_folder, watched.unsaved);
        for (const Typed& one : watched.unsaved)
            if (std::find(missing.begin(), missing.end(), one) == missing.end())
                watched.saved[placeOf(one)] = one.value;
        watched.unsaved = missing;
    }
}

void TypedKeeper::part(const Text& name, Watched& watched, bool knowingly) {
    if (knowingly && !watched.unsaved.empty()) {
        m_store.set(name, watched.unsaved);
        m_store.discard(name, u"Nicht gespeichert (auf Ihr „Nein“ hin)");
    } else {
        watched.left.insert(watched.left.end(), watched.unsaved.begin(), watched.unsaved.end());
    }
    watched.unsaved.clear();
    watched.saved.clear();
    watched.screen = nullptr;
}

void TypedKeeper::actionEnded() {
    note();
    if (std::exchange(m_kept, false))
        countAsSaved();
    for (auto& [name, watched] : m_watched) {
        const bool knowingly =
            m_saidNo || std::find(m_closedKnowingly.begin(), m_closedKnowingly.end(),
                                  watched.screen) != m_closedKnowingly.end();
        if (watched.screen != nullptr &&
            (!isLoaded(watched.screen) || (m_programm.ended() && knowingly))) {
            part(name, watched, knowingly);
            setDown();
        }
    }
    for (const Screen* screen : m_programm.screens()) {
        Watched& watched = m_watched[screen->name()];
        if (watched.screen == screen)
            continue;
        watched.screen = screen;
        note(watched);
    }
    m_saidNo = false;
    m_closedKnowingly.clear();
}

int TypedKeeper::setDown() {
    note();
    int failed = 0;
    for (const auto& [name, watched] : m_watched) {
        std::vector<Typed> all = watched.unsaved;
        for (const Typed& one : watched.left)
            if (std::none_of(all.begin(), all.end(),
                             [&](const Typed& other) { return placeOf(other) == placeOf(one); }))
                all.push_back(one);
        if (const int error = m_store.set(name, all); error != 0)
            failed = error;
    }
    return failed;
}

void TypedKeeper::answered(const Meldung& question, Antwort answer) {
    if (answer == Antwort::Nein && question.text.find(u"speicher") != Text::npos)
        m_saidNo = true;
}

void TypedKeeper::closesKnowingly(const Screen& screen) { m_closedKnowingly.push_back(&screen); }

void TypedKeeper::unitEnded(safety::Guard::Outcome outcome) {
    if (outcome == safety::Guard::Outcome::Kept)
        m_kept = true;
}

Text TypedKeeper::unsavedBut(TextView screen) {
    note();
    for (const auto& [name, watched] : m_watched)
        if (name != screen && !watched.unsaved.empty() && isLoaded(watched.screen))
            return watched.screen->Title;
    return {};
}

Text TypedKeeper::unsavedSentence() {
    constexpr size_t Shown = 6;
    const int error = setDown();
    std::vector<Text> names;
    for (const auto& [screen, watched] : m_watched)
        for (const Typed& one : watched.unsaved) {
            const auto layout = safety::layoutOf(one.file);
            if (!layout || one.field >= layout->fields.size() || !layout->texts[one.field])
                continue;
            const Text name = one.pupil.empty() ? layout->fields[one.field]
                                                : one.pupil + u": " + layout->fields[one.field];
            if (std::find(names.begin(), names.end(), name) == names.end())
                names.push_back(name);
        }
    if (names.empty())
        return {};
    Text list;
    for (size_t i = 0; i < std::min(names.size(), Shown); ++i)
        list += u"\n–  " + names[i];
    if (names.size() > Shown)
        list += u"\n–  und " + textFromNumber(static_cast<int>(names.size() - Shown)) + u" weitere";
    if (error != 0)
        return u"Noch nicht gespeichert war:" + list +
               u"\nAuch im Ordner „Notsicherung“ ließ es sich nicht aufheben.";
    return u"Noch nicht gespeichert war:" + list +
           u"\nEs ist aufgehoben. Beim nächsten Start wird es Ihnen angeboten.";
}

} // namespace zeugnis::rescue
