#pragma once

#include "safety/typed.h"

namespace zeugnis::rescue {

/// One text that an earlier run has left, as a teacher sees it. The locks and choices of the same
/// section come and go with it: taking it over makes them anew.
struct OfferedText {
    safety::Offer offer;
    Text who;     ///< the child, or what the text belongs to where there is none
    Text section; ///< "Arbeitsverhalten"
    Text when;    ///< "gestern, 22:41 Uhr"
    std::vector<safety::Offer> withIt;
};

/// What is offered at a start, child by child and section by section.
class OfferList {
  public:
    OfferList(safety::TypedStore& store, safety::Moment today);

    [[nodiscard]] const std::vector<OfferedText>& texts() const { return m_texts; }

    /// It was taken or refused, and is not offered again.
    void settle(size_t index);
    void settleAll();

  private:
    void settleOne(const OfferedText& text);

    safety::TypedStore& m_store;
    std::vector<OfferedText> m_texts;
};

/// "heute, 22:41 Uhr", "gestern, 22:41 Uhr", "am 20.11.2026, 22:41 Uhr"
Text shownMoment(safety::Moment moment, safety::Moment today);

} // namespace zeugnis::rescue
