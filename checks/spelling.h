#pragma once

#include "platform/text.h"

namespace zeugnis {

/// Tells whether a word is written as the dictionary has it.
class Rechtschreibung {
  public:
    virtual ~Rechtschreibung() = default;
    [[nodiscard]] virtual bool kennt(TextView wort) const = 0;
};

} // namespace zeugnis
