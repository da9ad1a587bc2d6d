#pragma once

#include "documents/window/report_list_model.h"

#include <QTableView>

namespace zeugnis::dokumente {

/// The table, used like a spreadsheet: typing replaces, F2 edits, Enter goes down and Tab to the
/// right, cells are copied and pasted as blocks. Strg+Tab, and Tab at the ends, leave the table.
class ReportListView : public QTableView {
    Q_OBJECT

  public:
    explicit ReportListView(ReportListModel& model, QWidget* parent = nullptr);

    void copy() const;
    void cut();
    void paste();
    void clearCells();

  signals:
    /// The teacher has gone to another cell, not been led back to one that was refused.
    void cellEntered();

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QRect block() const; ///< the selected cells: columns and rows
    [[nodiscard]] QModelIndex firstGap() const;
    void measure();
    bool step(int columns, int rows);
    void returnTo(const QModelIndex& cell);
    bool handleEditorKey(const QKeyEvent& event);

    ReportListModel& m_model;
    bool m_typedOver = false; ///< the open editor was opened by typing, so arrows leave it
    bool m_wasRefused = false;
};

} // namespace zeugnis::dokumente
