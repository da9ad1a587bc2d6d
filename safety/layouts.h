#pragma once

#include "platform/text.h"
#include "safety/records.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zeugnis::safety {

/// How the records of a file go on, and what a teacher calls their fields.
struct Layout {
    std::vector<Text> fields{}; ///< all of a record, the running number and the names included
    std::vector<bool> texts{};  ///< whether a field is one, in quotes
    int records = 0;            ///< at least so many; a file by pupil has one for each
    bool byPupil = false;
    size_t familyName = 0; ///< of a file by pupil; the first name stands behind it
};

/// The layout of a file by its name from the program folder; a copy in Sicherheit or Standard has
/// that of its original. Empty for a file of no such form.
std::optional<Layout> layoutOf(std::string_view name);

/// Whether a file is a list of absences and grades: "3aZeugnisliste32.txt", in the program folder.
bool isReportList(std::string_view name);

/// "Ahlers, Tom"; empty for a record that has no names.
Text pupilOf(const Record& record, const Layout& layout);

/// The record of a pupil, or of a number from 1 in a file without pupils. Null if there is none.
const Record* recordFor(const std::vector<Record>& records, const Layout& layout, const Text& pupil,
                        size_t number = 0);

/// The store that holds the locks of a store of texts, in the same fields; empty if it has none.
std::string lockStoreOf(std::string_view name);

} // namespace zeugnis::safety
