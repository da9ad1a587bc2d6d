#pragma once

#include "safety/typed.h"

namespace zeugnis {

class Programm;

namespace rescue {

/// Whether a text can be put where it was typed: into the report texts and the text modules.
bool canTake(const safety::Offer& offer);

/// Opens the screen that the text was typed in, if it is not open, and has an editor load what is
/// current. False if there is no way to it now.
bool openFor(Programm& programm, const safety::Offer& offer);

/// Puts the text where it was typed, as a hand would: with the screen open, chooses the child and
/// the section, clicks into the box, selects all and pastes. Whatever these actions bring,
/// questions and locks, comes. Returns what was in the way, in German; empty: the text stands in
/// its box, and is to be saved like any other.
Text take(Programm& programm, const safety::Offer& offer);

} // namespace rescue
} // namespace zeugnis
