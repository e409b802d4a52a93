#pragma once

#include "core/controls.h"

#include <QWidget>

#include <cstddef>
#include <vector>

class QLabel;

namespace horvanta {

/// A table of texts: headings above and at the left, and framed cells, all equally wide whatever they show.
class TextGrid final : public QWidget {
    Q_OBJECT
  public:
    explicit TextGrid(QWidget* parent = nullptr);

    /// Shows the texts of a table and leaves those that have not changed untouched.
    void Draw(const Grid& grid);

    /// Keeps room in each cell for a text.
    void KeepRoom(const QString& widest);

  Q_SIGNALS:
    void cellClicked(std::size_t row, std::size_t column);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    struct Cell {
        std::size_t row;
        std::size_t column;
        QLabel* label;
    };

    QLabel* Find(std::size_t row, std::size_t column) const;
    QLabel* LabelAt(std::size_t row, std::size_t column);

    std::vector<Cell> cells_;
};

}  // namespace horvanta
