#include "qt/window_layout.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <random>
#include <set>
#include <utility>

namespace horvanta {
namespace {

constexpr int gap = 1;  // pixels between windows

qint64 AreaOf(const QRect& rect) { return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height(); }

struct Placed {
    const Pane* pane;
    QRect rect;
    std::size_t number;
};

/// Adds what a cover hides of a window.
void AddHidden(LayoutCost& cost, const Placed& window, const Placed& cover) {
    const bool isUnder = LiesUnder(window.number, window.rect.topLeft(), cover.number, cover.rect.topLeft());
    for (std::size_t i = 0; i < window.pane->needed.size(); ++i) {
        if (!window.pane->needed[i].translated(window.rect.topLeft()).intersects(cover.rect)) continue;
        ++(i == 0 ? cost.handlesHideable : cost.partsHideable);
        if (isUnder) ++(i == 0 ? cost.handlesHidden : cost.partsHidden);
    }
}

void AddOutside(LayoutCost& cost, const Placed& window, const QRect& room) {
    for (std::size_t i = 0; i < window.pane->needed.size(); ++i) {
        if (room.contains(window.pane->needed[i].translated(window.rect.topLeft()))) continue;
        ++(i == 0 ? cost.handlesHidden : cost.partsHidden);
    }
    cost.outside += AreaOf(window.rect) - AreaOf(window.rect & room);
    if (window.pane->whole && !room.contains(window.rect)) ++cost.wholesOutside;
}

LayoutCost CostOf(const Placed& window, const std::vector<Placed>& others, const QRect& room) {
    LayoutCost cost;
    AddOutside(cost, window, room);
    for (const Placed& other : others) {
        if (!other.rect.intersects(window.rect)) continue;
        cost.covered += AreaOf(other.rect & window.rect);
        AddHidden(cost, window, other);
        AddHidden(cost, other, window);
    }
    return cost;
}

/// The edges at which a window may begin: those of the frame, and behind the others or what has to be seen of them.
struct Edges {
    std::set<int> tops{0};
    std::set<int> lefts{0};

    void Add(const Placed& other) {
        tops.insert(other.rect.bottom() + 1 + gap);
        lefts.insert(other.rect.right() + 1 + gap);
        for (const QRect& part : other.pane->needed) {
            tops.insert(other.rect.top() + part.bottom() + 1);
            lefts.insert(other.rect.left() + part.right() + 1);
        }
    }
};

class Layout {
  public:
    Layout(const QSize& room, const std::vector<Pane>& panes) : room_(QPoint(), room), panes_(panes) {}

    /// Places the windows in an order of their numbers.
    void Place(const std::vector<std::size_t>& order) {
        std::vector<Placed> placed;
        places_.resize(panes_.size());
        for (const bool fixed : {true, false}) {
            for (const std::size_t number : order) {
                const Pane& pane = panes_[number];
                if (pane.fixed != fixed) continue;
                Placed window{&pane, pane.wish, number};
                if (!fixed) cost_ += Settle(window, placed);
                places_[number] = window.rect.topLeft();
                placed.push_back(window);
            }
        }
    }

    const LayoutCost& cost() const { return cost_; }
    const std::vector<QPoint>& places() const { return places_; }

  private:
    LayoutCost Settle(Placed& window, const std::vector<Placed>& placed) const {
        LayoutCost best = CostOf(window, placed, room_);
        if (best.isNone()) return best;
        Edges edges;
        edges.tops.insert(std::max(0, room_.height() - window.rect.height()));
        edges.lefts.insert(std::max(0, room_.width() - window.rect.width()));
        for (const Placed& other : placed) edges.Add(other);
        const QRect wish = window.rect;
        for (const int top : edges.tops) {
            for (const int left : edges.lefts) {
                const Placed there{window.pane, QRect(QPoint(left, top), wish.size()), window.number};
                const LayoutCost cost = CostOf(there, placed, room_);
                if (cost < best) best = cost, window.rect = there.rect;
            }
        }
        return best;
    }

    QRect room_;
    const std::vector<Pane>& panes_;
    LayoutCost cost_;
    std::vector<QPoint> places_;
};

constexpr int sortedOrders = 3;
constexpr int chanceOrders = 100;

using Order = std::vector<std::size_t>;

/// The windows in their order, and by their height and width: large ones find room more easily while there is some.
/// Then chance orders, the same at every start. The first comes first in all and so keeps its place.
std::vector<Order> OrdersOf(const std::vector<Pane>& panes) {
    const auto isHigher = [&](auto a, auto b) { return panes[a].wish.height() > panes[b].wish.height(); };
    const auto isWider = [&](auto a, auto b) { return panes[a].wish.width() > panes[b].wish.width(); };
    Order order(panes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::vector<Order> orders(sortedOrders, order);
    std::stable_sort(orders[1].begin() + 1, orders[1].end(), isHigher);
    std::stable_sort(orders[2].begin() + 1, orders[2].end(), isWider);
    std::mt19937 chance;
    for (int i = 0; i < chanceOrders; ++i) {
        std::shuffle(order.begin() + 1, order.end(), chance);
        orders.push_back(order);
    }
    return orders;
}

}  // namespace

bool LayoutCost::hidesNoMoreNeededThan(const LayoutCost& other) const {
    LayoutCost needed = *this;
    needed.covered = other.covered;
    return needed <= other;
}

LayoutCost& LayoutCost::operator+=(const LayoutCost& other) {
    wholesOutside += other.wholesOutside;
    handlesHidden += other.handlesHidden;
    partsHidden += other.partsHidden;
    handlesHideable += other.handlesHideable;
    partsHideable += other.partsHideable;
    outside += other.outside;
    covered += other.covered;
    return *this;
}

bool LiesUnder(std::size_t window, const QPoint& place, std::size_t other, const QPoint& otherPlace) {
    if (window == 0 || other == 0) return other == 0;
    return std::pair(place.y(), window) < std::pair(otherPlace.y(), other);
}

LayoutCost CostOf(const QSize& room, std::vector<Pane> panes, const std::vector<QPoint>& places) {
    for (std::size_t i = 0; i < panes.size(); ++i) panes[i].wish.moveTo(places[i]);
    std::vector<Placed> placed;
    LayoutCost cost;
    for (const bool fixed : {true, false}) {
        for (std::size_t i = 0; i < panes.size(); ++i) {
            if (panes[i].fixed != fixed) continue;
            const Placed window{&panes[i], panes[i].wish, i};
            if (!fixed) cost += CostOf(window, placed, QRect(QPoint(), room));
            placed.push_back(window);
        }
    }
    return cost;
}

std::vector<QPoint> LayOut(const QSize& room, const std::vector<Pane>& panes) {
    std::vector<QPoint> places;
    if (panes.empty()) return places;
    LayoutCost best;
    int tried = 0;
    for (const Order& order : OrdersOf(panes)) {
        if (tried++ >= sortedOrders && best.hidesNothingNeeded()) break;
        Layout layout(room, panes);
        layout.Place(order);
        if (places.empty() || layout.cost() < best) {
            best = layout.cost();
            places = layout.places();
        }
        if (best.isNone()) break;
    }
    return places;
}

std::vector<QPoint> FitIn(const QSize& room, const std::vector<Pane>& panes, const std::vector<QPoint>& places,
                          const std::vector<bool>& seeks, bool othersMayMove) {
    Order order(panes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_partition(order, [&](std::size_t number) { return seeks[number]; });
    std::vector<QPoint> fitting(panes.size());
    for (const bool othersStay : {true, false}) {
        std::vector<Pane> fromTop;
        for (const std::size_t number : order) {
            fromTop.push_back(panes[number]);
            fromTop.back().wish.moveTo(places[number]);
            fromTop.back().fixed = panes[number].fixed || (othersStay && !seeks[number]);
            fromTop.back().whole = seeks[number];
        }
        const std::vector<QPoint> found = LayOut(room, fromTop);
        for (std::size_t i = 0; i < order.size(); ++i) fitting[order[i]] = found[i];
        const LayoutCost cost = CostOf(room, fromTop, found);
        if (!othersMayMove || (cost.handlesHidden == 0 && cost.outside == 0)) break;
    }
    return fitting;
}

}  // namespace horvanta
