#include "folders/module_update.h"

#include "files/file_catalogue.h"
#include "files/module_files.h"
#include "platform/code_page.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"
#include "platform/write_watcher.h"
#include "safety/layouts.h"
#include "safety/records.h"

#include <algorithm>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;
using Records = std::vector<safety::Record>;

Text inStandard(TextView name) { return Text(dateien::Standard) + Standardname(name); }

Text contentOf(const Arbeitsverzeichnis& daten, TextView name) {
    return decodeWindows1252(readWholeFile(daten, name));
}

Records recordsIn(const Arbeitsverzeichnis& daten, TextView name) {
    return safety::recordsOf(contentOf(daten, name));
}

bool sameShape(const Records& left, const Records& right) {
    return std::ranges::equal(left, right, [](const safety::Record& l, const safety::Record& r) {
        return l.fields.size() == r.fields.size();
    });
}

Text placeOf(size_t record, size_t field, size_t fields) {
    constexpr size_t NumberAndText = 2;
    Text place = u"Zeile " + textFromNumber(static_cast<int>(record) + 1);
    if (fields > NumberAndText)
        place += u", Spalte " + textFromNumber(static_cast<int>(field));
    return place;
}

/// A file in its three states, record for record alike.
struct Module {
    Text name;
    Records before;
    Records own;
    Records now;
};

/// The files of a new delivery that have a standard copy there, sorted by name.
std::vector<Module> modulesOf(const Arbeitsverzeichnis& eigene, const Arbeitsverzeichnis& neue) {
    std::vector<Module> modules;
    for (const fs::directory_entry& entry : fs::directory_iterator(neue.current())) {
        const Text name = textFromPath(entry.path().filename());
        if (!entry.is_regular_file() || !hasFile(neue, inStandard(name)) || !hasFile(eigene, name))
            continue;
        Module module{name, {}, recordsIn(eigene, name), recordsIn(neue, name)};
        module.before =
            hasFile(eigene, inStandard(name)) ? recordsIn(eigene, inStandard(name)) : module.own;
        if (sameShape(module.own, module.now) && sameShape(module.own, module.before))
            modules.push_back(std::move(module));
    }
    std::ranges::sort(modules, {}, &Module::name);
    return modules;
}

void collect(const Module& module, std::vector<Modultext>& texts) {
    for (size_t r = 0; r < module.own.size(); ++r) {
        const std::vector<safety::Field>& own = module.own[r].fields;
        for (size_t f = 1; f < own.size(); ++f) {
            const Text& neu = module.now[r].fields[f].value;
            const Text& bisher = module.before[r].fields[f].value;
            if (neu != own[f].value && neu != bisher)
                texts.push_back(
                    {module.name, placeOf(r, f, own.size()), r, f, bisher, own[f].value, neu});
        }
    }
}

Arbeitsverzeichnis in(const Arbeitsverzeichnis& start, TextView folder) {
    Arbeitsverzeichnis inside = start;
    inside.change(folder);
    return inside;
}

void replaceText(Text& content, const safety::Field& field, TextView text) {
    const size_t quote = field.quoted ? 1 : 0;
    Text written(quote, u'"');
    written += text;
    written.append(quote, u'"');
    content.replace(field.begin, field.end - field.begin, written);
}

} // namespace

std::vector<Modultext> NeueModultexte(const Arbeitsverzeichnis& klasse,
                                      const Arbeitsverzeichnis& vorlage) {
    const Arbeitsverzeichnis eigene = in(klasse, dateien::Daten);
    const Arbeitsverzeichnis neue = in(vorlage, dateien::Daten);
    std::vector<Modultext> texts;
    for (const Module& module : modulesOf(eigene, neue))
        collect(module, texts);
    return texts;
}

void ModultexteUebernehmen(const Arbeitsverzeichnis& klasse, const Arbeitsverzeichnis& vorlage,
                           const std::vector<Modultext>& gewaehlt) {
    const Arbeitsverzeichnis eigene = in(klasse, dateien::Daten);
    const Arbeitsverzeichnis neue = in(vorlage, dateien::Daten);
    const WriteUnit unit(klasse.watcher());
    for (const Module& module : modulesOf(eigene, neue)) {
        Text content = contentOf(eigene, module.name);
        // From the end, so that the places in front stay.
        std::for_each(gewaehlt.rbegin(), gewaehlt.rend(), [&](const Modultext& text) {
            if (text.Datei == module.name)
                replaceText(content, module.own.at(text.Satz).fields.at(text.Feld), text.Neu);
        });
        writeWholeFile(eigene, module.name, encodeWindows1252(content));
        writeWholeFile(eigene, inStandard(module.name),
                       readWholeFile(neue, inStandard(module.name)));
    }
}

bool IstEigeneDatei(const Arbeitsverzeichnis& daten, TextView name) {
    return !hasFile(daten, inStandard(name)) ||
           readWholeFile(daten, name) != readWholeFile(daten, inStandard(name));
}

} // namespace zeugnis
