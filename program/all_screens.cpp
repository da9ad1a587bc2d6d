#include "program/all_screens.h"

#include "behaviour/avsv_editor.h"
#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "controls/program.h"
#include "editors/editor12.h"
#include "editors/editor34.h"
#include "masterdata/master_data_screen.h"
#include "review/insertion_window.h"
#include "review/review_screen.h"
#include "shell/lists.h"
#include "shell/start_page.h"
#include "years12/entry_screen.h"
#include "years34/entry_screen.h"

#include <array>

namespace zeugnis {
namespace {

using Erzeuger = std::unique_ptr<Screen> (*)(Programm&);

template <typename S>
std::unique_ptr<Screen> neu(Programm& programm) {
    return std::make_unique<S>(programm);
}

struct Eintrag {
    TextView Name;
    Erzeuger Neu;
};
constexpr auto Verzeichnis = std::to_array<Eintrag>({
    {bildschirme::GsStart, neu<GsStart>},
    {bildschirme::GsBasis, neu<GsBasis>},
    {bildschirme::GsArbeitsverhalten, neu<GsArbeitsverhalten>},
    {bildschirme::GSAVSVAenderung, neu<GSAVSVAenderung>},
    {bildschirme::Kompetenzen, neu<Kompetenzen>},
    {bildschirme::GSAGFI, neu<GSAGFI>},
    {bildschirme::GSAenderung12, neu<GSAenderung12>},
    {bildschirme::GSAenderung34, neu<GSAenderung34>},
    {bildschirme::GsAnzeige, neu<GsAnzeige>},
    {bildschirme::Einfuegungen, neu<Einfuegungen>},
    {bildschirme::Listen, neu<Listen>},
});

constexpr auto Namen = [] {
    std::array<TextView, Verzeichnis.size()> namen;
    for (size_t i = 0; i < namen.size(); ++i)
        namen.at(i) = Verzeichnis.at(i).Name;
    return namen;
}();

} // namespace

std::span<const TextView> AlleBildschirme() { return Namen; }

void BildschirmeAnmelden(Programm& programm) {
    for (const Eintrag& eintrag : Verzeichnis)
        programm.registerScreen(eintrag.Name, eintrag.Neu);
}

} // namespace zeugnis
