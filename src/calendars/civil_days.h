#pragma once

#include "calendars/day_text.h"
#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/quartane.h"

#include <vector>

/// The civil and Christian days of the year: those that fall on a date or on a weekday of a month, and those counted
/// from Easter. Christian days are told of from the year 326 on, the first after the Council of Nicaea.
namespace horvanta {

/// What a day is by the Gregorian date.
std::vector<DayText> CivilDays(const GregorianDate& date);

/// The same of a moment's day.
std::vector<DayText> CivilDaysOf(Moment x);

/// The days of the Eastern Orthodox year by the Julian date, as it is shown, revised or not.
std::vector<std::string> OrthodoxDays(const JulianDate& date);

namespace quartane {

/// The days of the civil year as they would fall if the world kept the Quartane calendar. Under the leap rules that
/// follow the Gregorian year, Easter is the Gregorian one; under the others it stands by the moon of the sky and, as a
/// second one, on its own day of the year.
std::vector<DayText> CivilDays(const QuaDate& date);
std::vector<DayText> CivilDaysOf(Moment x);

}  // namespace quartane

}  // namespace horvanta
