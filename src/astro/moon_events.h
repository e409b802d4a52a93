#pragma once

#include "core/locale.h"
#include "core/numerics.h"

/// When the Moon rises and sets at a place. Dates and results are of the zone's standard time; of a date only the day
/// counts.
namespace horvanta {

/// The moment of the date at which the Moon's observed altitude comes up to 0 or goes down to it, within a second;
/// `NeverMoment` where it does not, as on one day of most months. Near the polar circles a day may hold two, of which
/// this is the earlier.
Moment Moonrise(Moment date, const LocaleRecord& place = Locale);
Moment Moonset(Moment date, const LocaleRecord& place = Locale);

}  // namespace horvanta
