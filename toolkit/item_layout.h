#pragma once

#include <QLayout>

#include <vector>

namespace zeugnis {

/// Keeps the items of a layout that places them by its width. What derives from it says how.
class ItemLayout : public QLayout {
    Q_OBJECT

  public:
    ~ItemLayout() override;

    void add(QLayout& part);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    /// Room for each of the items alone.
    [[nodiscard]] QSize minimumSize() const override;

  protected:
    [[nodiscard]] const std::vector<QLayoutItem*>& items() const { return m_items; }
    void insertItem(int index, QLayoutItem& item);

  private:
    std::vector<QLayoutItem*> m_items;
};

} // namespace zeugnis
