#pragma once

/// How the molad departs from the mean conjunction of the moon.
namespace horvanta {

/// Days by which the progressive molad of lunation n, which keeps pace with the moon, is earlier than the traditional
/// one: a parabola with its least value at lunation 50834. In whole parts of 1080 to the hour if rounded.
double MoladAdjustment(double n, bool rounded);

}  // namespace horvanta
