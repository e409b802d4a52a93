#pragma once

#include "core/numerics.h"

#include <cstdint>

/// Seasons and quarters of the Moon, from the ephemeris files where there are any. Moments are universal; degrees are
/// multiples of 90, or the negative of one, which means the year or the lunation before. Of a year or a lunation that
/// the file does not hold, `NeverMoment`; `ephemeris::ComplaintOfYear` and `ComplaintOfLunation` tell why.
namespace horvanta {

/// When the Sun reaches a longitude; without a file, after the mean beginning of the year.
Moment SolexSolarLongitudeAfter(std::int64_t year, double degrees);

/// When the Moon has a phase in a lunation counted from the first new moon of 2000.
Moment SolexLunarQuarter(std::int64_t lunation, double degrees);

/// The same, computed where the file does not hold it.
Moment LunarQuarter(std::int64_t lunation, double degrees);

}  // namespace horvanta
