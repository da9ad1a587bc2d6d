#pragma once

#include "platform/text.h"

#include <memory>

namespace zeugnis {

/// The order of German lists: umlauts and accents stand beside their letters, upper and lower case
/// are the same, and punctuation and blanks count, in front of digits and letters. A double quote,
/// which ends a field, comes before every character.
class Collation {
  public:
    Collation();
    ~Collation();
    Collation(const Collation&) = delete;
    Collation& operator=(const Collation&) = delete;

    /// True if `left` belongs in front of `right`; false for two that count as equal.
    [[nodiscard]] bool before(TextView left, TextView right) const;

  private:
    struct Rules;
    std::unique_ptr<Rules> m_rules;
};

} // namespace zeugnis
