#pragma once

#include "platform/text.h"

#include <vector>

namespace zeugnis {

/// Tells whether a word is written as the dictionary has it.
class Rechtschreibung {
  public:
    virtual ~Rechtschreibung() = default;
    [[nodiscard]] virtual bool kennt(TextView wort) const = 0;
    /// What may be meant by a word that it does not know, the likeliest first. It may take some
    /// tenths of a second.
    [[nodiscard]] virtual std::vector<Text> vorschlaege(TextView wort) const = 0;
};

} // namespace zeugnis
