#include "desktop/even_rows.h"

#include <algorithm>

namespace zeugnis {

EvenRows::EvenRows(int spacing, double leastShare) : m_leastShare(leastShare) {
    setSpacing(spacing);
}

int EvenRows::widest(QSize (QLayoutItem::*size)() const) const {
    int width = 0;
    for (const QLayoutItem* item : items())
        width = std::max(width, (item->*size)().width());
    return width;
}

// The rows are filled as evenly as can be: eight in a row become four and four.
int EvenRows::columnsWithin(int width) const {
    const int least = std::max(widest(&QLayoutItem::minimumSize),
                               static_cast<int>(widest(&QLayoutItem::sizeHint) * m_leastShare));
    int columns = std::max(1, count());
    for (int rows = 2; columns > 1 && columns * (least + spacing()) - spacing() > width; ++rows)
        columns = (count() + rows - 1) / rows;
    return columns;
}

int EvenRows::columnWidth(int width) const {
    const int columns = columnsWithin(width);
    return (width - (columns - 1) * spacing()) / columns;
}

std::vector<EvenRows::Row> EvenRows::rowsWithin(int width) const {
    const auto columns = static_cast<size_t>(columnsWithin(width));
    const int each = columnWidth(width);
    std::vector<Row> rows;
    for (size_t i = 0; i < items().size(); ++i) {
        if (i % columns == 0)
            rows.push_back({{}, 0});
        QLayoutItem* item = items()[i];
        const int height =
            item->hasHeightForWidth() ? item->heightForWidth(each) : item->sizeHint().height();
        rows.back().items.push_back(item);
        rows.back().height = std::max(rows.back().height, height);
    }
    return rows;
}

int EvenRows::heightForWidth(int width) const {
    int height = -spacing();
    for (const Row& row : rowsWithin(width))
        height += row.height + spacing();
    return std::max(0, height);
}

QSize EvenRows::sizeHint() const {
    const int width = count() * (widest(&QLayoutItem::sizeHint) + spacing()) - spacing();
    return {width, heightForWidth(width)};
}

void EvenRows::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const int each = columnWidth(rect.width());
    int y = rect.top();
    for (const Row& row : rowsWithin(rect.width())) {
        int x = rect.left();
        for (QLayoutItem* item : row.items) {
            item->setGeometry({x, y, each, row.height});
            x += each + spacing();
        }
        y += row.height + spacing();
    }
}

} // namespace zeugnis
