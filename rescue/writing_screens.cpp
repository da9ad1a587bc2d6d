#include "rescue/writing_screens.h"

#include "common/screen_names.h"
#include "controls/program.h"
#include "controls/screen.h"

#include <array>

namespace zeugnis::rescue {
namespace {

constexpr std::array Writing = {bildschirme::GsArbeitsverhalten,
                                bildschirme::GSAVSVAenderung,
                                bildschirme::Kompetenzen,
                                bildschirme::GSAGFI,
                                bildschirme::GSAenderung12,
                                bildschirme::GSAenderung34,
                                bildschirme::GsBasis};

} // namespace

const Screen* shownWriter(const Programm& program) {
    for (const TextView name : Writing)
        if (const Screen* screen = program.find(name); screen != nullptr && screen->shown())
            return screen;
    return nullptr;
}

void dropHiddenWriters(Programm& program) {
    for (const TextView name : Writing)
        if (const Screen* screen = program.find(name); screen != nullptr && !screen->shown())
            program.unload(name);
}

} // namespace zeugnis::rescue
