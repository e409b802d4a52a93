#include "qt/cell_grid_widget.h"

#include "qt/face.h"

#include <QGridLayout>
#include <QLabel>

#include <utility>

namespace horvanta {
namespace {

constexpr std::size_t daysInWeek = 7;
constexpr int padding = 3;  // pixels about the text of a cell

}  // namespace

CellGridWidget::CellGridWidget(QWidget* parent) : LabelsWidget(parent), layout_(new QGridLayout(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(2);
    setFocusPolicy(Qt::StrongFocus);
    for (QLabel*& heading : headings_) heading = MakeCell();
    while (parts_.size() < std::tuple_size_v<decltype(CellGrid::cells)>) {
        parts_.push_back(MakeCell());
        parts_.back()->setAlignment(Qt::AlignCenter);
        parts_.back()->setAutoFillBackground(true);
    }
}

QLabel* CellGridWidget::MakeCell() {
    QLabel* label = MakeLabel();
    label->setMargin(padding);
    return label;
}

/// Places every label anew; a label that is already in the layout moves.
void CellGridWidget::Arrange(bool across) {
    if (std::exchange(across_, across) == across) return;
    const auto place = [&](QLabel* label, std::size_t week, std::size_t weekday) {
        layout_->addWidget(label, static_cast<int>(across ? weekday : week), static_cast<int>(across ? week : weekday));
    };
    for (std::size_t i = 0; i < headings_.size(); ++i) {
        headings_[i]->setAlignment((across ? Qt::AlignRight : Qt::AlignHCenter) | Qt::AlignVCenter);
        place(headings_[i], 0, i);
    }
    for (std::size_t i = 0; i < parts_.size(); ++i) place(parts_[i], i / daysInWeek + 1, i % daysInWeek);
}

void CellGridWidget::Draw(const CellGrid& grid) {
    Arrange(grid.across);
    for (std::size_t i = 0; i < headings_.size(); ++i) {
        const QString text = QString::fromStdString(grid.headings[i].text);
        headings_[i]->setText(text);
        ShowName(*headings_[i], text);
        ShowTip(*headings_[i], grid.headings[i].tooltip);
    }
    for (std::size_t i = 0; i < parts_.size(); ++i) DrawCell(grid, i);
}

void CellGridWidget::DrawCell(const CellGrid& grid, std::size_t index) {
    QLabel& label = *parts_[index];
    const CellGrid::Cell& cell = grid.cells[index];
    const bool active = index == grid.active && !cell.blank;
    label.setText(QString::fromStdString(cell.text));
    const std::string& heading = grid.headings[index % daysInWeek].text;
    const std::string told = cell.tooltip.empty() ? "" : ", " + cell.tooltip;
    ShowName(label, QString::fromStdString(cell.blank ? "no day" : heading + " " + cell.text + told));
    ShowTip(label, cell.tooltip);
    const QPalette colors = ColorsOf(grid, cell, active);
    if (label.palette() != colors) label.setPalette(colors);
    if (label.font().bold() == active) return;
    QFont font = label.font();
    font.setBold(active);
    label.setFont(font);
}

QPalette CellGridWidget::ColorsOf(const CellGrid& grid, const CellGrid::Cell& cell, bool active) const {
    QPalette colors = palette();
    const bool ownColors = active && grid.activeColors;
    const QColor standard = colors.color(cell.blank ? QPalette::Button : QPalette::Base);
    const QColor ground = ownColors ? ToQColor(grid.activeColors->background) : standard;
    const QColor ink = ownColors ? ToQColor(grid.activeColors->foreground) : colors.color(QPalette::Text);
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::WindowText, ToQColor(InkOf(cell.mark, ToColor(ground), ToColor(ink))));
    return colors;
}

void CellGridWidget::KeepRoom(const QString& widest) {
    QFont bold = font();
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(widest) + 2 * padding;
    for (QLabel* cell : parts_) cell->setMinimumWidth(width);
}

void CellGridWidget::Connect(CellGrid& grid, Acts& acts) {
    clicked_ = [&grid, &acts](std::size_t cell) { acts.Fire(grid, grid.CellClick, cell); };
}

}  // namespace horvanta
