#include "folders/class_folder.h"

#include "files/file_catalogue.h"
#include "files/pupil_list.h"
#include "platform/failure.h"
#include "platform/whole_file.h"

#include <algorithm>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

/// A folder that cannot be looked at is none.
template <typename Frage>
bool guarded(Frage frage) {
    try {
        return frage();
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

bool IstKlassenordner(const fs::path& ordner) {
    return guarded([&] {
        Arbeitsverzeichnis verzeichnis(ordner);
        verzeichnis.change(dateien::Daten);
        return hasFile(verzeichnis, dateien::Namen) && hasFile(verzeichnis, dateien::Basisdaten);
    });
}

std::optional<fs::path> KlassenordnerZu(const fs::path& stelle) {
    std::error_code failed;
    fs::path ordner = fs::absolute(stelle, failed).lexically_normal();
    while (!failed && !ordner.empty()) {
        if (fs::is_directory(ordner, failed) && IstKlassenordner(ordner))
            return ordner.has_filename() ? ordner : ordner.parent_path();
        failed.clear();
        if (ordner == ordner.parent_path())
            break;
        ordner = ordner.parent_path();
    }
    return std::nullopt;
}

std::optional<Klassenangaben> KlassenangabenLesen(const fs::path& ordner) {
    try {
        Arbeitsverzeichnis verzeichnis(ordner);
        Klassenangaben angaben;
        const Namensliste liste = NamenLaden(verzeichnis);
        verzeichnis.change(dateien::Daten);
        angaben.Schule = BasisdatenLesen(verzeichnis, BasisdatenFelder);
        angaben.Klasse = liste.Klasse;
        for (int i = 0; i < std::min(liste.Schuelerzahl, Schuelerplaetze); ++i)
            angaben.Kinder += liste.Kinder[i].Vorname.empty() ? 0 : 1;
        return angaben;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

Text OrdnernameFuer(const Klassenangaben& angaben) {
    constexpr size_t Jahrhundert = 2;
    constexpr size_t Jahr = 4;
    const Text& schuljahr = angaben.Schule.Schuljahr;
    Text name = angaben.Klasse;
    if (schuljahr.size() == 2 * Jahr + 1)
        name += u" " + schuljahr.substr(0, Jahr) + u"-" + schuljahr.substr(Jahr + 1 + Jahrhundert) +
                u"-" + angaben.Schule.Halbjahr;
    std::erase_if(
        name, [](char16_t c) { return c < u' ' || Text(u"\\/:*?\"<>|").find(c) != Text::npos; });
    while (name.ends_with(u'.') || name.ends_with(u' '))
        name.pop_back();
    return name.empty() ? u"Klasse" : name;
}

} // namespace zeugnis
