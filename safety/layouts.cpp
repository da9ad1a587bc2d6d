#include "safety/layouts.h"

#include "files/module_files.h"
#include "files/report_columns.h"
#include "files/section_stores.h"
#include "safety/paths.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeugnis::safety {
namespace {

using namespace dateien;

const Text Number = u"Nummer";

void add(Layout& layout, const Text& name, bool text = true) {
    layout.fields.push_back(name);
    layout.texts.push_back(text);
}

Layout pupilLayout() {
    Layout layout{.byPupil = true, .familyName = 2};
    add(layout, Number, false);
    for (const TextView name : {u"Klasse", u"Nachname", u"Vorname"})
        add(layout, Text(name));
    return layout;
}

Layout namesLayout() {
    Layout layout = pupilLayout();
    layout.records = 1;
    for (const TextView name :
         {u"Geschlecht", u"Geburtsdatum", u"AG 1", u"AG 2", u"AG 3", u"AG 4", u"Geburtsort"})
        add(layout, Text(name));
    return layout;
}

Layout pictureLayout() {
    Layout layout = pupilLayout();
    add(layout, u"Bilddatei");
    return layout;
}

Layout schoolLayout() {
    Layout layout{.records = 1};
    for (const TextView name :
         {u"Schulname", u"Schulzusatz", u"Anschrift", u"Ausgabeort", u"Ausgabedatum", u"Schuljahr",
          u"Halbjahr", u"nächstes Schuljahr", u"Konferenzdatum", u"Klassenleitung"})
        add(layout, Text(name));
    return layout;
}

std::vector<Text> sectionsOf(const Speicherdatei& store) {
    std::vector<Text> sections;
    if (store.Kopie.starts_with(u"AVSV"))
        return {u"Arbeitsverhalten", u"Sozialverhalten"};
    if (store.Kopie.starts_with(u"34"))
        return {u"Förderunterricht und AG", u"Interessen", u"Bemerkungen"};
    sections.emplace_back(u"Interessen");
    sections.insert(sections.end(), Kompetenzbereiche.begin(), Kompetenzbereiche.end());
    sections.emplace_back(u"Bemerkungen");
    return sections;
}

Layout storeLayout(const Speicherdatei& store) {
    Layout layout = pupilLayout();
    const std::vector<Text> sections = sectionsOf(store);
    for (size_t i = 0; i < static_cast<size_t>(store.Texte); ++i)
        add(layout, sections.at(i));
    for (size_t i = 0; i < static_cast<size_t>(store.Zahlen); ++i)
        if (i < sections.size())
            add(layout, u"Sperre " + sections[i], false);
        else
            add(layout, u"Auswahl " + textFromNumber(static_cast<int>(i - sections.size()) + 1),
                false);
    return layout;
}

Layout numberedLayout(const Text& column, int columns, int records) {
    Layout layout{.records = records};
    add(layout, Number, false);
    for (int i = 1; i <= columns; ++i)
        add(layout, columns == 1 ? column : column + u" " + textFromNumber(i));
    return layout;
}

Layout categoriesLayout() {
    Layout layout = numberedLayout(u"Kategorie", 1, 1);
    for (int i = 1; i <= 9; ++i)
        add(layout, u"Farbe " + textFromNumber(i), false);
    return layout;
}

Layout listLayout(const Text& name, size_t columns = 1) {
    Layout layout;
    for (size_t i = 0; i < columns; ++i)
        add(layout, name);
    return layout;
}

constexpr TextView ReportList = u"Zeugnisliste";
constexpr TextView ReportListEnding = u".txt";
constexpr size_t YearAndHalf = 2;

// "32.txt" of "3aZeugnisliste32.txt"; empty for any other file.
TextView endOfReportList(TextView name) {
    const size_t length = YearAndHalf + ReportListEnding.size();
    if (name.size() < ReportList.size() + length || name.find(u'\\') != TextView::npos)
        return {};
    const TextView end = name.substr(name.size() - length);
    const TextView word = name.substr(name.size() - length - ReportList.size(), ReportList.size());
    const bool numbered = std::all_of(end.begin(), end.begin() + YearAndHalf,
                                      [](char16_t c) { return c >= u'0' && c <= u'9'; });
    return numbered && sameIgnoringCase(word, ReportList) &&
                   sameIgnoringCase(end.substr(YearAndHalf), ReportListEnding)
               ? end
               : TextView();
}

Layout reportListLayout(char16_t year) {
    Layout layout = pupilLayout();
    for (const Spalte& column : SpaltenFuer(year - u'0'))
        add(layout, Text(column.Name), false);
    return layout;
}

// Folder and mark of a copy away: "Sicherheit\AVSVspeicher23.11.2026.txt",
// "Standard\AGStandard.Txt"
Text original(TextView name) {
    const size_t slash = name.rfind(u'\\');
    const TextView folder = name.substr(0, slash == TextView::npos ? 0 : slash + 1);
    const TextView file = name.substr(folder.size());
    const Text data = Text(Daten) + u"\\";
    if (sameIgnoringCase(folder, data))
        return Text(file);
    if (sameIgnoringCase(folder, data + Text(Sicherheit)))
        for (const Speicherdatei& store : speicherdateien::Alle)
            if (sameIgnoringCase(file.substr(0, store.Kopie.size()), store.Kopie))
                return Text(store.Datei);
    constexpr TextView Mark = u"Standard";
    const size_t dot = file.rfind(u'.');
    if (sameIgnoringCase(folder, data + Text(Standard)) && dot != TextView::npos &&
        dot > Mark.size() && sameIgnoringCase(file.substr(dot - Mark.size(), Mark.size()), Mark))
        return Text(file.substr(0, dot - Mark.size())) + Text(file.substr(dot));
    return {};
}

std::optional<Layout> moduleLayout(const Text& file) {
    using namespace moduldateien;
    for (const Moduldatei& module : {Interessen12, Sprechen, Lesen, Schreiben, Mathe, Bemerkungen12,
                                     Versetzung12, Zwischentexte, Sport12, Foerder34, Interessen34,
                                     Zensurabweichung, Bemerkungen34, Versetzung3, Versetzung4, AG})
        for (const TextView year : {u"1", u"2"})
            if (sameIgnoringCase(file, Modulname(module, year)))
                return numberedLayout(module.Spalten == 1 ? u"Baustein" : u"Spalte", module.Spalten,
                                      1);
    return std::nullopt;
}

} // namespace

std::optional<Layout> layoutOf(std::string_view name) {
    if (const Text shown = shownName(name); !endOfReportList(shown).empty())
        return reportListLayout(endOfReportList(shown).front());
    const Text file = original(shownName(name));
    if (file.empty())
        return std::nullopt;
    const auto is = [&](TextView other) { return sameIgnoringCase(file, other); };
    for (const Speicherdatei& store : speicherdateien::Alle)
        if (is(store.Datei))
            return storeLayout(store);
    if (is(Namen))
        return namesLayout();
    if (is(Bildliststeuer))
        return pictureLayout();
    if (is(Basisdaten))
        return schoolLayout();
    if (is(TexteAV) || is(TexteSV))
        return numberedLayout(u"Kategorie", is(TexteAV) ? KategorienAV : KategorienSV, 1);
    if (is(AVKategorien) || is(SVKategorien))
        return categoriesLayout();
    if (is(AGListe))
        return listLayout(u"AG");
    if (is(Einfuegungen1) || is(Einfuegungen2))
        return listLayout(u"Einfügung");
    if (is(Platzhalter))
        return numberedLayout(u"Text", 2, 1);
    if (is(Sibankpfad))
        return listLayout(u"Pfad");
    return moduleLayout(file);
}

bool isReportList(std::string_view name) { return !endOfReportList(shownName(name)).empty(); }

Text pupilOf(const Record& record, const Layout& layout) {
    if (!layout.byPupil || record.fields.size() < layout.familyName + 2)
        return {};
    return record.fields[layout.familyName].value + u", " +
           record.fields[layout.familyName + 1].value;
}

const Record* recordFor(const std::vector<Record>& records, const Layout& layout, const Text& pupil,
                        size_t number) {
    if (!layout.byPupil)
        return number >= 1 && number <= records.size() ? &records[number - 1] : nullptr;
    const auto found = std::find_if(records.begin(), records.end(), [&](const Record& record) {
        return pupilOf(record, layout) == pupil;
    });
    return found == records.end() ? nullptr : &*found;
}

std::string lockStoreOf(std::string_view name) {
    constexpr std::array<std::pair<Speicherdatei, Speicherdatei>, 3> Pairs = {
        {{speicherdateien::AVSVTexte, speicherdateien::AVSVWahl},
         {speicherdateien::Texte12, speicherdateien::Sperren12},
         {speicherdateien::Texte34, speicherdateien::Sperren34}}};
    for (const auto& [texts, locks] : Pairs)
        if (sameIgnoringCase(shownName(name), Text(Daten) + u"\\" + Text(texts.Datei)))
            return utf8FromText(Text(Daten) + u"/" + Text(locks.Datei));
    return {};
}

} // namespace zeugnis::safety
