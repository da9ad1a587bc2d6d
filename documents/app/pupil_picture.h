#pragma once

#include "documents/model/document.h"
#include "platform/working_directory.h"

#include <optional>

namespace zeugnis::dokumente {

/// A picture of the folder Bild, upright and reduced to the size of a list's row, whatever the
/// camera made of it. Nothing if the file is missing or cannot be shown.
std::optional<Image> KinderbildLesen(const Arbeitsverzeichnis& verzeichnis, const Text& datei);

/// The same in the size of a school's sign or of a picture across the head of a report.
std::optional<Image> KopfbildLesen(const Arbeitsverzeichnis& verzeichnis, const Text& datei);

} // namespace zeugnis::dokumente
