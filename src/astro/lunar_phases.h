#pragma once

#include "core/numerics.h"

#include <cstdint>

/// The mean new moon as a smooth function of the lunation number, counted from the first new moon of 2000.
namespace horvanta {

/// The mean new moon of a lunation, which may have a fraction.
Moment MeanNewMoonTT(double lunation);
Moment MeanNewMoonUT(double lunation);

/// The lunations up to a moment, with their fraction.
double TTmomentToLunation(Moment terrestrial);
double UTmomentToLunation(Moment universal);
double MomentToLunation(Moment universal);

/// The mean synodic month at a moment, in days.
double MomentToMeanSynodicMonth(Moment x);

}  // namespace horvanta
