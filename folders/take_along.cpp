#include "folders/take_along.h"

#include "folders/class_folder.h"
#include "folders/folder_copy.h"
#include "safety/folder_lock.h"

namespace zeugnis {

Text KlasseMitnehmen(const std::filesystem::path& von, const std::filesystem::path& nach) {
    if (!IstKlassenordner(von))
        return u"In diesem Ordner liegt keine Klasse: „Daten“ mit der Klassenliste fehlt.";
    return obstacleIn([&] {
        FolderCopy neu(nach);
        neu.copyFrom(von, [](const std::filesystem::path& name) {
            return !safety::FolderLock::isItsFile(name);
        });
        neu.putInPlace();
    });
}

} // namespace zeugnis
