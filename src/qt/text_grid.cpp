#include "qt/text_grid.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace horvanta {
namespace {

constexpr int padding = 2;  // pixels between a cell's frame and its text
constexpr int gap = 3;      // pixels between cells

/// "Week 3 in Year: 17+35=52"
QString AccessibleText(const Grid& grid, std::size_t row, std::size_t column) {
    const auto text = [&grid](std::size_t r, std::size_t c) { return QString::fromStdString(grid.rows[r][c]); };
    const QString shown = text(row, column);
    if (row == 0 || column == 0) return shown;
    return text(0, column) + u' ' + text(row, 0) + QStringLiteral(": ") + shown;
}

}  // namespace

TextGrid::TextGrid(QWidget* parent) : QWidget(parent) {
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QLabel* TextGrid::Find(std::size_t row, std::size_t column) const {
    const auto found =
        std::find_if(cells_.begin(), cells_.end(), [=](const Cell& c) { return c.row == row && c.column == column; });
    return found == cells_.end() ? nullptr : found->label;
}

/// Made when it first has a text.
QLabel* TextGrid::LabelAt(std::size_t row, std::size_t column) {
    if (QLabel* label = Find(row, column)) return label;
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    const bool isHeading = row == 0 || column == 0;
    label->setAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    if (!isHeading) {
        label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        label->setMargin(padding);
        label->setCursor(Qt::PointingHandCursor);
    }
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(label, static_cast<int>(row), static_cast<int>(column));
    grid->setColumnStretch(static_cast<int>(column), column == 0 ? 0 : 1);
    cells_.push_back({row, column, label});
    return label;
}

/// A cell without a text is not shown.
void TextGrid::Draw(const Grid& grid) {
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
        for (std::size_t column = 0; column < grid.rows[row].size(); ++column) {
            const QString text = QString::fromStdString(grid.rows[row][column]);
            if (text.isEmpty() && !Find(row, column)) continue;
            QLabel& label = *LabelAt(row, column);
            const QString accessible = AccessibleText(grid, row, column);
            if (label.text() != text) label.setText(text);
            if (label.isHidden() != text.isEmpty()) label.setVisible(!text.isEmpty());
            if (label.accessibleName() != accessible) label.setAccessibleName(accessible);
        }
    }
}

void TextGrid::KeepRoom(const QString& widest) {
    for (const Cell& cell : cells_) {
        if (cell.column == 0) continue;
        const QString shown = cell.label->text();
        cell.label->setText(widest);
        cell.label->setMinimumWidth(cell.label->sizeHint().width());
        cell.label->setText(shown);
    }
    layout()->activate();  // tells the layout around the table at once
}

/// Labels pass what the mouse does on to their parent.
void TextGrid::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint where = event->position().toPoint();
    const auto hit = std::find_if(cells_.begin(), cells_.end(), [where](const Cell& cell) {
        return cell.label->isVisible() && cell.label->geometry().contains(where);
    });
    if (event->button() == Qt::LeftButton && hit != cells_.end()) Q_EMIT cellClicked(hit->row, hit->column);
}

}  // namespace horvanta
