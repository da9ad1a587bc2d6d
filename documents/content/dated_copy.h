#pragma once

#include "platform/working_directory.h"

#include <optional>
#include <string>

/// What gives way to something newer is kept beside it: "3aZeugnisliste32 vom 07.07.2027.txt", and
/// for a further one of the day "… vom 07.07.2027-2.txt". `heute` is dd.mm.yyyy, `endung` ".txt".
namespace zeugnis::dokumente {

/// What stands between stem and date.
inline constexpr TextView Kopiewort = u" vom ";

/// The next free name, or that of a copy of the day that holds `bytes` already.
Text Kopiename(const Arbeitsverzeichnis& verzeichnis, const Text& stamm, TextView endung,
               const Text& heute, const std::optional<std::string>& bytes = {});

/// Writes a copy and returns its name. Fails as writeWholeFile does.
Text KopieAnlegen(const Arbeitsverzeichnis& verzeichnis, const Text& stamm, TextView endung,
                  const Text& heute, const std::string& bytes);

} // namespace zeugnis::dokumente
