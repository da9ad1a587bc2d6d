#pragma once

#include "folders/class_folder.h"

namespace zeugnis {

/// Makes the folder of a new class: all that is delivered in `vorlage`, the school's data and a
/// class list with one blank pupil. Returns why it cannot be done, as a sentence, and then leaves
/// nothing behind; empty if the class is there.
Text KlasseAnlegen(const std::filesystem::path& vorlage, const std::filesystem::path& ordner,
                   const Klassenangaben& angaben);

/// The same for the sample class, as it is delivered.
Text BeispielklasseAnlegen(const std::filesystem::path& vorlage,
                           const std::filesystem::path& ordner);

} // namespace zeugnis
