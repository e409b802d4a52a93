#include "qt/cell_grid_widget.h"

#include "qt/face.h"
#include "qt/spoken_role.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace horvanta {
namespace {

constexpr std::size_t daysInWeek = 7;
constexpr int padding = 4;  // pixels about the text of a cell, within which its marks are drawn

/// A day of the month. The displayed one has a border, within a frame in the highlight colour while the grid has the
/// focus; that of today is underlined.
class DayLabel final : public RoomLabel {
  public:
    explicit DayLabel(QWidget* parent) : RoomLabel(parent) {
        setTextFormat(Qt::PlainText);
        setAlignment(Qt::AlignCenter);
        setAutoFillBackground(true);
        setMargin(padding);
    }

    void Mark(bool active, bool today) {
        if (active_ == active && today_ == today) return;
        active_ = active;
        today_ = today;
        QFont marked = font();
        marked.setBold(active);
        setFont(marked);
        update();
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        QPainter painter(this);
        const QColor ink = palette().color(QPalette::WindowText);
        if (today_) painter.fillRect(width() / 4, height() - padding, width() / 2, 2, ink);
        if (!active_) return;
        QRect border = rect();
        if (parentWidget()->hasFocus()) {
            constexpr int thickness = 2;
            const QRect inside = border.adjusted(thickness, thickness, -thickness, -thickness);
            painter.save();
            painter.setClipRegion(QRegion(border) - QRegion(inside));
            painter.fillRect(border, parentWidget()->palette().color(QPalette::Highlight));
            painter.restore();
            border = inside;
        }
        painter.setPen(ink);
        painter.drawRect(border.adjusted(0, 0, -1, -1));
    }

  private:
    bool active_ = false;
    bool today_ = false;
};

/// Whether a week that has no day of the month takes room: where weeks are columns, all columns keep their width.
bool hasRoom(const CellGrid& grid, std::size_t index) {
    const auto* week = grid.cells.begin() + index / daysInWeek * daysInWeek;
    return grid.across || std::any_of(week, week + daysInWeek, [](const CellGrid::Cell& cell) { return !cell.blank; });
}

const std::string& FullName(const CellGrid::Heading& heading) {
    return heading.tooltip.empty() ? heading.text : heading.tooltip;
}

void SetRetained(QWidget& widget, bool retained) {
    QSizePolicy policy = widget.sizePolicy();
    if (policy.retainSizeWhenHidden() == retained) return;
    policy.setRetainSizeWhenHidden(retained);
    widget.setSizePolicy(policy);
}

}  // namespace

CellGridWidget::CellGridWidget(QWidget* parent) : LabelsWidget(parent), layout_(new QGridLayout(this)) {
    GiveRole<CellGridWidget, QAccessible::Grouping>();
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(2);
    setFocusPolicy(Qt::StrongFocus);
    for (QLabel*& heading : headings_) {
        heading = MakeLabel();
        heading->setMargin(padding);
    }
    while (parts_.size() < std::tuple_size_v<decltype(CellGrid::cells)>) parts_.push_back(new DayLabel(this));
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
    DrawHeadings(grid);
    for (std::size_t i = 0; i < parts_.size(); ++i) DrawCell(grid, i);
}

void CellGridWidget::DrawHeadings(const CellGrid& grid) {
    for (std::size_t i = 0; i < headings_.size(); ++i) {
        const CellGrid::Heading& heading = grid.headings[i];
        headings_[i]->setText(QString::fromStdString(heading.text));
        ShowName(*headings_[i], QString::fromStdString(FullName(heading)));
        ShowTip(*headings_[i], heading.tooltip);
    }
}

/// What is no day of the month is not there, for the eye nor for a screen reader.
void CellGridWidget::DrawCell(const CellGrid& grid, std::size_t index) {
    auto& label = static_cast<DayLabel&>(*parts_[index]);
    const CellGrid::Cell& cell = grid.cells[index];
    SetRetained(label, hasRoom(grid, index));
    if (label.isHidden() != cell.blank) label.setVisible(!cell.blank);
    if (cell.blank) return;
    const bool active = index == grid.active;
    const bool today = index == grid.today;
    label.setText(QString::fromStdString(cell.text));
    const std::string name = FullName(grid.headings[index % daysInWeek]) + " " + cell.text;
    const std::string told = cell.tooltip.empty() ? "" : ", " + cell.tooltip;
    ShowName(label, QString::fromStdString(name + (today ? ", today" : "") + told));
    ShowTip(label, cell.tooltip.empty() && today ? "Today" : cell.tooltip);
    const QPalette colors = ColorsOf(grid, cell, active);
    if (label.palette() != colors) label.setPalette(colors);
    label.Mark(active, today);
}

QPalette CellGridWidget::ColorsOf(const CellGrid& grid, const CellGrid::Cell& cell, bool active) const {
    QPalette colors = palette();
    const bool ownColors = active && grid.activeColors;
    const QColor ground = ownColors ? ToQColor(grid.activeColors->background) : colors.color(QPalette::Base);
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

/// The focus shows on the cell of the displayed day.
void CellGridWidget::focusInEvent(QFocusEvent* event) {
    LabelsWidget::focusInEvent(event);
    update();
}

void CellGridWidget::focusOutEvent(QFocusEvent* event) {
    LabelsWidget::focusOutEvent(event);
    update();
}

}  // namespace horvanta
