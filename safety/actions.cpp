#include "safety/actions.h"

#include "files/module_files.h"
#include "files/section_stores.h"
#include "safety/layouts.h"
#include "safety/paths.h"

#include <algorithm>
#include <array>
#include <vector>

namespace zeugnis::safety {
namespace {

using namespace dateien;

constexpr std::array Workfiles = {AktivForm, Namen1};

Text inData(TextView file) { return Text(Daten) + u"\\" + Text(file); }

bool isIn(const std::vector<Text>& written, TextView file) {
    return std::any_of(written.begin(), written.end(),
                       [&](const Text& name) { return sameIgnoringCase(name, inData(file)); });
}

bool blanksAllStores(const std::vector<Text>& written) {
    return std::all_of(speicherdateien::Alle.begin(), speicherdateien::Alle.end(),
                       [&](const Speicherdatei& one) { return isIn(written, one.Datei); });
}

struct Sign {
    TextView File;
    TextView Action;
};
// The first that is among the files tells.
constexpr auto Signs = std::to_array<Sign>({
    {Basisdaten, u"Basisdaten gespeichert"},
    {Namen1, u"Klassenliste sortiert"},
    {Namen, u"Klassenliste neu angelegt"},
    {AVSVspeicher, u"Arbeits- und Sozialverhalten gespeichert"},
    {Speicher12, u"Texte 1/2 gespeichert"},
    {Speicher34, u"Texte 3/4 gespeichert"},
    {TexteAV, u"Bausteine zum Arbeitsverhalten geändert"},
    {TexteSV, u"Bausteine zum Sozialverhalten geändert"},
    {AVKategorien, u"Kategorien des Arbeitsverhaltens geändert"},
    {SVKategorien, u"Kategorien des Sozialverhaltens geändert"},
    {Einfuegungen1, u"Einfügungen geändert"},
    {Einfuegungen2, u"Einfügungen geändert"},
    {Sibankpfad, u"Sibank-Pfad geändert"},
});

struct Modules {
    TextView Action;
    std::vector<Moduldatei> Files;
};

const std::vector<Modules>& moduleActions() {
    using namespace moduldateien;
    static const std::vector<Modules> All = {
        {u"Bausteine der Jahrgänge 1/2 geändert",
         {Interessen12, Sprechen, Lesen, Schreiben, Mathe, Bemerkungen12, Versetzung12,
          Zwischentexte}},
        {u"Bausteine der Jahrgänge 3/4 geändert",
         {Foerder34, Interessen34, Zensurabweichung, Bemerkungen34, Versetzung3, Versetzung4, AG}}};
    return All;
}

Text moduleAction(const std::vector<Text>& written) {
    for (const auto& [action, files] : moduleActions())
        for (const Moduldatei& file : files)
            for (const TextView year : {u"1", u"2"})
                if (isIn(written, Modulname(file, year)))
                    return Text(action);
    return {};
}

bool isStandard(const Text& name) {
    return sameIgnoringCase(TextView(name).substr(0, Daten.size() + 1 + Standard.size()),
                            inData(Standard));
}

} // namespace

Text actionOf(const std::set<std::string>& names) {
    std::vector<Text> written;
    written.reserve(names.size());
    for (const std::string& name : names)
        written.push_back(shownName(name));
    if (blanksAllStores(written) && !isIn(written, Namen))
        return u"Alle Texte der Klasse geleert";
    for (const Sign& sign : Signs)
        if (isIn(written, sign.File))
            return Text(sign.Action);
    if (std::any_of(names.begin(), names.end(), isReportList))
        return u"Versäumnisse und Noten eingetragen";
    if (Text action = moduleAction(written); !action.empty())
        return action;
    if (std::any_of(written.begin(), written.end(), isStandard))
        return u"Standardformulierungen ersetzt";
    return written.empty() ? Text() : u"Geändert: " + enumerated(written);
}

bool worthKeeping(const std::string& name) {
    const Text shown = shownName(name);
    return std::none_of(Workfiles.begin(), Workfiles.end(),
                        [&](TextView file) { return sameIgnoringCase(shown, inData(file)); });
}

} // namespace zeugnis::safety
