#pragma once

#include "core/controls.h"
#include "qt/labels_widget.h"

namespace horvanta {

class Acts;

/// A table of texts: headings above and at the left, and framed cells, all equally wide whatever they show.
class GridWidget final : public LabelsWidget {
    Q_OBJECT
  public:
    explicit GridWidget(QWidget* parent = nullptr);

    void Draw(const Grid& grid);

    /// Keeps room in each cell for a text.
    void KeepRoom(const QString& widest);

    void Connect(Grid& grid, Acts& acts);

  private:
    QLabel* AddCell(std::size_t row, std::size_t column);
    void DrawCell(const Grid& grid, std::size_t part);

    std::size_t columns_ = 1;
};

}  // namespace horvanta
