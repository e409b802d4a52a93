#include "qt/eliding_label.h"

#include <QPainter>

namespace horvanta {

ElidingLabel::ElidingLabel(QWidget* parent) : QLabel(parent) {}

QSize ElidingLabel::minimumSizeHint() const {
    const int border = 2 * (margin() + frameWidth());
    return {border, fontMetrics().height() + border};
}

QSize ElidingLabel::sizeHint() const { return minimumSizeHint(); }

void ElidingLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    const QRect inside = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    QPainter painter(this);
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, inside.width()));
}

}  // namespace horvanta
