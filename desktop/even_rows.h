#pragma once

#include "toolkit/item_layout.h"

#include <vector>

namespace zeugnis {

/// Places its items in columns of one width: all in one row, or in two, three … rows if one of
/// them would have less room than it needs.
class EvenRows : public ItemLayout {
    Q_OBJECT

  public:
    /// `leastShare` is the part of its preferred width that an item has at least.
    explicit EvenRows(int spacing, double leastShare = 0);

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

  private:
    struct Row {
        std::vector<QLayoutItem*> items;
        int height;
    };

    [[nodiscard]] int widest(QSize (QLayoutItem::*size)() const) const;
    [[nodiscard]] int columnsWithin(int width) const;
    [[nodiscard]] int columnWidth(int width) const;
    [[nodiscard]] std::vector<Row> rowsWithin(int width) const;

    double m_leastShare;
};

} // namespace zeugnis
