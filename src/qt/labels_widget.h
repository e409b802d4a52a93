#pragma once

#include <QWidget>

#include <cstddef>
#include <functional>
#include <vector>

class QLabel;

namespace horvanta {

/// A widget whose parts are labels that can be clicked.
class LabelsWidget : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    /// A label that shows its text as it is, or a framed one with the text in the middle. It is no part yet.
    QLabel* MakeLabel();
    QLabel* MakePanel();

    /// Keeps room for a text in labels that are no wider around it than the last of them.
    static void KeepRoomIn(const std::vector<QLabel*>& labels, const QString& widest);

    void mouseReleaseEvent(QMouseEvent* event) override;

    std::vector<QLabel*> parts_;  ///< Null where one has not been made yet.
    std::function<void(std::size_t part)> clicked_;
};

}  // namespace horvanta
