#include "desktop/views.h"

#include "desktop/comfort/entry_comfort.h"
#include "desktop/comfort/spelling.h"
#include "desktop/editor_view_avsv.h"
#include "desktop/editor_view_years.h"
#include "desktop/entry_view_12.h"
#include "desktop/entry_view_34.h"
#include "desktop/entry_view_avsv.h"
#include "desktop/insertion_view.h"
#include "desktop/lists_view.h"
#include "desktop/master_data_view.h"
#include "desktop/review_view.h"
#include "desktop/start_view.h"

#include <stdexcept>

namespace zeugnis {
namespace {

// Makes a V if the screen is the one that V shows.
template <typename V, typename S>
ScreenWindow* makeFor(Screen& screen, WindowHost& host, QWidget* below) {
    auto* typed = dynamic_cast<S*>(&screen);
    return typed == nullptr ? nullptr : new V(*typed, host, below);
}

constexpr ScreenWindow* (*Makers[])(Screen&, WindowHost&, QWidget*) = {
    makeFor<StartView, GsStart>,
    makeFor<MasterDataView, GsBasis>,
    makeFor<EntryViewAVSV, GsArbeitsverhalten>,
    makeFor<EntryView12, Kompetenzen>,
    makeFor<EntryView34, GSAGFI>,
    makeFor<EditorViewAVSV, GSAVSVAenderung>,
    makeFor<EditorViewYears, GSAenderung12>,
    makeFor<EditorViewYears, GSAenderung34>,
    makeFor<ReviewView, GsAnzeige>,
    makeFor<InsertionView, Einfuegungen>,
    makeFor<ListsView, Listen>,
};

} // namespace

ScreenWindow* makeWindow(Screen& screen, WindowHost& host, QWidget* below) {
    for (const auto make : Makers)
        if (ScreenWindow* window = make(screen, host, below)) {
            addEntryComfort(*window, screen, host);
            addSpelling(*window, screen, host);
            return window;
        }
    throw std::logic_error("a screen without a window");
}

} // namespace zeugnis
