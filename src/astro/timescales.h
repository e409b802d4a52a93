#pragma once

#include "core/numbering.h"

#include <cstdint>

/// Universal and Terrestrial Time, and the counts of days that astronomers use. A moment does not tell its scale; the
/// parameter names do.
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

/// Julian centuries and millennia of Terrestrial Time from J2000.
double JulianCenturies(Moment universal);
double JulianMillennia(Moment universal);

double MomentToJD(Moment x);
Moment JDToMoment(double julianDay);
double MomentToMJD(Moment x);
Moment MJDToMoment(double modifiedJulianDay);

}  // namespace horvanta
