#include "rescue/former_states.h"

#include "controls/program.h"
#include "controls/screen.h"
#include "files/file_catalogue.h"
#include "rescue/writing_screens.h"
#include "safety/actions.h"
#include "safety/layouts.h"

#include <algorithm>

namespace zeugnis::rescue {
namespace {

using safety::Difference;

bool isCopy(const std::string& name) {
    return safety::shownName(name).find(dateien::Sicherheit) != Text::npos;
}

// A running number, a lock or a choice: these come with the texts that they belong to.
bool isNoText(const Difference& difference) {
    const auto layout = safety::layoutOf(difference.file);
    if (!layout)
        return false;
    if (difference.kind == Difference::Kind::Changed)
        return difference.field < layout->texts.size() && !layout->texts[difference.field];
    if (!layout->byPupil || layout->records > 0)
        return false;
    // A record of a store in which nothing has been written.
    const Text& line = difference.former.empty() ? difference.current : difference.former;
    return line.substr(std::min(line.size(), line.find(difference.pupil) + difference.pupil.size()))
               .find_first_not_of(u", 0") == Text::npos;
}

} // namespace

Text headingOf(const Difference& difference) {
    Text heading = difference.what;
    if (difference.kind == Difference::Kind::OnlyFormer)
        heading = u"Gab es damals, jetzt nicht mehr";
    else if (difference.kind == Difference::Kind::OnlyNow)
        heading = u"Gibt es erst seitdem";
    return heading;
}

FormerStates::FormerStates(Programm& programm, safety::Guard& guard,
                           const std::filesystem::path& programFolder)
    : m_programm(programm), m_guard(guard), m_folder(programFolder) {}

void FormerStates::read() {
    m_states = safety::States(m_folder).list();
    std::erase_if(m_states, [](const safety::State& state) {
        return std::none_of(state.files.begin(), state.files.end(), [](const std::string& name) {
            return safety::worthKeeping(name) && !isCopy(name);
        });
    });
    m_formers.clear();
    m_differences.clear();
}

void FormerStates::choose(size_t state) {
    m_formers = safety::States(m_folder).allBefore(m_states.at(state).id);
    std::erase_if(m_formers, [](const safety::Former& former) {
        return !safety::worthKeeping(former.name) || isCopy(former.name);
    });
    m_differences = safety::differencesTo(safety::Paths(m_folder), m_formers);
    std::erase_if(m_differences, isNoText);
    std::stable_sort(
        m_differences.begin(), m_differences.end(), [](const Difference& a, const Difference& b) {
            return std::pair(a.pupil.empty(), a.pupil) < std::pair(b.pupil.empty(), b.pupil);
        });
}

Text FormerStates::obstacle() const {
    if (const Screen* screen = shownWriter(m_programm))
        return u"Das Fenster „" + screen->Title +
               u"“ ist noch offen und würde das Zurückgeholte wieder überschreiben. Bitte "
               u"verlassen Sie es zuerst. Hier ansehen und kopieren können Sie jederzeit.";
    return {};
}

bool FormerStates::canComeAlone(const Difference& difference) {
    return difference.kind == Difference::Kind::Changed;
}

template <typename Way>
bool FormerStates::bring(Way way) {
    if (!obstacle().empty())
        return false;
    dropHiddenWriters(m_programm);
    const bool done = way();
    read();
    return done;
}

bool FormerStates::bringBackText(size_t difference) {
    return bring([&] {
        return safety::bringBackText(m_programm.directory(), m_guard, m_formers,
                                     m_differences.at(difference));
    });
}

bool FormerStates::bringBackPupil(const Text& pupil) {
    return bring(
        [&] { return safety::bringBackPupil(m_programm.directory(), m_guard, m_formers, pupil); });
}

bool FormerStates::bringBackAll() {
    return bring([&] {
        const bool any = std::any_of(m_formers.begin(), m_formers.end(),
                                     [](const auto& one) { return one.content.has_value(); });
        if (any)
            safety::bringBackAll(m_programm.directory(), m_guard, m_formers);
        return any;
    });
}

} // namespace zeugnis::rescue
