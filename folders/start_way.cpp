#include "folders/start_way.h"

#include "files/file_catalogue.h"
#include "folders/class_folder.h"
#include "platform/failure.h"
#include "platform/path_text.h"
#include "platform/working_directory.h"

#include <algorithm>

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

constexpr TextView Auswahl = u"--auswahl";

bool hatDaten(const fs::path& ordner) {
    try {
        Arbeitsverzeichnis(ordner).change(dateien::Daten);
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

std::optional<fs::path> VorlageBei(const fs::path& programme) {
    for (const fs::path& ordner :
         {programme / "Vorlage", programme / ".." / "share" / "zeugnisprogramm" / "vorlage"})
        if (IstKlassenordner(ordner))
            return ordner.lexically_normal();
    return std::nullopt;
}

Startweg StartwegFinden(std::span<const Text> argumente, const fs::path& arbeitsordner,
                        bool hatVorlage) {
    const auto stelle = std::find_if(argumente.begin(), argumente.end(),
                                     [](const Text& eines) { return !eines.starts_with(u'-'); });
    if (stelle != argumente.end()) {
        if (const auto ordner = KlassenordnerZu(arbeitsordner / pathFromText(*stelle)))
            return {*ordner, {}};
        return {{},
                u"Zu „" + *stelle +
                    u"“ gibt es keine Klasse: Der Ordner „Daten“ mit der "
                    u"Klassenliste fehlt."};
    }
    const bool waehlt = std::find(argumente.begin(), argumente.end(), Auswahl) != argumente.end();
    if (!waehlt && (!hatVorlage || hatDaten(arbeitsordner)))
        return {arbeitsordner, {}};
    return {};
}

} // namespace zeugnis
