#pragma once

#include "core/numbering.h"

#include <cstdint>

/// Where the years of the Quartane calendar begin under the leap rule in force, and the searches for its new years,
/// leap weeks and cycles. Years count with a year 0.
namespace horvanta::quartane {

/// New year of year 1 under a rule with a cycle: the start weekday nearest to January 1 of Gregorian year 1.
FixedDay QuaEpoch();

/// The new year of a year: always on the start weekday. With `wantMoment` the moment that it is nearest to, which is
/// universal time for the rules of the Sun.
Moment QuaNewYear(std::int64_t year, bool wantMoment = false);

/// The approximate moment at which a year begins when years last 365 days and `startFraction` until the year
/// `startYear`, `endFraction` from the year `endYear` on, and change evenly between; `offset` days after the first day
/// of Gregorian year 1 for year 1.
Moment LinApprox(std::int64_t year, double startYear, double endYear, double startFraction, double endFraction,
                 double offset);

/// The year has a leap week.
bool isQuaLeapYear(std::int64_t year);

struct QuaYear {
    std::int32_t year = 0;
    FixedDay newYear = 0;
};

/// The year of a moment, and its first day.
QuaYear FixedToQuaYear(Moment x);

/// The day of the year of a moment, 1 to 371.
std::int16_t FixedToQuaDayOfYear(Moment x);

// Searches from a moment, with a direction of 1 onwards and -1 back.

/// The first day of the next leap week; from within one those 5 years off and beyond.
Moment JumpLeapWeek(Moment from, int direction);

/// The next new year's reference moment, or under the rules of the ISO new year the next new year. Moments within a
/// tenth of a day count as the same.
Moment JumpNYmoment(Moment from, int direction);

/// The next new year that begins a cycle; from the first year of one the same day of the next. `NeverMoment` under a
/// rule without a cycle.
Moment JumpQuaCycle(Moment from, int direction);

}  // namespace horvanta::quartane
