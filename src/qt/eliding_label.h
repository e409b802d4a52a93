#pragma once

#include <QLabel>

namespace horvanta {

/// A label of one line that ends in an ellipsis where its text is longer, and never asks for more room than it gets.
class ElidingLabel final : public QLabel {
    Q_OBJECT
  public:
    explicit ElidingLabel(QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace horvanta
