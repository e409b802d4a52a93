#pragma once

#include "core/controls.h"

#include <QWidget>

class QLabel;
class QToolButton;

namespace horvanta {

class Acts;

/// An arrow up above an arrow down, which repeat while they are held; behind a caption if there is one. They leave the
/// focus to the field that they change.
class UpDownWidget final : public QWidget {
    Q_OBJECT
  public:
    explicit UpDownWidget(QWidget* parent = nullptr);

    void Draw(const UpDown& arrows);

    /// Keeps room in the caption for a text.
    void KeepRoom(const QString& widest);

    void Connect(UpDown& arrows, Acts& acts);

    QSize sizeHint() const override;

  private:
    QToolButton* MakeArrow(Qt::ArrowType arrow);

    QLabel* caption_;
    QToolButton* up_;
    QToolButton* down_;
};

}  // namespace horvanta
