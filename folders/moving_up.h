#pragma once

#include "folders/class_folder.h"

namespace zeugnis {

/// What a class folder would be called after the summer, or after the half-year: class, school year
/// and half-year go on, and the dates of this report are empty. In year 4 the class stays.
Klassenangaben NaechsterAbschnitt(const Klassenangaben& bisher);

/// Makes a new folder out of that of a class: names, pictures and working groups, the modules that
/// the school has changed, the others as they are delivered in `vorlage` now. No text, choice or
/// grade comes along, and nothing in the old folder is touched. Returns why it cannot be done, as a
/// sentence, and then leaves nothing behind.
Text KlasseUebernehmen(const std::filesystem::path& bisher, const std::filesystem::path& vorlage,
                       const std::filesystem::path& ordner, const Klassenangaben& angaben);

} // namespace zeugnis
