#include "toolkit/item_layout.h"

namespace zeugnis {

ItemLayout::~ItemLayout() {
    // A layout takes itself out of the one that it is in when it goes.
    while (QLayoutItem* item = ItemLayout::takeAt(0))
        delete item;
}

void ItemLayout::add(QLayout& part) {
    addChildLayout(&part);
    addItem(&part);
}

void ItemLayout::addItem(QLayoutItem* item) { m_items.push_back(item); }

void ItemLayout::insertItem(int index, QLayoutItem& item) {
    m_items.insert(m_items.begin() + index, &item);
}

int ItemLayout::count() const { return static_cast<int>(m_items.size()); }

QLayoutItem* ItemLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<size_t>(index)] : nullptr;
}

QLayoutItem* ItemLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item != nullptr)
        m_items.erase(m_items.begin() + index);
    return item;
}

QSize ItemLayout::minimumSize() const {
    QSize least;
    for (const QLayoutItem* item : m_items)
        least = least.expandedTo(item->minimumSize());
    return least;
}

} // namespace zeugnis
