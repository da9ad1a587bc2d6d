#include "controls/list_controls.h"

#include "platform/code_page.h"
#include "platform/failure.h"

#include <algorithm>

namespace zeugnis {

void ListControl::addItem(const Text& entry) { m_entries.push_back(entry); }

void ListControl::removeItem(int index) {
    check(index, 0);
    m_entries.erase(m_entries.begin() + index);
    m_listIndex = -1;
    picked();
}

void ListControl::clear() {
    m_entries.clear();
    m_listIndex = -1;
    picked();
}

void ListControl::setListIndex(int index) {
    check(index, -1);
    if (m_listIndex != index)
        userPick(index);
}

void ListControl::userPick(int index) {
    check(index, -1);
    m_listIndex = index;
    picked();
    if (onClick)
        onClick();
}

void ListControl::check(int index, int lowest) const {
    if (index < lowest || index >= static_cast<int>(m_entries.size()))
        throw Laufzeitfehler(Fehlerart::InvalidCall,
                             u"In der Liste ist kein Eintrag ausgewählt (Eintrag " +
                                 textFromNumber(index) + u" von " +
                                 textFromNumber(static_cast<int>(m_entries.size())) + u").");
}

void SortedListBox::addItem(const Text& entry) {
    const auto place = std::upper_bound(
        m_entries.begin(), m_entries.end(), entry,
        [this](const Text& left, const Text& right) { return m_order.before(left, right); });
    m_entries.insert(place, entry);
}

void ComboBox::userType(TextView characters) {
    for (const char16_t character : nearestInWindows1252(characters)) {
        Inscription += character;
        m_listIndex = -1;
        if (onChange)
            onChange();
    }
}

void ComboBox::picked() {
    Inscription = m_listIndex >= 0 ? m_entries[static_cast<size_t>(m_listIndex)] : Text();
}

} // namespace zeugnis
