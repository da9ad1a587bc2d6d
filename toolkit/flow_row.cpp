#include "toolkit/flow_row.h"

#include <QWidgetItem>

#include <algorithm>

namespace zeugnis {

FlowRow::FlowRow(int spacing) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

void FlowRow::insertWidget(int index, QWidget& widget) {
    addChildWidget(&widget);
    insertItem(index, *new QWidgetItem(&widget));
    invalidate();
}

int FlowRow::gapBefore(size_t index) const {
    const auto found = m_spaceBefore.find(static_cast<int>(index));
    return spacing() + (found == m_spaceBefore.end() ? 0 : found->second);
}

std::vector<FlowRow::Row> FlowRow::rowsWithin(int width) const {
    std::vector<Row> rows;
    for (size_t i = 0; i < items().size(); ++i) {
        if (items()[i]->isEmpty())
            continue;
        const QSize size = items()[i]->sizeHint();
        const int all = rows.empty() ? 0 : rows.back().size.width() + gapBefore(i) + size.width();
        if (rows.empty() || all > width) {
            rows.push_back({i, i + 1, size});
            continue;
        }
        rows.back().end = i + 1;
        rows.back().size = {all, std::max(rows.back().size.height(), size.height())};
    }
    return rows;
}

int FlowRow::heightForWidth(int width) const {
    int height = -spacing();
    for (const Row& row : rowsWithin(width))
        height += row.size.height() + spacing();
    return std::max(0, height);
}

QSize FlowRow::sizeHint() const {
    int width = 0;
    for (size_t i = 0; i < items().size(); ++i)
        if (!items()[i]->isEmpty())
            width += items()[i]->sizeHint().width() + (width > 0 ? gapBefore(i) : 0);
    return {width, heightForWidth(width)};
}

void FlowRow::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const std::vector<Row> rows = rowsWithin(rect.width());
    int y = rect.top();
    for (const Row& row : rows) {
        const bool isLast = &row == &rows.back();
        int x = rect.left();
        for (size_t i = row.first; i < row.end; ++i) {
            if (items()[i]->isEmpty())
                continue;
            const bool atRight = m_firstAtRight < 0 ? isLast && i + 1 == row.end
                                                    : static_cast<int>(i) >= m_firstAtRight;
            const QSize size = items()[i]->sizeHint().boundedTo({rect.width(), row.size.height()});
            const int indent = atRight ? std::max(0, rect.width() - row.size.width()) : 0;
            x += i == row.first ? 0 : gapBefore(i);
            items()[i]->setGeometry(
                {{x + indent, y + (row.size.height() - size.height()) / 2}, size});
            x += size.width();
        }
        y += row.size.height() + spacing();
    }
}

} // namespace zeugnis
