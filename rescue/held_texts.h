#pragma once

#include "safety/typed.h"

namespace zeugnis {

class Screen;

namespace rescue {

/// All texts, choices and locks that a screen holds and that a save would write, told by the field
/// of the file that they go to; what stands in the box that has the focus included. Nothing for a
/// screen that writes none, or that has loaded none yet.
std::vector<safety::Typed> heldBy(const Screen& screen);

} // namespace rescue
} // namespace zeugnis
