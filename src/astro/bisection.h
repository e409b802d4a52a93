#pragma once

#include "core/numerics.h"

#include <algorithm>
#include <cmath>
#include <utility>

/// Searches by halving a bracket of days. Their results are told to the last bit by the moments that the halving comes
/// by, but only few of these lie so close to the event that the costly function has to be asked on which side they are.
namespace horvanta {

struct Bracket {
    Moment from;
    Moment to;

    /// For an event past all reason the ends may be the wrong way round.
    Moment Nearest(Moment x) const { return std::max(from, std::min(x, to)); }
};

/// The middle of the bracket once it is narrower than `width` days. `guess` tells roughly by how much the event is past
/// at a moment; where that is less than `doubt` in size, `reached` is asked.
template <class Guess, class Reached>
Moment Halve(Bracket bracket, double width, double doubt, const Guess& guess, const Reached& reached) {
    for (;;) {
        const Moment middle = (bracket.from + bracket.to) / 2;
        const bool between = middle > bracket.from && middle < bracket.to;
        if (!between || bracket.to - bracket.from < width) return middle;
        const double past = guess(middle);
        const bool isPast = std::fabs(past) >= doubt ? past > 0 : reached(middle);
        (isPast ? bracket.to : bracket.from) = middle;
    }
}

/// How an angle that grows with time is searched for.
struct AngleSearch {
    double daysPerDegree;  ///< At its mean rate.
    double reach;          ///< Days to both sides of the mean arrival at which the search begins.
    double width;          ///< Days at which it ends.
    /// Days; covers what the quick root is off, and the jumps of Delta T from one polynomial to the next.
    double doubt = 0.000008;
};

/// When an angle comes to some degrees within a bracket: the first step goes by the mean rate, the others are secants.
/// A secant's error is the product of the errors at its two points times half the angle's relative acceleration, which
/// is below 0.03 a day for the Moon.
template <class Angle>
Moment ArrivalNear(const Bracket& bracket, Moment first, double degrees, double daysPerDegree, const Angle& angle) {
    constexpr double close = 0.0001;  // square days
    const auto degreesPast = [&](Moment x) { return ModuloRange(angle(x) - degrees, -180, 180); };
    Moment before = first;
    double pastBefore = degreesPast(before);
    Moment x = bracket.Nearest(before - pastBefore * daysPerDegree);
    for (int tries = 0; tries < 8; ++tries) {
        const double past = degreesPast(x);
        if (past == pastBefore) break;
        const Moment next = bracket.Nearest(x - past * (x - before) / (past - pastBefore));
        const bool isClose = std::fabs((next - x) * (next - before)) < close;
        before = std::exchange(x, next);
        pastBefore = past;
        if (isClose) break;
    }
    return x;
}

/// The moment in a bracket about `estimate` at which an angle comes to some degrees.
template <class Angle>
Moment ArrivalIn(const Bracket& bracket, Moment estimate, double degrees, const AngleSearch& search,
                 const Angle& angle) {
    const Moment arrival = ArrivalNear(bracket, estimate, degrees, search.daysPerDegree, angle);
    return Halve(
        bracket, search.width, search.doubt, [=](Moment x) { return x - arrival; },
        [&](Moment x) { return Modulo(angle(x) - degrees, 360) < 180; });
}

/// The first moment after x and the last before it at which an angle comes to some degrees; x itself, within the width,
/// if it is there.
template <class Angle>
Moment ArrivalAfter(Moment x, double degrees, const AngleSearch& search, const Angle& angle) {
    const Moment mean = x + search.daysPerDegree * Modulo(degrees - angle(x), 360);
    return ArrivalIn({std::max(x, mean - search.reach), mean + search.reach}, mean, degrees, search, angle);
}

template <class Angle>
Moment ArrivalBefore(Moment x, double degrees, const AngleSearch& search, const Angle& angle) {
    const Moment mean = x - search.daysPerDegree * Modulo(angle(x) - degrees, 360);
    return ArrivalIn({mean - search.reach, std::min(x, mean + search.reach)}, mean, degrees, search, angle);
}

/// Two passages of one angle that are found from different moments differ by less.
inline constexpr double SameEvent = 0.00002;  // days

/// The first moment after x (direction 1) or the last before it (-1) at which an angle that runs evenly comes to some
/// degrees: one step from the mean rate to the real one is enough. A moment that such a passage was found at counts as
/// the passage.
template <class Angle>
Moment EvenPassage(Moment x, double degrees, int direction, double degreesPerDay, const Angle& angle) {
    const auto passage = [&](Moment from) {
        const double ahead = Modulo(direction * (degrees - angle(from)), 360);
        const Moment mean = from + direction * ahead / degreesPerDay;
        return mean - ModuloRange(angle(mean) - degrees, -180, 180) / degreesPerDay;
    };
    const Moment found = passage(x);
    return direction * (found - x) > SameEvent ? found : passage(x + direction);
}

}  // namespace horvanta
