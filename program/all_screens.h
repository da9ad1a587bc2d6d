#pragma once

#include "platform/text.h"

#include <span>

namespace zeugnis {

class Programm;

/// The names of all screens, in the order in which they are listed.
std::span<const TextView> AlleBildschirme();

/// Tells the program how each of its screens is made.
void BildschirmeAnmelden(Programm& programm);

} // namespace zeugnis
