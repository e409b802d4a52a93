#pragma once

#include "core/controls.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;

namespace horvanta {

/// The cells of a month with the headings of the weekdays, which stand above them or, transposed, beside them. It has
/// the focus as a whole; the cell of the displayed day is the highlighted one.
class MonthGrid final : public QWidget {
    Q_OBJECT
  public:
    explicit MonthGrid(QWidget* parent = nullptr);

    void Draw(const CellGrid& grid);

    /// Keeps room in each cell for a text.
    void KeepRoom(const QString& widest);

  Q_SIGNALS:
    void cellClicked(std::size_t cell);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void Arrange(bool across);
    void DrawCell(const CellGrid& grid, std::size_t index);

    QGridLayout* layout_;
    std::array<QLabel*, 42> cells_{};
    std::array<QLabel*, 7> headings_{};
    bool arranged_ = false;
    bool across_ = false;
};

}  // namespace horvanta
