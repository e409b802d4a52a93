#include "qt/grid_widget.h"

#include "qt/face.h"

#include <QGridLayout>
#include <QLabel>

#include <vector>

namespace horvanta {
namespace {

/// "Week 3 in Year: 17+35=52"
QString AccessibleText(const Grid& grid, std::size_t row, std::size_t column) {
    const auto text = [&grid](std::size_t r, std::size_t c) { return QString::fromStdString(grid.rows[r][c]); };
    const QString shown = text(row, column);
    if (row == 0 || column == 0) return shown;
    return text(0, column) + u' ' + text(row, 0) + QStringLiteral(": ") + shown;
}

}  // namespace

GridWidget::GridWidget(QWidget* parent) : LabelsWidget(parent) {
    constexpr int gap = 3;  // pixels between cells
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QLabel* GridWidget::AddCell(std::size_t row, std::size_t column) {
    const bool isHeading = row == 0 || column == 0;
    QLabel* label = isHeading ? MakeLabel() : MakePanel();
    label->setAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    if (!isHeading) label->setCursor(Qt::PointingHandCursor);
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(label, static_cast<int>(row), static_cast<int>(column));
    grid->setColumnStretch(static_cast<int>(column), column == 0 ? 0 : 1);
    return label;
}

void GridWidget::Draw(const Grid& grid) {
    if (grid.rows.empty()) return;
    columns_ = grid.rows.front().size();
    parts_.resize(grid.rows.size() * columns_);
    for (std::size_t part = 0; part < parts_.size(); ++part) DrawCell(grid, part);
}

/// A cell is made when it first has a text; without one it is not shown.
void GridWidget::DrawCell(const Grid& grid, std::size_t part) {
    const std::size_t row = part / columns_;
    const std::size_t column = part % columns_;
    const QString text = QString::fromStdString(grid.rows[row][column]);
    QLabel*& label = parts_[part];
    if (!label && text.isEmpty()) return;
    if (!label) label = AddCell(row, column);
    label->setText(text);
    if (label->isHidden() != text.isEmpty()) label->setVisible(!text.isEmpty());
    ShowName(*label, AccessibleText(grid, row, column));
}

void GridWidget::KeepRoom(const QString& widest) {
    std::vector<QLabel*> values;
    for (std::size_t part = 0; part < parts_.size(); ++part) {
        if (parts_[part] && part % columns_ > 0) values.push_back(parts_[part]);
    }
    KeepRoomIn(values, widest);
    layout()->activate();  // tells the layout around the table at once
}

void GridWidget::Connect(Grid& grid, Acts& acts) {
    clicked_ = [this, &grid, &acts](std::size_t part) {
        acts.Fire(grid, grid.CellClick, part / columns_, part % columns_);
    };
}

}  // namespace horvanta
