#pragma once

#include <string>

/// Faults in the calls by which this process touches the files below a folder. The calls of the C
/// library are replaced for the whole program that this is linked to.
namespace zeugnis::test::faults {

enum class Kind {
    Eio,
    Enospc, ///< of a write half is done before it fails
    Eacces,
    Erofs,
    LastingEnospc, ///< from this call on nothing grows and nothing is made
    LastingErofs,  ///< from this call on nothing changes
    Kill,
    TornKill, ///< in the middle of a write
    PowerCut, ///< what was not put on the disk is lost, names and contents
    TornCut,  ///< of contents that were not put on the disk the first half has got there
};
inline constexpr int Kinds = 10;

const char* nameOf(Kind kind);
bool endsProcess(Kind kind);

/// Counts the calls from here on; the fault strikes at call `at`, from 1. 0: never.
void arm(const std::string& folder, Kind kind, int at);

/// Counts no more. Returns the number of calls.
int disarm();

/// As if the power failed now: what was not put on the disk since arm() is lost.
[[noreturn]] void cutPower(bool torn);

} // namespace zeugnis::test::faults
