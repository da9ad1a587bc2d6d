#include "desktop/rescue/wrapped_tree.h"

#include "desktop/theme.h"

#include <QStyledItemDelegate>

namespace zeugnis {
namespace {

class Wrapping : public QStyledItemDelegate {
  public:
    explicit Wrapping(WrappedTree& tree) : QStyledItemDelegate(&tree), m_tree(tree) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        constexpr int Margin = 4;
        const int level = index.parent().isValid() ? 2 : 1;
        const int width = m_tree.viewport()->width() - level * m_tree.indentation() - 3 * Margin;
        const auto font = index.data(Qt::FontRole);
        const QFontMetrics metrics(font.isValid() ? font.value<QFont>() : option.font);
        const int height = metrics
                               .boundingRect(QRect(0, 0, qMax(width, 60), 10000), Qt::TextWordWrap,
                                             index.data().toString())
                               .height();
        return {width, height + 2 * Margin};
    }

  private:
    WrappedTree& m_tree;
};

} // namespace

WrappedTree::WrappedTree(const QString& name, QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setAccessibleName(name);
    setMinimumWidth(170);
    setWordWrap(true);
    setIndentation(14);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new Wrapping(*this));
}

QTreeWidgetItem* WrappedTree::heading(const QString& text) {
    for (int i = 0; i < topLevelItemCount(); ++i)
        if (topLevelItem(i)->text(0) == text)
            return topLevelItem(i);
    auto* item = new QTreeWidgetItem(this, {text});
    item->setFont(0, theme::font(theme::Size::Body, QFont::DemiBold));
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

void WrappedTree::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    scheduleDelayedItemsLayout();
}

} // namespace zeugnis
