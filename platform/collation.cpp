#include "platform/collation.h"

#include "platform/failure.h"

#include <unicode/coll.h>

#include <algorithm>

namespace zeugnis {
namespace {

// The noncharacter whose weight lies below all others, for the separation of merged sort keys.
constexpr char16_t FieldEnd = 0xFFFE;

icu::UnicodeString withFieldEnds(TextView text) {
    Text key(text);
    std::replace(key.begin(), key.end(), u'"', FieldEnd);
    return {key.data(), static_cast<int32_t>(key.size())};
}

} // namespace

struct Collation::Rules {
    std::unique_ptr<icu::Collator> collator;
};

Collation::Collation() : m_rules(std::make_unique<Rules>()) {
    UErrorCode status = U_ZERO_ERROR;
    m_rules->collator.reset(icu::Collator::createInstance(icu::Locale::getGermany(), status));
    if (U_SUCCESS(status)) {
        m_rules->collator->setStrength(icu::Collator::SECONDARY);
        m_rules->collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    }
    if (U_FAILURE(status))
        throw Laufzeitfehler(Fehlerart::FileNotFound,
                             u"Die Regeln für das alphabetische Sortieren sind auf diesem Rechner "
                             u"nicht vorhanden (ICU).");
}

Collation::~Collation() = default;

bool Collation::before(TextView left, TextView right) const {
    const icu::UnicodeString leftKey = withFieldEnds(left);
    const icu::UnicodeString rightKey = withFieldEnds(right);
    UErrorCode status = U_ZERO_ERROR;
    return m_rules->collator->compare(leftKey, rightKey, status) == UCOL_LESS;
}

} // namespace zeugnis
