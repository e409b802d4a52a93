#pragma once

/// How the molad departs from the mean conjunction of the moon.
namespace horvanta {

/// Days by which the traditional molad of lunation n is ahead of the mean conjunction at the meridian of its
/// reckoning: a parabola least at lunation 50834. In whole parts of 1080 to the hour if rounded.
double MoladAdjustment(double n, bool rounded);

}  // namespace horvanta
