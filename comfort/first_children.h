#pragma once

#include "files/pupil_list.h"

#include <filesystem>
#include <vector>

namespace zeugnis {

/// Types children into the master data of a new class and saves, as a hand would in its windows.
/// `ordner` is the class folder, which nothing else has open. Returns why it cannot be done, as a
/// sentence; empty if they are in the list.
Text KinderEintragen(const std::filesystem::path& ordner, const std::vector<Schueler>& kinder);

} // namespace zeugnis
