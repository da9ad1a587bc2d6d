#pragma once

#include "platform/working_directory.h"
#include "safety/guard.h"
#include "safety/paths.h"

#include <functional>

namespace zeugnis::safety {

enum class Damage {
    Missing,
    Unreadable,
    TooLarge, ///< no program of ours writes so much; it has not been read
    Empty,
    Cut,           ///< it breaks off within a record
    FewerRecords,  ///< than there are children
    Encoding,      ///< it is not in Windows-1252
    ShiftedFields, ///< by a double quote within a text, or a field too many or too few
    ChangedByHand, ///< no damage: another program has written it
};

struct GoodState {
    Text source; ///< "vom 22.11.2026, 22:30 Uhr", "wie zuletzt gespeichert"
    std::string content;
};

struct Finding {
    Damage kind;
    std::string file;              ///< from the program folder
    size_t record = 0;             ///< from 1; 0: the whole file
    Text pupil;                    ///< of the record, if it has one
    Text field;                    ///< what the teacher calls it
    Text sentence;                 ///< German: what is the matter
    Text consequence;              ///< German: what would happen if nothing was done
    std::optional<GoodState> good; ///< the last good state, if there is any
};

/// Compares the data files with what was last written and looks at their records. At most one
/// finding for each file. Files without damage that are not known yet are taken as they are.
std::vector<Finding> examine(const std::filesystem::path& programFolder);

/// The same for some of the files, for those that `wanted` takes.
std::vector<Finding> examine(const std::filesystem::path& programFolder,
                             const std::function<bool(const std::string& name)>& wanted);

/// From now on the file is good as it is. What was last written becomes a former state.
void accept(const std::filesystem::path& programFolder, const std::string& file, Moment when);

/// Puts the good state in the place of the file, as a unit of its own. Fails as writeWholeFile
/// does. `directory` stands in the program folder and is watched by `guard`.
void bringBackGood(const Arbeitsverzeichnis& directory, Guard& guard, const Finding& finding);

/// The text with „ and “ for double quotes, which would end it in the file.
Text withGermanQuotes(TextView text);

} // namespace zeugnis::safety
