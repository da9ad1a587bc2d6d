#pragma once

#include "files/school_data.h"

#include <filesystem>
#include <optional>

namespace zeugnis {

/// What a teacher knows a class folder by.
struct Klassenangaben {
    Text Klasse;
    Schuldaten Schule;
    int Kinder = 0; ///< with a name
};

/// Whether a folder holds what the start page needs.
bool IstKlassenordner(const std::filesystem::path& ordner);

/// The class folder that a file or folder lies in, or is; none if it lies in no such folder.
std::optional<std::filesystem::path> KlassenordnerZu(const std::filesystem::path& stelle);

/// None if the files cannot be read, whatever the reason.
std::optional<Klassenangaben> KlassenangabenLesen(const std::filesystem::path& ordner);

/// "3a 2026-27-2": class, school year and half-year, without signs that no file name may have.
Text OrdnernameFuer(const Klassenangaben& angaben);

} // namespace zeugnis
