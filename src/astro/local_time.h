#pragma once

#include "core/locale.h"
#include "core/numerics.h"

/// The scales of time of a place: its zone's standard time, local mean time and the sundial's local apparent time.
/// `NeverMoment` passes through the conversions of universal, local mean and standard time.
namespace horvanta {

Moment LocalToUniversal(Moment local, const LocaleRecord& place = Locale);
Moment UniversalToLocal(Moment universal, const LocaleRecord& place = Locale);
Moment UniversalToStandard(Moment universal, const LocaleRecord& place = Locale);
Moment StandardToUniversal(Moment standardTime, const LocaleRecord& place = Locale);
Moment LocalToStandard(Moment local, const LocaleRecord& place = Locale);

/// Apparent less mean solar time in days, at most half a day to either side (Smart, Text-Book on Spherical Astronomy;
/// Meeus, Astronomical Algorithms, 28.3).
double EquationOfTime(Moment universal);

/// The time a sundial shows, from local mean time and back. The way back takes the equation of time at the apparent
/// moment as if it were mean.
Moment LocalToApparent(Moment local, const LocaleRecord& place = Locale);
Moment ApparentToLocal(Moment apparent, const LocaleRecord& place = Locale);
Moment ApparentToUniversal(Moment apparent, const LocaleRecord& place = Locale);

}  // namespace horvanta
