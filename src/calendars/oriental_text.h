#pragma once

#include "calendars/calendar_contract.h"
#include "calendars/oriental.h"

#include <string>
#include <string_view>
#include <vector>

/// What is said of the dates of the Oriental calendars, in the language that is chosen: names in the round of 60, dates
/// in words, solar terms and festivals; and their answers to a month grid.
namespace horvanta::oriental {

/// The name of a place in the round of 60, "Tree-Dragon", and with the number "41/60 = 1-5 Tree-Dragon".
std::string SexagesimalName(std::int32_t n, bool withNumber);

/// The name of a day, of the month of a date and of its year in the round of 60.
std::string DayName(FixedDay day);
std::int32_t SexagesimalDay(FixedDay day);
std::int32_t SexagesimalMonth(const OrientDate& date);

/// How many places, 1 to 60, a name stands behind another. Both are numbers of stem and branch, "5,3".
std::int32_t NameDifference(std::string_view from, std::string_view to);

/// The last day up to a day that bears a name.
FixedDay DayNameOnOrBefore(std::string_view name, FixedDay day);

/// "Year 4721, Leap 4th Month, Day 15", or "Year 4721, rùnyuè sìyuè 15".
std::string OrientDateString(const OrientDate& date);

/// Month and day as "4-05", in a leap month "4*05".
std::string FixedToOrientMonthDay(Moment x);

/// What the day of a date is: solar terms, festivals, first days of months.
std::vector<std::string> EventsOf(const OrientDate& date);

/// What the calendar of the present variant is called.
std::string CalendarName();

/// For month grids: years as they are shown, months by their place in the year.
extern const CalendarContract Calendar;

}  // namespace horvanta::oriental
