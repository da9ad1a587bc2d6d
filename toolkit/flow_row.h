#pragma once

#include "toolkit/item_layout.h"

#include <map>
#include <vector>

namespace zeugnis {

/// A row of buttons that goes on in further rows where it is too long. The last item stands at the
/// right end, or all from a certain one on.
class FlowRow : public ItemLayout {
    Q_OBJECT

  public:
    explicit FlowRow(int spacing);

    void insertWidget(int index, QWidget& widget);
    void alignRightFrom(int index) { m_firstAtRight = index; }
    /// Sets the item that comes next apart from the one before.
    void setSpaceBefore(int index, int space) { m_spaceBefore[index] = space; }

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

  private:
    struct Row {
        size_t first;
        size_t end;
        QSize size;
    };
    [[nodiscard]] int gapBefore(size_t index) const;
    [[nodiscard]] std::vector<Row> rowsWithin(int width) const;

    int m_firstAtRight = -1;
    std::map<int, int> m_spaceBefore;
};

} // namespace zeugnis
