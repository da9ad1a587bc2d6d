#pragma once

#include <string>

namespace zeugnis::windowdriver {

/// Plays a road of random commands on the control model and in the windows at the same time. What
/// the two did differently, with the road up to there; empty if nothing. The same seed gives the
/// same road.
std::string differenceOnRandomRoad(unsigned seed, int commands);

} // namespace zeugnis::windowdriver
