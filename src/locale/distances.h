#pragma once

#include "core/locale.h"

/// How far places are from each other, and in which direction.
namespace horvanta {

/// Kilometres along the great circle between two places, on a sphere of 6367 km (haversine formula).
double SphericalDistance(const LocaleRecord& from, const LocaleRecord& to);

/// Kilometres between two places along the ellipsoid, by Andoyer's formula (Meeus, Astronomical Algorithms, chapter
/// 11). 0 for a place to itself and to the point opposite it.
double OblateDistance(const LocaleRecord& from, const LocaleRecord& to);

/// The true bearing in degrees, clockwise from north, in which one place sees the other. A place seen
/// from itself, and the one opposite it, lie at 0.
double DirectionTo(const LocaleRecord& from, const LocaleRecord& to);

}  // namespace horvanta
