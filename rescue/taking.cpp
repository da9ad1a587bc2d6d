#include "rescue/taking.h"

#include "behaviour/avsv_editor.h"
#include "behaviour/avsv_entry_screen.h"
#include "common/screen_names.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "editors/editor12.h"
#include "editors/editor34.h"
#include "shell/start_page.h"
#include "years12/entry_screen.h"
#include "years34/entry_screen.h"

#include <array>

namespace zeugnis::rescue {
namespace {

using safety::Offer;

constexpr size_t BehindNames = 4;

struct Way {
    TextView Screen;
    int Button; ///< Command1 of the start page
    bool Tool;  ///< it lies in the view of the tools
};
constexpr std::array<Way, 6> Ways = std::to_array<Way>({
    {bildschirme::GsArbeitsverhalten, 0, false},
    {bildschirme::Kompetenzen, 1, false},
    {bildschirme::GSAGFI, 2, false},
    {bildschirme::GSAVSVAenderung, 4, true},
    {bildschirme::GSAenderung12, 5, true},
    {bildschirme::GSAenderung34, 5, true},
});

const Way* wayTo(TextView screen) {
    for (const Way& way : Ways)
        if (way.Screen == screen)
            return &way;
    return nullptr;
}

// Null if the way is barred.
Screen* open(Programm& programm, const Way& way) {
    if (Screen* screen = programm.find(way.Screen); screen != nullptr && screen->shown())
        return screen;
    auto* start = dynamic_cast<GsStart*>(programm.startScreen());
    if (start == nullptr)
        return nullptr;
    if (way.Tool != start->Command3.Visible)
        user::click(way.Tool ? start->Command2 : start->Command3);
    user::click(start->Command1(way.Button));
    return programm.find(way.Screen);
}

bool choose(ComboBox& names, const Namensliste& list, const Text& pupil) {
    for (int i = 0; i < list.Schuelerzahl; ++i)
        if (list.Kinder[i].Nachname + u", " + list.Kinder[i].Vorname == pupil)
            return names.listIndex() == i || user::pick(names, i);
    return false;
}

bool replace(TextBox& box, const Text& value) {
    if (!user::click(box))
        return false;
    box.select(0, box.text().size());
    user::paste(box, value);
    return box.text() == value;
}

struct Sections {
    ComboBox& Names;
    const Namensliste& List;
    Button& Section;
    TextBox& Box;
};

Text takeReportText(const Sections& screen, const Offer& offer) {
    if (!choose(screen.Names, screen.List, offer.typed.pupil))
        return offer.typed.pupil + u" steht nicht in der Klassenliste.";
    user::click(screen.Section);
    if (!replace(screen.Box, offer.typed.value))
        return u"Das Textfeld lässt sich gerade nicht beschreiben.";
    return {};
}

// What the editors of the year groups have each under a name of its own.
struct EditorButtons {
    Button& LoadCurrent;
    const ControlArray<Button>& Pages;
};

EditorButtons buttonsOf(Bausteineditor& editor) {
    if (auto* young = dynamic_cast<GSAenderung12*>(&editor))
        return {young->Command3(1), young->Command1};
    auto& old = dynamic_cast<GSAenderung34&>(editor);
    return {old.Command1(1), old.Command2};
}

bool showPageOf(const ControlArray<Button>& pages, const TextBox& box) {
    pages.each([&](Button& page) {
        if (!box.reachable())
            user::click(page);
    });
    return box.reachable();
}

Text takeModule(Bausteineditor& editor, const Offer& offer) {
    const EditorButtons buttons = buttonsOf(editor);
    for (const Bausteineditor::Platz& place : editor.Plaetze())
        if (utf8FromText(u"Daten/" + place.Datei) == offer.typed.file &&
            static_cast<size_t>(place.Zeile) == offer.typed.number &&
            static_cast<size_t>(place.Spalte) == offer.typed.field &&
            !editor.WirdVerworfen(place.Feld) && showPageOf(buttons.Pages, place.Feld) &&
            replace(place.Feld, offer.typed.value))
            return {};
    return u"Für diesen Baustein gibt es gerade kein Feld.";
}

Text takeLine(GSAVSVAenderung& editor, const Offer& offer) {
    const auto is = [&](TextView file) {
        return offer.typed.file == utf8FromText(u"Daten/" + Text(file));
    };
    user::click(is(dateien::TexteSV) || is(dateien::SVKategorien) ? editor.Command3
                                                                  : editor.Command2);
    const bool category = is(dateien::AVKategorien) || is(dateien::SVKategorien);
    const auto column = static_cast<int>(category ? offer.typed.number : offer.typed.field) - 1;
    user::click(editor.Command4(column));
    TextBox& box = category ? editor.Text1 : editor.Text2(static_cast<int>(offer.typed.number) - 1);
    return replace(box, offer.typed.value) ? Text()
                                           : Text(u"Für diese Zeile gibt es gerade kein Feld.");
}

} // namespace

bool canTake(const Offer& offer) { return wayTo(offer.screen) != nullptr; }

bool openFor(Programm& programm, const Offer& offer) {
    const Programm::Task task(programm);
    const Way* way = wayTo(offer.screen);
    Screen* screen = way == nullptr ? nullptr : open(programm, *way);
    if (auto* editor = dynamic_cast<Bausteineditor*>(screen); editor != nullptr && !editor->Geladen)
        user::click(buttonsOf(*editor).LoadCurrent);
    if (auto* lines = dynamic_cast<GSAVSVAenderung*>(screen); lines != nullptr && !lines->Geladen)
        user::click(lines->Command1(1));
    return screen != nullptr;
}

Text take(Programm& programm, const Offer& offer) {
    const Programm::Task task(programm);
    Screen* screen = programm.find(offer.screen);
    if (screen == nullptr || !screen->shown())
        return u"Das Fenster, in dem der Text stand, lässt sich jetzt nicht öffnen.";
    const auto section = static_cast<int>(offer.typed.field - BehindNames);
    if (auto* avsv = dynamic_cast<GsArbeitsverhalten*>(screen))
        return takeReportText({avsv->Combo1, avsv->Liste,
                               section == 0 ? avsv->Command1 : avsv->Command2,
                               avsv->Text1(section)},
                              offer);
    if (auto* young = dynamic_cast<Kompetenzen*>(screen))
        return takeReportText(
            {young->Combo1, young->Liste, young->Command1(section), young->Text1(section)}, offer);
    if (auto* old = dynamic_cast<GSAGFI*>(screen))
        return takeReportText({old->Combo1, old->Liste, old->Command2(section),
                               *old->Textfelder.at(static_cast<size_t>(section))},
                              offer);
    if (auto* lines = dynamic_cast<GSAVSVAenderung*>(screen))
        return takeLine(*lines, offer);
    return takeModule(dynamic_cast<Bausteineditor&>(*screen), offer);
}

} // namespace zeugnis::rescue
