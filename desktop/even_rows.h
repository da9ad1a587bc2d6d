#pragma once

#include <QLayout>

#include <vector>

namespace zeugnis {

/// Places its items in columns of one width: all in one row, or in two, three … rows if one of
/// them would have less room than it needs.
class EvenRows : public QLayout {
    Q_OBJECT

  public:
    /// `leastShare` is the part of its preferred width that an item has at least.
    explicit EvenRows(int spacing, double leastShare = 0);
    ~EvenRows() override;

    void add(QLayout& part);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
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

    std::vector<QLayoutItem*> m_items;
    double m_leastShare;
};

} // namespace zeugnis
