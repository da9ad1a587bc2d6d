#pragma once

#include "platform/text.h"

#include <filesystem>

namespace zeugnis {

/// Copies a whole class folder, for example from a stick, with former states and all, and compares
/// each file with what was read. Returns why it cannot be done, as a sentence, and then leaves
/// nothing behind; empty if the copy stands.
Text KlasseMitnehmen(const std::filesystem::path& von, const std::filesystem::path& nach);

} // namespace zeugnis
