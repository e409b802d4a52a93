#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

namespace horvanta {

/// A window to be placed, in pixels.
struct Pane {
    QRect wish;                 ///< Where it is to stand if it can.
    std::vector<QRect> needed;  ///< What has to be seen of it, from its upper left corner; first what it is moved by.
    bool fixed = false;         ///< It stands as it wishes, whatever that covers.

    bool operator==(const Pane&) const = default;
};

/// Places windows in a frame; they lie above one another in their order, but the first lies above all. One that is not
/// fixed stands as it wishes if it covers none there. Or else it stands at the highest place, to the left, at which it
/// covers none; where there is none, so that it hides as little as can be of what has to be seen, least of all
/// what a window is moved by.
std::vector<QPoint> LayOut(const QSize& room, const std::vector<Pane>& panes);

}  // namespace horvanta
