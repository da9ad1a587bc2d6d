#include "documents/window/report_list_view.h"

#include "toolkit/qt_text.h"
#include "toolkit/window_place.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionHeader>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>

namespace zeugnis::dokumente {
namespace {

constexpr int NameWidth = 270; // so that all subjects fit beside it on a small screen
constexpr int GoodColumn = 90;
// Pixels that are meant for the usual font.
int atFont(int pixels) { return windowplace::atFont({pixels, 0}).width(); }

constexpr double HeadShare = 0.86; // of the size of the cells
constexpr int RowPadding = 4;
constexpr QSize HeadPadding(10, 10);
constexpr int NamePadding = 16;

/// The editor of a cell is as wide as the cell, with its text in the middle.
class CellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& index) const override {
        auto* line = new QLineEdit(parent);
        line->setAlignment(Qt::AlignCenter);
        line->setFrame(false);
        line->setAccessibleName(
            index.model()
                ->headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole)
                .toString());
        line->installEventFilter(this->parent());
        return line;
    }
};

/// The names. A style sheet takes the dots from a header whose text is too long.
class NameHeader : public QHeaderView {
  public:
    explicit NameHeader(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
        setSectionsClickable(true);
        setHighlightSections(true);
        setSectionResizeMode(Fixed);
        setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }

  protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        QFont font = this->font();
        font.setBold(option->state.testFlag(QStyle::State_On));
        option->text =
            QFontMetrics(font).elidedText(option->text, Qt::ElideRight, width() - NamePadding);
    }
};

} // namespace

ReportListView::ReportListView(ReportListModel& model, QWidget* parent)
    : QTableView(parent), m_model(model) {
    setModel(&model);
    setItemDelegate(new CellDelegate(this));
    setAccessibleName(QStringLiteral("Einträge der Klasse"));
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setCornerButtonEnabled(false);
    setVerticalHeader(new NameHeader(this));
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    connect(&model, &ReportListModel::refused, this, [this](const QModelIndex& cell) {
        m_wasRefused = true;
        // The view may be on its way to another cell at this moment.
        QTimer::singleShot(0, this, [this, cell = QPersistentModelIndex(cell)] { returnTo(cell); });
    });
    connect(&model, &QAbstractItemModel::modelReset, this, [this] {
        setCurrentIndex(m_model.index(0, 0));
        measure();
    });
    measure();
    setCurrentIndex(firstGap());
}

// Where the work goes on: the first child without something that another one has.
QModelIndex ReportListView::firstGap() const {
    const auto isEmpty = [this](int row, int column) {
        return m_model.index(row, column).data().toString().isEmpty();
    };
    const int rows = m_model.rowCount();
    QModelIndex first = m_model.index(0, 0);
    int best = rows;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        int gap = 0;
        while (gap < rows && !isEmpty(gap, column))
            ++gap;
        bool isInUse = gap > 0;
        for (int row = gap + 1; row < rows && !isInUse; ++row)
            isInUse = !isEmpty(row, column);
        if (isInUse && gap < best) {
            best = gap;
            first = m_model.index(gap, column);
        }
    }
    return first;
}

// Headings may have two lines. None is cut, however large the letters are; that of the current
// column is bold. A heading is painted in the font of what scrolls in the header.
void ReportListView::measure() {
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * HeadShare);
    horizontalHeader()->setFont(font);
    horizontalHeader()->viewport()->setFont(font);
    font.setBold(true);
    const QFontMetrics metrics(font);
    QSize widest;
    for (int column = 0; column < m_model.columnCount(); ++column)
        widest = widest.expandedTo(metrics.size(
            0, m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()));
    horizontalHeader()->setFixedHeight(widest.height() + HeadPadding.height());
    horizontalHeader()->setMinimumSectionSize(widest.width() + HeadPadding.width());
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
}

void ReportListView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void ReportListView::returnTo(const QModelIndex& cell) {
    if (cell.isValid() && !selectionModel()->isSelected(cell))
        setCurrentIndex(cell);
    m_wasRefused = false;
}

QRect ReportListView::block() const {
    QRect area;
    for (const QModelIndex& cell : selectionModel()->selectedIndexes())
        area |= QRect(cell.column(), cell.row(), 1, 1);
    if (area.isEmpty() && currentIndex().isValid())
        area = QRect(currentIndex().column(), currentIndex().row(), 1, 1);
    return area;
}

void ReportListView::copy() const {
    const QRect area = block();
    QStringList lines;
    for (int row = area.top(); row <= area.bottom(); ++row) {
        QStringList cells;
        for (int column = area.left(); column <= area.right(); ++column)
            cells << m_model.index(row, column).data().toString();
        lines << cells.join(u'\t');
    }
    QApplication::clipboard()->setText(lines.join(u'\n'));
}

void ReportListView::cut() {
    copy();
    clearCells();
}

void ReportListView::paste() {
    const QString text = QApplication::clipboard()->text();
    const QRect area = block();
    if (text.isEmpty() || area.isEmpty())
        return;
    const Zelltext corner{.Platz = area.top(), .Spalte = area.left(), .Inhalt = {}};
    m_model.change(ZellenAusText(fromQString(text), corner, area.height(), area.width()),
                   QStringLiteral("Einfügen"));
}

void ReportListView::clearCells() {
    std::vector<Zelltext> cells;
    for (const QModelIndex& cell : selectionModel()->selectedIndexes())
        cells.push_back({.Platz = cell.row(), .Spalte = cell.column(), .Inhalt = {}});
    if (!cells.empty())
        m_model.change(cells, QStringLiteral("Löschen"));
}

// False if there is no cell in that direction. Behind the end of a row comes the next one.
bool ReportListView::step(int columns, int rows) {
    const int width = m_model.columnCount();
    const int next =
        currentIndex().row() * width + currentIndex().column() + columns + rows * width;
    if (!currentIndex().isValid() || next < 0 || next >= width * m_model.rowCount())
        return false;
    setCurrentIndex(m_model.index(next / width, next % width));
    return true;
}

void ReportListView::keyPressEvent(QKeyEvent* event) {
    const bool isBackwards =
        event->key() == Qt::Key_Backtab || event->modifiers().testFlag(Qt::ShiftModifier);
    // What an open editor does not use comes up here too, but the editor's end moves on by itself.
    const bool endsEditor = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                            event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (state() == EditingState && endsEditor)
        event->accept();
    else if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::Cut))
        cut();
    else if (event->matches(QKeySequence::Paste))
        paste();
    else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        clearCells();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        step(0, isBackwards ? -1 : 1);
    else if (endsEditor && event->modifiers().testFlag(Qt::ControlModifier))
        // The nearer one would come back here as a Tab.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractScrollArea::focusNextPrevChild(!isBackwards);
    else if (endsEditor)
        event->setAccepted(step(isBackwards ? -1 : 1, 0));
    else
        QTableView::keyPressEvent(event);
}

void ReportListView::resizeEvent(QResizeEvent* event) {
    const int besideColumns = event->size().width() + verticalHeader()->width() -
                              m_model.columnCount() * atFont(GoodColumn);
    verticalHeader()->setMaximumWidth(std::max(atFont(NameWidth), besideColumns));
    QTableView::resizeEvent(event);
}

bool ReportListView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    m_typedOver = trigger == AnyKeyPressed;
    return QTableView::edit(index, trigger, event);
}

void ReportListView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    setFocus(); // an editor that closes while the window is not active leaves it to a neighbour
    if (m_wasRefused)
        return;
    if (hint == QAbstractItemDelegate::EditNextItem)
        step(1, 0);
    else if (hint == QAbstractItemDelegate::EditPreviousItem)
        step(-1, 0);
    else if (hint == QAbstractItemDelegate::SubmitModelCache)
        step(0, 1);
}

void ReportListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!m_wasRefused)
        emit cellEntered();
}

// In a cell that is typed over, arrows lead to the next cell; in one opened with F2 they move the
// caret.
bool ReportListView::handleEditorKey(const QKeyEvent& event) {
    if (!m_typedOver || event.modifiers() != Qt::NoModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
        setCurrentIndex(
            m_model.index(currentIndex().row(), std::max(0, currentIndex().column() - 1)));
        return true;
    case Qt::Key_Right:
        setCurrentIndex(m_model.index(currentIndex().row(), std::min(m_model.columnCount() - 1,
                                                                     currentIndex().column() + 1)));
        return true;
    default:
        return false;
    }
}

bool ReportListView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit*>(watched) != nullptr &&
        handleEditorKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return QTableView::eventFilter(watched, event);
}

} // namespace zeugnis::dokumente
