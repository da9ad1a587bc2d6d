#pragma once

#include <QTreeWidget>

namespace zeugnis {

/// A list in two levels whose entries wrap instead of being cut off.
class WrappedTree : public QTreeWidget {
    Q_OBJECT

  public:
    WrappedTree(const QString& name, QWidget* parent);

    /// The heading of this text, in bold: made where there is none.
    QTreeWidgetItem* heading(const QString& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace zeugnis
