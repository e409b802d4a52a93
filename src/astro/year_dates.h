#pragma once

#include "core/numerics.h"

/// Moments as years with a fraction, 1.0 on January 1 of year 1. Moments are universal.
namespace horvanta {

/// Years of 365.242194 atomic days. The date takes Delta T a day before the moment; the way back takes it at the moment
/// that it finds, so that the two differ by some seconds in far years.
double MomentToOrbitalDate(Moment universal);
Moment OrbitalDateToMoment(double orbitalDate);

/// Years that grow with the length of the day, so that their number of days stays that of the northward equinox. The
/// way back carries some seconds of rounding noise.
double MomentToRAYDate(Moment universal);
Moment RAYDateToMoment(double rayDate);

/// The length in days of such a year at a moment: 360° over the Sun's mean daily motion.
double RAYYearLength(Moment universal);

/// The same rotation-adjusted date so many years, whole or not, later.
Moment StepByOrbitalYear(Moment universal, double years);

}  // namespace horvanta
