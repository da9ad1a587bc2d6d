#pragma once

#include "platform/text.h"

#include <set>
#include <string>

namespace zeugnis::safety {

/// What a unit did, told from the files that it wrote or deleted: "Basisdaten gespeichert".
Text actionOf(const std::set<std::string>& names);

/// Whether anyone would want the former content of the file back: not that of a work file.
bool worthKeeping(const std::string& name);

} // namespace zeugnis::safety
