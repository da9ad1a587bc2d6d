#pragma once

#include <QListWidget>

namespace zeugnis {

/// A list in which what is highlighted is what is chosen: each press of the mouse and each key that
/// moves the highlight picks, and nothing else does. Without a pick nothing is highlighted.
class EntryList : public QListWidget {
    Q_OBJECT

  public:
    using QListWidget::QListWidget;

    /// Highlights the row, or none for -1, without a pick.
    void highlight(int row);

  signals:
    void picked(int row);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    void pickCurrent();

    bool m_pressedEntry = false;
};

} // namespace zeugnis
