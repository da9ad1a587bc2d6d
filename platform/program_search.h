#pragma once

#include "platform/text.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zeugnis {

/// Where the system knows a program by name ("Winword.exe") that is not on the search path. On
/// Windows that is what the Run box finds ("App Paths"), where Word and LibreOffice register.
std::optional<std::filesystem::path> registeredProgram(TextView name);

/// Folders in which dictionaries for spelling may lie, the likeliest first.
std::vector<std::filesystem::path> dictionaryFolders();

/// A file's name as a C library takes it that knows nothing but char.
std::string nameForCLibrary(const std::filesystem::path& file);

/// Whether pages can be laid out and drawn, letters included, without any display.
bool drawsWithoutDisplay();

} // namespace zeugnis
