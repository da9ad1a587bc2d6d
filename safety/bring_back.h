#pragma once

#include "platform/working_directory.h"
#include "safety/differences.h"
#include "safety/guard.h"

#include <span>

namespace zeugnis::safety {

/// Ways back. Each is a unit of its own, so it can be taken back like any save. `directory` stands
/// in the program folder and is watched by `guard`. All fail as writeWholeFile does. No entry
/// screen or editor may be open: it would write over what has come back.

/// One text of a pupil with its lock, or one field of another file. Returns false, and writes
/// nothing, if the file is no longer as the difference says.
bool bringBackText(const Arbeitsverzeichnis& directory, Guard& guard,
                   const std::vector<Former>& formers, const Difference& difference);

/// All texts, locks and choices of a child in the stores among the former files. Returns false if
/// there is nothing of this child on both sides.
bool bringBackPupil(const Arbeitsverzeichnis& directory, Guard& guard,
                    const std::vector<Former>& formers, const Text& pupil);

/// All of these files. What was no file then stays. A store of the same children as the class list
/// comes in its order, since the screens read it by place.
void bringBackAll(const Arbeitsverzeichnis& directory, Guard& guard,
                  const std::vector<Former>& formers);

} // namespace zeugnis::safety
