#include "qt/day_strip_widget.h"

#include "qt/face.h"
#include "qt/spoken_role.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace horvanta {
namespace {

// From night to daylight. The marks stand out from each of them.
constexpr Color lights[] = {{16, 22, 58}, {38, 52, 104}, {74, 98, 160}, {140, 168, 212}, {255, 236, 158}};
constexpr Color markColor{200, 30, 30};
constexpr Color noonColor{150, 110, 0};

}  // namespace

DayStripWidget::DayStripWidget(QWidget* parent) : QWidget(parent) {
    GiveRole<DayStripWidget, QAccessible::Graphic>();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize DayStripWidget::sizeHint() const { return {0, fontMetrics().height()}; }

void DayStripWidget::Draw(const DayStrip& strip) {
    ShowName(*this, QString::fromStdString(strip.text));
    if (day_ == strip.day && time_ == strip.time) return;
    day_ = strip.day;
    time_ = strip.time;
    update();
}

void DayStripWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto x = [this](double time) { return static_cast<int>(time * width()); };
    for (std::size_t i = 0; i < day_.spans.size(); ++i) {
        const auto& [from, light] = day_.spans[i];
        const double to = i + 1 < day_.spans.size() ? day_.spans[i + 1].from : 1;
        painter.fillRect(QRect(x(from), 0, x(to) - x(from), height()), ToQColor(lights[static_cast<int>(light)]));
    }
    painter.fillRect(QRect(x(day_.noon), height() * 2 / 3, 1, height()), ToQColor(noonColor));
    const int line = std::max(2, height() / 8);
    const QRect now(std::clamp(x(time_) - line / 2, 0, width() - line), 0, line, height());
    painter.fillRect(now.adjusted(-1, 0, 1, 0), Qt::white);
    painter.fillRect(now, ToQColor(markColor));
}

bool DayStripWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !strip_ || !strip_->TellTime) return QWidget::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const double time = std::clamp(help.pos().x() / std::max(1.0, static_cast<double>(width())), 0.0, 1.0);
    QToolTip::showText(help.globalPos(), QString::fromStdString(strip_->TellTime(time)), this);
    return true;
}

}  // namespace horvanta
