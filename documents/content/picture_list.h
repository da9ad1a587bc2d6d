#pragma once

#include "documents/model/document.h"
#include "platform/working_directory.h"

#include <functional>
#include <optional>

namespace zeugnis::dokumente {

/// Gives the picture in a file of the folder Bild, small enough for a list; nothing if there is
/// none that can be shown.
using Kinderbilder = std::function<std::optional<Image>(const Text& datei)>;

/// Under which names the pictures of the children have to be stored, from Bildliststeuer.Txt.
/// Fails as its reader does, and with invalid-call if no child is in it.
Document BilderlisteBilden(Arbeitsverzeichnis& verzeichnis, const Kinderbilder& bilder);

} // namespace zeugnis::dokumente
