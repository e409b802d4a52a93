#pragma once

#include "core/controls.h"

#include <QWidget>

class QLabel;
class QToolButton;

namespace horvanta {

/// An arrow up above an arrow down, which repeat while they are held; behind a caption if there is one. They leave the
/// focus to the field that they change.
class ArrowPair final : public QWidget {
    Q_OBJECT
  public:
    explicit ArrowPair(QWidget* parent = nullptr);

    /// Shows what the arrows are for.
    void Draw(const UpDown& arrows);

    QSize sizeHint() const override;

  Q_SIGNALS:
    void stepped(int direction);

  private:
    QToolButton* MakeArrow(Qt::ArrowType arrow, int direction);

    QLabel* caption_;
    QToolButton* up_;
    QToolButton* down_;
};

}  // namespace horvanta
