#include "folders/new_class.h"

#include "folders/class_files.h"
#include "folders/folder_copy.h"

namespace zeugnis {
namespace {

/// Placeholders that keep empty folders alive on their way to the user.
bool isDelivered(const std::filesystem::path& name) { return name.filename() != ".gitkeep"; }

} // namespace

Text KlasseAnlegen(const std::filesystem::path& vorlage, const std::filesystem::path& ordner,
                   const Klassenangaben& angaben) {
    if (Text hindernis = HindernisFuer(angaben.Klasse, angaben.Schule); !hindernis.empty())
        return hindernis;
    return obstacleIn([&] {
        FolderCopy neu(ordner);
        neu.copyFrom(vorlage, [](const std::filesystem::path& name) {
            return isDelivered(name) && !GehoertDerKlasse(name);
        });
        Arbeitsverzeichnis verzeichnis(neu.folder());
        Namensliste liste;
        liste.Klasse = FeldText(angaben.Klasse);
        KlassendateienSchreiben(verzeichnis, SchuldatenFuer(liste.Klasse, angaben.Schule), liste,
                                {});
        neu.putInPlace();
    });
}

Text BeispielklasseAnlegen(const std::filesystem::path& vorlage,
                           const std::filesystem::path& ordner) {
    return obstacleIn([&] {
        FolderCopy neu(ordner);
        neu.copyFrom(vorlage, isDelivered);
        neu.putInPlace();
    });
}

} // namespace zeugnis
