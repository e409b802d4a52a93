#pragma once

#include "core/controls.h"
#include "qt/labels_widget.h"

#include <array>
#include <cstddef>
#include <optional>

class QGridLayout;

namespace horvanta {

class Acts;

/// The cells of a month with the headings of the weekdays, which stand above them or, transposed, beside them. It has
/// the focus as a whole, and speaks as the cell of the displayed day, which stands out by colours, bold type and a
/// border.
class CellGridWidget final : public LabelsWidget {
    Q_OBJECT
  public:
    explicit CellGridWidget(QWidget* parent = nullptr);

    void Draw(const CellGrid& grid);

    /// Keeps room in each cell for a text.
    void KeepRoom(const QString& widest);

    void Connect(CellGrid& grid, Acts& acts);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void Arrange(bool across);
    void DrawHeadings(const CellGrid& grid);
    void DrawCell(const CellGrid& grid, std::size_t index);
    QPalette ColorsOf(const CellGrid& grid, const CellGrid::Cell& cell, bool active) const;

    QGridLayout* layout_;
    std::array<QLabel*, 7> headings_{};
    std::optional<bool> across_;  ///< None before it has been arranged.
};

}  // namespace horvanta
