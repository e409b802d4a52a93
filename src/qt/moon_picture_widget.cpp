#include "qt/moon_picture_widget.h"

#include "qt/spoken_role.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

// The picture has colours of its own, whatever the desktop's palette: a night sky is dark.
constexpr QRgb skyAbove = 0xff0b1026;
constexpr QRgb skyBelow = 0xff1d2233;
constexpr QRgb darkSide = 0xff252b3d;
constexpr QRgb litMiddle = 0xfffff8e7;
constexpr QRgb litLimb = 0xffd9cfb4;
constexpr double opacityBelow = 0.38;

/// The lit part of a disc about the origin, its limb upwards: half the disc and the half ellipse of the terminator.
QPainterPath LitPart(double radius, double lit) {
    const QRectF disc(-radius, -radius, 2 * radius, 2 * radius);
    const double bulge = radius * (2 * lit - 1);
    const double height = std::fabs(bulge);
    QPainterPath path(QPointF(-radius, 0));
    path.arcTo(disc, 180, -180);
    path.arcTo(QRectF(-radius, -height, 2 * radius, 2 * height), 0, bulge > 0 ? -180 : 180);
    path.closeSubpath();
    return path;
}

}  // namespace

MoonPictureWidget::MoonPictureWidget(QWidget* parent) : QWidget(parent) {
    GiveRole<MoonPictureWidget, QAccessible::Graphic>();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void MoonPictureWidget::Draw(const MoonPicture& picture) {
    if (look_ == picture.look) return;
    look_ = picture.look;
    update();
}

QSize MoonPictureWidget::sizeHint() const {
    constexpr int lines = 8;
    const int side = lines * fontMetrics().height();
    return {side, side};
}

void MoonPictureWidget::paintEvent(QPaintEvent*) {
    constexpr double discOfSide = 0.82;  // at the mean distance, so that the largest fits
    constexpr double corner = 6;         // pixels
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(look_.up ? skyAbove : skyBelow));
    painter.drawRoundedRect(rect(), corner, corner);

    const double radius = std::min(width(), height()) / 2.0 * discOfSide * look_.size;
    painter.translate(QRectF(rect()).center());
    painter.rotate(-look_.turn);  // the painter turns clockwise
    painter.setOpacity(look_.up ? 1 : opacityBelow);
    painter.setBrush(QColor::fromRgb(darkSide));
    painter.drawEllipse(QPointF(0, 0), radius, radius);

    QRadialGradient light(QPointF(0, -radius * 0.3), radius * 1.4);
    light.setColorAt(0, QColor::fromRgb(litMiddle));
    light.setColorAt(1, QColor::fromRgb(litLimb));
    painter.setBrush(light);
    painter.drawPath(LitPart(radius, look_.lit));
}

}  // namespace horvanta
