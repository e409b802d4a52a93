#pragma once

#include "core/numerics.h"

/// Greenwich sidereal time as an angle in degrees (Meeus, Astronomical Algorithms, 12.4).
namespace horvanta {

/// The mean one, in [0, 360).
double MeanSiderealDegrees(Moment universal);

/// The mean one with the nutation added.
double ApparentSiderealDegrees(Moment universal);

/// The mean one with its rate multiplied out, as the lunar positions take it.
double SiderealDegrees(Moment universal);

}  // namespace horvanta
