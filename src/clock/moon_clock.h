#pragma once

#include "core/locale.h"
#include "core/numerics.h"

/// The Moon by the clock of a place, which keeps daylight saving time.
namespace horvanta {

/// `Moonrise` and `Moonset` of a date of standard time, on the clock; `NeverMoment` passes.
Moment MoonriseDST(Moment date, const LocaleRecord& place = Locale);
Moment MoonsetDST(Moment date, const LocaleRecord& place = Locale);

namespace lunar {

/// The direction in which the Moon stands, in degrees clockwise from north.
double Azimuth(Moment clockTime, const LocaleRecord& place = Locale);

}  // namespace lunar
}  // namespace horvanta
