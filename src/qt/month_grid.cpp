#include "qt/month_grid.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace horvanta {
namespace {

constexpr int daysInWeek = 7;
constexpr int padding = 3;  // pixels about the text of a cell

QColor ToQColor(Color color) { return {color.red, color.green, color.blue}; }

QLabel* MakeLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setMargin(padding);
    return label;
}

void SetText(QLabel& label, const std::string& text) {
    const QString wanted = QString::fromStdString(text);
    if (label.text() != wanted) label.setText(wanted);
}

}  // namespace

MonthGrid::MonthGrid(QWidget* parent) : QWidget(parent), layout_(new QGridLayout(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(2);
    setFocusPolicy(Qt::StrongFocus);
    for (QLabel*& heading : headings_) heading = MakeLabel(this);
    for (QLabel*& cell : cells_) {
        cell = MakeLabel(this);
        cell->setAlignment(Qt::AlignCenter);
        cell->setAutoFillBackground(true);
    }
}

/// Places every label anew; a label that is already in the layout moves.
void MonthGrid::Arrange(bool across) {
    if (arranged_ && across_ == across) return;
    arranged_ = true;
    across_ = across;
    for (int i = 0; i < daysInWeek; ++i) {
        QLabel* heading = headings_[static_cast<std::size_t>(i)];
        heading->setAlignment((across ? Qt::AlignRight : Qt::AlignHCenter) | Qt::AlignVCenter);
        layout_->addWidget(heading, across ? i : 0, across ? 0 : i);
    }
    for (int i = 0; i < static_cast<int>(cells_.size()); ++i) {
        const int weekday = i % daysInWeek;
        const int week = i / daysInWeek + 1;
        layout_->addWidget(cells_[static_cast<std::size_t>(i)], across ? weekday : week, across ? week : weekday);
    }
}

void MonthGrid::Draw(const CellGrid& grid) {
    Arrange(grid.across);
    for (std::size_t i = 0; i < headings_.size(); ++i) {
        SetText(*headings_[i], grid.headings[i].text);
        headings_[i]->setAccessibleName(QString::fromStdString(grid.headings[i].text));
        headings_[i]->setToolTip(QString::fromStdString(grid.headings[i].tooltip));
    }
    for (std::size_t i = 0; i < cells_.size(); ++i) DrawCell(grid, i);
}

void MonthGrid::DrawCell(const CellGrid& grid, std::size_t index) {
    QLabel& label = *cells_[index];
    const CellGrid::Cell& cell = grid.cells[index];
    const bool active = index == grid.active && !cell.blank;
    SetText(label, cell.text);
    const std::string& heading = grid.headings[index % grid.headings.size()].text;
    label.setAccessibleName(QString::fromStdString(cell.blank ? "no day" : heading + " " + cell.text));
    QPalette colors = palette();
    colors.setColor(QPalette::Window, palette().color(cell.blank ? QPalette::Button : QPalette::Base));
    colors.setColor(QPalette::WindowText, palette().color(QPalette::Text));
    if (active && grid.activeColors) {
        colors.setColor(QPalette::Window, ToQColor(grid.activeColors->background));
        colors.setColor(QPalette::WindowText, ToQColor(grid.activeColors->foreground));
    }
    if (label.palette() != colors) label.setPalette(colors);
    if (label.font().bold() != active) {
        QFont font = label.font();
        font.setBold(active);
        label.setFont(font);
    }
}

void MonthGrid::KeepRoom(const QString& widest) {
    QFont bold = font();
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(widest) + 2 * padding;
    for (QLabel* cell : cells_) cell->setMinimumWidth(width);
}

/// Labels pass what the mouse does on to their parent.
void MonthGrid::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint where = event->position().toPoint();
    const auto hit = std::find_if(cells_.begin(), cells_.end(),
                                  [where](const QLabel* cell) { return cell->geometry().contains(where); });
    if (event->button() != Qt::LeftButton || hit == cells_.end()) return;
    Q_EMIT cellClicked(static_cast<std::size_t>(hit - cells_.begin()));
}

}  // namespace horvanta
