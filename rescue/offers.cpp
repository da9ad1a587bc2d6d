#include "rescue/offers.h"

#include "safety/layouts.h"

#include <algorithm>

namespace zeugnis::rescue {
namespace {

using safety::Offer;

bool isText(const Offer& offer) {
    const auto layout = safety::layoutOf(offer.typed.file);
    return layout && offer.typed.field < layout->texts.size() && layout->texts[offer.typed.field];
}

bool belongTogether(const Offer& a, const Offer& b) {
    return a.run == b.run && a.screen == b.screen && a.typed.pupil == b.typed.pupil;
}

// What the records without a child belong to.
Text belongingOf(const Offer& offer) {
    if (!offer.typed.pupil.empty())
        return offer.typed.pupil;
    return safety::shownName(offer.typed.file);
}

Text sectionOf(const Offer& offer) {
    const auto layout = safety::layoutOf(offer.typed.file);
    if (layout && !layout->byPupil && layout->fields.size() > 1 && !layout->texts.front())
        return u"Zeile " + textFromNumber(static_cast<int>(offer.typed.number)) + u", " +
               offer.fieldName;
    return offer.fieldName;
}

} // namespace

Text shownMoment(safety::Moment moment, safety::Moment today) {
    const auto days = safety::dayOf(today) - safety::dayOf(moment);
    const Text day = days.count() == 0   ? Text(u"heute")
                     : days.count() == 1 ? Text(u"gestern")
                                         : u"am " + safety::shownDay(moment);
    return day + u", " + safety::shownTime(moment) + u" Uhr";
}

OfferList::OfferList(safety::TypedStore& store, safety::Moment today) : m_store(store) {
    const std::vector<Offer> all = store.offers();
    for (const Offer& one : all)
        if (isText(one))
            m_texts.push_back(
                {one, belongingOf(one), sectionOf(one), shownMoment(one.when, today), {}});
    for (const Offer& one : all) {
        if (isText(one))
            continue;
        const auto last =
            std::find_if(m_texts.rbegin(), m_texts.rend(),
                         [&](const OfferedText& text) { return belongTogether(text.offer, one); });
        // A lock or a choice alone is nothing that anyone has written.
        if (last == m_texts.rend())
            store.settle(one);
        else
            last->withIt.push_back(one);
    }
}

void OfferList::settleOne(const OfferedText& text) {
    m_store.settle(text.offer);
    for (const Offer& one : text.withIt)
        m_store.settle(one);
}

void OfferList::settle(size_t index) {
    settleOne(m_texts.at(index));
    m_texts.erase(m_texts.begin() + static_cast<std::ptrdiff_t>(index));
}

void OfferList::settleAll() {
    for (const OfferedText& text : m_texts)
        settleOne(text);
    m_texts.clear();
}

} // namespace zeugnis::rescue
