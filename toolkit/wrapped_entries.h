#pragma once

#include <QStyledItemDelegate>

namespace zeugnis {

/// For a list whose entries wrap. The style sheet keeps room free beside a text, which Qt leaves
/// out of account when it breaks the lines.
class WrappedEntries : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        constexpr int BesideText = 12;
        QStyleOptionViewItem narrower(option);
        narrower.rect.setWidth(narrower.rect.width() - BesideText);
        return QStyledItemDelegate::sizeHint(narrower, index);
    }
};

} // namespace zeugnis
