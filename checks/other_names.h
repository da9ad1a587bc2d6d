#pragma once

#include "files/pupil_list.h"

namespace zeugnis {

/// The first names in a text that only other children of the class bear, each once, in the order of
/// the list. The child's own names are not looked into: no "Anna" in "Anna Sophie".
/// platz: 0 to 35, the child of the text.
std::vector<Text> FremdeVornamen(const Text& text, const Namensliste& liste, int platz);

} // namespace zeugnis
