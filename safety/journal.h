#pragma once

#include "platform/text.h"
#include "safety/moment.h"

#include <optional>
#include <string>
#include <vector>

/// The format of units under way and of former states, which are the same; docs/formats/
/// notsicherung.md shows one.
namespace zeugnis::safety {

/// What a file held before a unit.
struct Former {
    std::string name;                                  ///< from the program folder, with "/"
    std::optional<std::string> content = std::nullopt; ///< empty: there was no such file
};

struct Journal {
    Moment begin{};
    Text action; ///< what was done; empty if the unit has not ended
    std::vector<Former> files;
    bool damaged = false; ///< something between the records could not be read
};

/// The name of its file without the ending, "20261123-070059-000", which sorts by time. `number`
/// tells those of one second apart.
inline constexpr int journalsPerSecond = 1000;
std::string journalStem(Moment begin, int number);

/// The first line.
std::string journalHead(Moment begin);

/// One record. A content that one of `before` has already is only named.
std::string journalRecord(const Former& file, const std::vector<Former>& before);

/// The last line.
std::string journalEnd(const Text& action);

/// Takes every record that is whole, whatever stands between them. A record that was not written
/// to its end is no damage: nothing that it speaks of has been touched.
Journal readJournal(std::string_view bytes);

} // namespace zeugnis::safety
