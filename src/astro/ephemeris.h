#pragma once

#include "core/numerics.h"

#include <cstdint>
#include <optional>

/// The data files of precomputed moments, which a user may put beside the program.
namespace horvanta {

/// The universal moment at which the Sun reaches a multiple of 90° (negative ones of the year before) in a year, from
/// the file of seasons; nothing where there is no such file.
std::optional<Moment> SolexSolarLongitudeAfter(std::int32_t year, double degrees);

}  // namespace horvanta
