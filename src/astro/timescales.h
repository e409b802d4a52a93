#pragma once

#include "core/numbering.h"

#include <cstdint>

/// The scales of time and the ways between them. A moment does not tell its scale; the parameter names do. The
/// conversions of local and zone time are those of the current `Locale`. Where `NeverMoment` passes, it comes back as
/// it was given.
namespace horvanta {

/// True while the slowing of the Earth's rotation is left out of account: `DeltaT` is 0, and universal moments are
/// atomic time. Only `SetDeltaTDisabled` writes it.
inline bool DeltaTDisabled = false;

/// Counts the changes of `DeltaTDisabled`, for memos that hold a moment found through it.
inline std::int64_t DeltaTSerial = 0;

void SetDeltaTDisabled(bool disabled);

/// Terrestrial less Universal Time at a moment of either scale, in units of so many seconds: 86400 gives days, 1
/// seconds. Polynomials of Espenak and Meeus (NASA, Five Millennium Canon of Solar Eclipses).
double DeltaT(Moment x, double unit);

Moment UniversalToTerrestrial(Moment universal);

/// Takes `DeltaT` at the terrestrial moment itself, so that the way back differs by what it grows within itself.
Moment TerrestrialToUniversal(Moment terrestrial);

// Local mean time and the zone's standard time.
Moment LocalToUniversal(Moment local);
Moment UniversalToLocal(Moment universal);        ///< `NeverMoment` passes.
Moment UniversalToStandard(Moment universal);     ///< `NeverMoment` passes.
Moment StandardToUniversal(Moment standardTime);  ///< `NeverMoment` passes.
Moment LocalToStandard(Moment local);

/// Mean anomaly of the Sun in degrees, with all its revolutions, and what it gains a day at J2000 (Meeus, Astronomical
/// Algorithms, 25.3): 0 at the mean perihelion of the Earth, 180 at its mean aphelion.
double MeanSolarAnomaly(Moment universal);
inline constexpr double DailyMeanSolarAnomaly = 35999.0503 / 36525;

/// Apparent less mean solar time in days, at most half a day to either side (Smart, Text-Book on Spherical Astronomy;
/// Meeus, Astronomical Algorithms, 28.3).
double EquationOfTime(Moment universal);

/// The time a sundial shows, from local mean time and back. The way back takes the equation of time at the apparent
/// moment as if it were mean.
Moment LocalToApparent(Moment local);
Moment ApparentToLocal(Moment apparent);
Moment ApparentToUniversal(Moment apparent);

/// Julian centuries and millennia of Terrestrial Time from J2000.
double JulianCenturies(Moment universal);
double JulianMillennia(Moment universal);

double MomentToJD(Moment x);
Moment JDToMoment(double julianDay);
double MomentToMJD(Moment x);
Moment MJDToMoment(double modifiedJulianDay);

/// Years of 365.242194 atomic days, 1.0 on January 1 of year 1. Delta T is taken a day before the moment, which is
/// this date's own rule.
double MomentToOrbitalDate(Moment universal);
Moment OrbitalDateToMoment(double orbitalDate);

/// Years that grow with the length of the day, so that their number of days stays that of the northward equinox; 1.0
/// on January 1 of year 1. The way back carries some seconds of rounding noise.
double MomentToRAYDate(Moment universal);
Moment RAYDateToMoment(double rayDate);

/// The length in days of such a year at a moment: 360° over the Sun's mean daily motion.
double RAYYearLength(Moment universal);

/// The same rotation-adjusted date so many years, whole or not, later.
Moment StepByOrbitalYear(Moment universal, double years);

/// Greenwich sidereal time as an angle in degrees (Meeus, Astronomical Algorithms, 12.4), the mean one in [0, 360); the
/// apparent one has the nutation added. `SiderealDegrees` is the mean one with its rate multiplied out, as the lunar
/// positions take it.
double MeanSiderealDegrees(Moment universal);
double ApparentSiderealDegrees(Moment universal);
double SiderealDegrees(Moment universal);

}  // namespace horvanta
