#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QtGlobal>

#include <compare>
#include <cstddef>
#include <vector>

namespace horvanta {

/// A window to be placed, in pixels.
struct Pane {
    QRect wish;                 ///< Where it is to stand if it can.
    std::vector<QRect> needed;  ///< What has to be seen of it, from its upper left corner; first what it is moved by.
    bool fixed = false;         ///< It stands as it wishes, whatever that covers.
    bool whole = false;         ///< It stands within the frame, whatever that covers, if there is room for it.

    bool operator==(const Pane&) const = default;
};

/// What it costs to have the windows stand so; the first that differs decides.
struct LayoutCost {
    int wholesOutside = 0;    ///< Windows beyond the frame that are to stand within.
    int handlesHidden = 0;    ///< As the windows lie above one another (`LiesUnder`).
    int partsHidden = 0;      ///< The same of other parts that have to be seen.
    qint64 outside = 0;       ///< Square pixels beyond the frame: no raising brings them back.
    int handlesHideable = 0;  ///< If another window came to the top.
    int partsHideable = 0;
    qint64 covered = 0;  ///< Square pixels of windows under others.

    auto operator<=>(const LayoutCost&) const = default;
    bool isNone() const { return *this == LayoutCost(); }
    bool hidesNothingNeeded() const { return handlesHidden == 0 && partsHidden == 0 && outside == 0; }
    bool hidesNoMoreNeededThan(const LayoutCost& other) const;
    LayoutCost& operator+=(const LayoutCost& other);
};

/// Of windows at places; what the fixed ones do to each other is the user's choice and costs nothing.
LayoutCost CostOf(const QSize& room, std::vector<Pane> panes, const std::vector<QPoint>& places);

/// True if a window lies under another once they have been laid out: the first lies above all, of others the one that
/// stands lower, as in a cascade. They are told by their numbers in the list and their upper left corners.
bool LiesUnder(std::size_t window, const QPoint& place, std::size_t other, const QPoint& otherPlace);

/// Places windows in a frame. One that is not fixed stands as it wishes if it covers none there. Or else it stands at
/// the highest place, to the left, at which it covers none; where there is none, so that it hides as little as can be
/// of what has to be seen, least of all what a window is moved by.
std::vector<QPoint> LayOut(const QSize& room, const std::vector<Pane>& panes);

/// Finds places within the frame for windows that seek one, above the others, from the places that are given. The
/// others move, if they may, where one of these would hide what a window is moved by.
std::vector<QPoint> FitIn(const QSize& room, const std::vector<Pane>& panes, const std::vector<QPoint>& places,
                          const std::vector<bool>& seeks, bool othersMayMove);

}  // namespace horvanta
