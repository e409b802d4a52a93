#include "qt/row_table_widget.h"

#include "qt/face.h"
#include "qt/keys.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <algorithm>

namespace horvanta {
namespace {

constexpr int rowPadding = 3;  // pixels above and below the text of a row

/// Keeps room about the lines of a row, or else broken ones would run into the next.
class PaddedCell final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * rowPadding);
    }
};

}  // namespace

RowTableWidget::RowTableWidget(QWidget* parent) : QTableWidget(parent) {
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    setItemDelegate(new PaddedCell(this));
}

void RowTableWidget::Draw(const RowTable& table) {
    if (columnCount() == 0) {
        QStringList headings;
        for (const std::string& heading : table.headings) headings << QString::fromStdString(heading);
        setColumnCount(static_cast<int>(headings.size()));
        setHorizontalHeaderLabels(headings);
    }
    if (rows_ == table.rows) return;
    rows_ = table.rows;
    clearSelection();
    setRowCount(static_cast<int>(rows_.size()));
    for (std::size_t row = 0; row < rows_.size(); ++row) DrawRow(static_cast<int>(row), rows_[row]);
    FitColumns();
    if (hasFocus()) ShowCurrentRow();
    SpeakRows();
}

/// The toolkit tells no screen reader of cells that change.
void RowTableWidget::SpeakRows() {
    QStringList lines;
    for (const RowTable::Row& row : rows_) {
        QStringList cells;
        for (const std::string& cell : row.cells) cells << QString::fromStdString(cell);
        lines << cells.join(QStringLiteral(", "));
    }
    const QString spoken = lines.join(QStringLiteral("; "));
    if (accessibleDescription() != spoken) setAccessibleDescription(spoken);
}

/// In a narrow window they too break their lines, and leave the last one a third.
void RowTableWidget::FitColumns() {
    const int widest = viewport()->width() / 3;
    for (int column = 0; column + 1 < columnCount(); ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column), widest));
    }
}

/// Whoever comes by keyboard sees the row on which Enter acts.
void RowTableWidget::ShowCurrentRow() {
    if (rowCount() > 0) selectRow(std::max(currentRow(), 0));
}

void RowTableWidget::DrawRow(int row, const RowTable::Row& shown) {
    for (std::size_t column = 0; column < shown.cells.size(); ++column) {
        auto* cell = new QTableWidgetItem(QString::fromStdString(shown.cells[column]));
        cell->setToolTip(cell->text());
        if (shown.colors) {
            cell->setBackground(ToQColor(shown.colors->background));
            cell->setForeground(ToQColor(shown.colors->foreground));
        }
        setItem(row, static_cast<int>(column), cell);
    }
}

void RowTableWidget::Connect(RowTable& table, Acts& acts) {
    viewport()->setCursor(Qt::PointingHandCursor);
    act_ = [&table, &acts](int row) { acts.Fire(table, table.RowClick, static_cast<std::size_t>(row)); };
    actBeside_ = [&table, &acts] { acts.Fire(table, table.Click); };
}

bool RowTableWidget::Keeps(const QKeyEvent& event) {
    return isEnter(event) || event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
}

QSize RowTableWidget::minimumSizeHint() const {
    constexpr int lines = 6;
    constexpr int letters = 40;
    return {letters * fontMetrics().averageCharWidth(), lines * (fontMetrics().height() + 2 * rowPadding)};
}

void RowTableWidget::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason) ShowCurrentRow();
}

void RowTableWidget::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event)) {
        QTableWidget::keyPressEvent(event);
    } else if (currentRow() >= 0 && !event->isAutoRepeat()) {
        act_(currentRow());
    }
}

void RowTableWidget::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    FitColumns();
}

void RowTableWidget::mouseReleaseEvent(QMouseEvent* event) {
    QTableWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex hit = indexAt(event->position().toPoint());
    hit.isValid() ? act_(hit.row()) : actBeside_();
}

}  // namespace horvanta
