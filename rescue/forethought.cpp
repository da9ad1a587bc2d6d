#include "rescue/forethought.h"

#include "comfort/entry_access.h"
#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "files/file_catalogue.h"
#include "masterdata/master_data_screen.h"
#include "rescue/held_texts.h"
#include "rescue/taking.h"
#include "safety/damage.h"
#include "safety/layouts.h"

#include <algorithm>
#include <array>

namespace zeugnis::rescue {
namespace {

using safety::Typed;
namespace screens = bildschirme;

struct Place {
    TextView Screen;
    TextView Control;
    int Index = -1; ///< -1: all of the name
};

constexpr auto Writing = std::to_array<Place>({
    {screens::GsArbeitsverhalten, u"Command4"},
    {screens::GsArbeitsverhalten, u"Command5"},
    {screens::GsArbeitsverhalten, u"Combo1"},
    {screens::Kompetenzen, u"Command2"},
    {screens::Kompetenzen, u"Command3"},
    {screens::GSAGFI, u"Command1", 0},
    {screens::GSAGFI, u"Command1", 1},
    {screens::GsBasis, u"Command1"},
    {screens::GsBasis, u"Command4"},
    {screens::GsBasis, u"Command6"},
    {screens::GSAVSVAenderung, u"Command5"},
    {screens::GSAVSVAenderung, u"Command6"},
    {screens::GSAenderung12, u"Command5"},
    {screens::GSAenderung12, u"Command6"},
    {screens::GSAenderung34, u"Command5"},
    {screens::GSAenderung34, u"Command6"},
});

constexpr auto Opening = std::to_array<Place>({
    {screens::GsStart, u"Command1", 0},
    {screens::GsStart, u"Command1", 1},
    {screens::GsStart, u"Command1", 2},
    {screens::GsStart, u"Command1", 3},
    {screens::GsStart, u"Command1", 4},
    {screens::GsStart, u"Command1", 5},
    {screens::GsStart, u"Command1", 6},
    {screens::GsStart, u"Command4"},
    {screens::GsStart, u"Command5"},
    {screens::GsStart, u"Command6"},
});

template <size_t N>
bool isOneOf(const Control& control, const std::array<Place, N>& places) {
    return std::any_of(places.begin(), places.end(), [&](const Place& place) {
        return place.Screen == control.screen().name() && place.Control == control.name() &&
               (place.Index < 0 || place.Index == control.index());
    });
}

bool hasQuote(const Text& text) { return text.find(u'"') != Text::npos; }

std::vector<Typed> quotedIn(const Screen& screen) {
    std::vector<Typed> all = heldBy(screen);
    std::erase_if(all, [](const Typed& one) { return !hasQuote(one.value); });
    return all;
}

void mend(TextBox& box) {
    if (!hasQuote(box.text()) || !user::click(box))
        return;
    const Text mended = safety::withGermanQuotes(box.text());
    box.select(0, box.text().size());
    user::paste(box, mended);
}

void mendMasterData(GsBasis& screen) {
    const int shown = screen.Combo1.listIndex();
    screen.Text1.each(mend);
    for (int i = 0; i < screen.Liste.Schuelerzahl; ++i) {
        const Schueler& kind = screen.Liste.Kinder[i];
        const auto fields = FelderVon(kind);
        const bool current = i == screen.AktuellerSchueler;
        if (!current && std::none_of(fields.begin(), fields.end(),
                                     [](const Text* field) { return hasQuote(*field); }))
            continue;
        if (!current)
            user::pick(screen.Combo1, i);
        screen.Text2.each(mend);
        screen.Text3.each(mend);
    }
    if (shown >= 0 && screen.Combo1.listIndex() != shown)
        user::pick(screen.Combo1, shown);
}

} // namespace

bool mayWrite(const Control& control) { return isOneOf(control, Writing); }

bool opens(const Control& control) { return isOneOf(control, Opening); }

bool isReadAtStart(const std::string& file) {
    constexpr std::array Read = {dateien::Basisdaten, dateien::Namen};
    const Text name = safety::shownName(file);
    return std::any_of(Read.begin(), Read.end(), [&name](TextView one) {
        return sameIgnoringCase(name, Text(dateien::Daten) + u"\\" + Text(one));
    });
}

std::vector<Text> textsWithQuotes(const Screen& screen) {
    std::vector<Text> names;
    for (const Typed& one : quotedIn(screen)) {
        const auto layout = safety::layoutOf(one.file);
        const Text field =
            layout && one.field < layout->fields.size() ? layout->fields[one.field] : Text();
        names.push_back(one.pupil.empty() ? field : one.pupil + u": " + field);
    }
    return names;
}

void mendQuotes(Screen& screen) {
    const Programm::Task task(screen.programm());
    if (auto* basis = dynamic_cast<GsBasis*>(&screen))
        return mendMasterData(*basis);
    const std::optional<Eingabeschirm> entry = EingabeschirmAus(screen);
    const int pupil = entry ? entry->Kinder->listIndex() : -1;
    const int page = entry ? entry->Seite() : -1;
    for (Typed& one : quotedIn(screen)) {
        one.value = safety::withGermanQuotes(one.value);
        take(screen.programm(),
             {.run = {}, .screen = screen.name(), .typed = one, .fieldName = {}, .inFile = {}});
    }
    if (pupil >= 0 && entry->Kinder->listIndex() != pupil) {
        user::pick(*entry->Kinder, pupil);
        if (page >= 0)
            user::click(*entry->Seiten.at(static_cast<size_t>(page)));
    }
}

Text tooManyPupils(const Control& control) {
    const auto* basis = dynamic_cast<const GsBasis*>(&control.screen());
    if (basis == nullptr || &control != &basis->Command4(2) ||
        basis->Liste.Schuelerzahl < SchuelerHoechstens)
        return {};
    return u"Die Klasse hat schon " + textFromNumber(basis->Liste.Schuelerzahl) +
           u" Kinder, mehr als " + textFromNumber(SchuelerHoechstens) +
           u" sieht das Programm nicht vor.\n\nWenn Sie trotzdem eines hinzufügen, meldet das "
           u"Programm zwar, dass es zu viele sind, führt das leere Kind aber ohne Nummer in der "
           u"Klassenliste und leert dabei alle bisher geschriebenen Texte der Klasse. Ein "
           u"anschließendes Sortieren kann die ganze Klassenliste leeren.";
}

} // namespace zeugnis::rescue
