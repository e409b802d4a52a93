#include "qt/labels_widget.h"

#include <QMouseEvent>

#include <algorithm>

namespace horvanta {

QSize RoomLabel::minimumSizeHint() const {
    const int frame = 2 * (margin() + frameWidth());
    return {frame, fontMetrics().height() + frame};
}

QLabel* LabelsWidget::MakeLabel() {
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* LabelsWidget::MakePanel() {
    constexpr int padding = 2;  // pixels between its frame and its text
    auto* panel = new RoomLabel(this);
    panel->setTextFormat(Qt::PlainText);
    panel->setAlignment(Qt::AlignCenter);
    panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    panel->setMargin(padding);
    return panel;
}

void LabelsWidget::KeepRoomIn(const std::vector<QLabel*>& labels, const QString& widest) {
    if (labels.empty()) return;
    QLabel& last = *labels.back();
    const QString shown = last.text();
    last.setText(widest);
    const int width = last.QLabel::sizeHint().width();
    last.setText(shown);
    for (QLabel* label : labels) label->setMinimumWidth(width);
}

/// Labels pass what the mouse does on to their parent.
void LabelsWidget::mouseReleaseEvent(QMouseEvent* event) {
    const auto isHit = [where = event->position().toPoint()](const QLabel* part) {
        return part && part->isVisible() && part->geometry().contains(where);
    };
    const auto hit = std::ranges::find_if(parts_, isHit);
    if (event->button() != Qt::LeftButton || hit == parts_.end() || !clicked_) return;
    clicked_(static_cast<std::size_t>(hit - parts_.begin()));
}

}  // namespace horvanta
