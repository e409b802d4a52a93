#pragma once

#include "core/locale.h"
#include "core/numerics.h"

#include <cstdint>

/// Where the Sun stands at a moment, and when it stands where. Longitudes are degrees on the ecliptic of date, with
/// aberration and nutation; the Sun's latitude is taken as 0. Moments are universal, unless a parameter's name says
/// otherwise.
namespace horvanta {

inline constexpr double MeanTropicalYear = 365.242189;  ///< Days.

/// Apparent longitude (Bretagnon and Simon's series of 49 terms), in [0, 360), or with all its revolutions if not
/// `normalise`. With `isCenturies` the argument is Julian centuries of Terrestrial Time from J2000 in place of a
/// moment.
double SolarLongitude(Moment universal, bool normalise = true, bool isCenturies = false);

/// What the Earth's own motion takes from the longitude, in degrees.
double Aberration(Moment universal, bool isCenturies = false);

/// Nutation in longitude, in degrees.
double Nutation(Moment universal, bool isCenturies = false);

/// Mean obliquity of the ecliptic, in degrees.
double Obliquity(Moment universal);

/// Mean anomaly in degrees, with all its revolutions.
double MeanSolarAnomaly(Moment universal);

/// Degrees north of the equator.
double SolarDeclination(Moment universal);

/// Degrees above the horizon of a place, without refraction.
double SolarAltitude(Moment apparent, const LocaleRecord& place = Locale);

/// Degrees to noon: positive before it.
double SolarHourAngle(Moment apparent);

/// The first moment after `universal` at which the Sun reaches a longitude; `universal` itself, within 0.00001 days,
/// if it stands there.
Moment SolarLongitudeAfter(Moment universal, double degrees);

/// A moment at or before `universal` near the last time that the Sun stood at a longitude: a start for a search, off by
/// up to some hours.
Moment EstimateSolarLongitudeBefore(Moment universal, double degrees);

/// The moment of the Gregorian year at which the Sun reaches a longitude, with `offset` days added; a negative one is
/// that of the year before. Multiples of 90° come from the file of seasons where there is one.
Moment SeasonMoment(std::int32_t year, double degrees, double offset = 0);

/// The moment about that of the season at which the Sun's mean longitude, without its periodic terms, aberration and
/// nutation, reaches a longitude of [0, 360).
Moment MeanSeasonMoment(std::int32_t year, double degrees);

/// The moment about so many years later at which the Sun reaches the longitude that it has at `universal`, shifted by
/// the fraction of a year in `years`. A search that would begin out of the displayable range begins at its end.
Moment SameLongitudeYearsLater(Moment universal, double years);

/// The first moment after `universal` (direction 1) or the last before it (-1) at which the Sun reaches a longitude,
/// or its mean anomaly some degrees. A moment that such a passage was found at counts as the passage.
Moment SolarLongitudePassage(Moment universal, double degrees, int direction);
Moment SolarAnomalyPassage(Moment universal, double degrees, int direction);

}  // namespace horvanta
