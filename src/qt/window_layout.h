#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <vector>

namespace horvanta {

/// A window to be placed, in pixels.
struct Pane {
    QRect wish;                 ///< Where it is to stand if it can.
    std::vector<QRect> needed;  ///< What has to be seen of it, from its upper left corner; first what it is moved by.
    bool fixed = false;         ///< It stands as it wishes, whatever that covers.

    bool operator==(const Pane&) const = default;
};

/// True if a window lies under another once they have been laid out: the first lies above all, of others the one that
/// stands lower, as in a cascade. They are told by their numbers in the list and their upper left corners.
bool LiesUnder(std::size_t window, const QPoint& place, std::size_t other, const QPoint& otherPlace);

/// Places windows in a frame. One that is not fixed stands as it wishes if it covers none there. Or else it stands at
/// the highest place, to the left, at which it covers none; where there is none, so that it hides as little as can be
/// of what has to be seen, least of all what a window is moved by.
std::vector<QPoint> LayOut(const QSize& room, const std::vector<Pane>& panes);

}  // namespace horvanta
