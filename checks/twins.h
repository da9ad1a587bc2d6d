#pragma once

#include "platform/text.h"

#include <cstdint>
#include <utility>
#include <vector>

/// Two children with the same text, or nearly: what was taken from one to the other and forgotten.
namespace zeugnis {

/// The words of a text for comparing: the child's name and what differs with the sex are as good
/// as equal.
using Vergleichswoerter = std::vector<std::uint64_t>;
Vergleichswoerter VergleichswoerterVon(TextView text, TextView vorname);

/// Whether hardly a word differs. Short texts may well be alike; they never are.
bool SindFastGleich(const Vergleichswoerter& eine, const Vergleichswoerter& andere);

/// Whether the texts are the same, to the letter; short ones never are.
bool SindGleich(TextView einer, TextView anderer);

/// Another child with the same text, or nearly.
struct Zwilling {
    int Platz = 0;
    bool Genau = false;

    bool operator==(const Zwilling&) const = default;
};

struct Textstelle {
    size_t Anfang = 0;
    size_t Laenge = 0;
};
/// The words of either text that the other one has not at this place, neighbours as one.
std::pair<std::vector<Textstelle>, std::vector<Textstelle>> UnterschiedeZwischen(TextView links,
                                                                                 TextView rechts);

} // namespace zeugnis
