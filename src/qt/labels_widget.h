#pragma once

#include <QLabel>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <vector>

namespace horvanta {

/// A line of text in the room that is kept for it. Other labels lay a text out three times before it is painted.
class RoomLabel : public QLabel {
  public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;
};

/// A widget whose parts are labels that can be clicked.
class LabelsWidget : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    /// A label that shows its text as it is, or one with the text in the middle of a frame and of the room that is
    /// kept. It is no part yet.
    QLabel* MakeLabel();
    QLabel* MakePanel();

    /// Keeps room for a text in labels that are no wider around it than the last of them.
    static void KeepRoomIn(const std::vector<QLabel*>& labels, const QString& widest);

    void mouseReleaseEvent(QMouseEvent* event) override;

    std::vector<QLabel*> parts_;  ///< Null where one has not been made yet.
    std::function<void(std::size_t part)> clicked_;
};

}  // namespace horvanta
