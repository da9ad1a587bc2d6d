#pragma once

#include "platform/failure.h"
#include "safety/moment.h"

#include <filesystem>
#include <span>
#include <utility>

/// What helps to find a fault from afar, without the name or a text of any child.
namespace zeugnis {

/// Keeps that a failure has ended the program, in Notsicherung. What cannot be written there is
/// left out.
void FehlerMerken(const std::filesystem::path& ordner, const Laufzeitfehler& fehler,
                  safety::Moment wann);

/// A sentence without what it cites, but for the names of data files.
Text OhneInhalte(TextView satz);

/// Versions, sizes, dates and numbers of records of the files, damage that is found, and the last
/// failures. `system` is what the windows know of the machine, as heading and value.
Text Diagnose(const std::filesystem::path& ordner, std::span<const std::pair<Text, Text>> system,
              safety::Moment wann);

} // namespace zeugnis
