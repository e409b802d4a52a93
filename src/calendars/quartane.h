#pragma once

#include "calendars/calendar_contract.h"
#include "calendars/quartane_options.h"
#include "core/numbering.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The Quartane calendar: perpetual, of whole weeks, with four quarters of one form. A common year has 364 days; a leap
/// year ends in a week more. Years count with a year 0.
namespace horvanta::quartane {

/// The leap week stands alone in the layout chosen, if its quarters end in a short month.
bool QuaLeapUseZov();

/// Month 13 is the leap week: chosen so, or because quarters end in the long month.
bool HasZovember();

/// Lets the leap week stand alone, or belong to December, in the layout chosen.
void ToggleUseZov(bool standsAlone);

/// Applies one of the three structures; another key changes nothing.
void SetQuaQuarterStructure(std::string_view key);

/// The structure after the present one: LSS, SLS, SSL, LSS.
std::string_view NextQuarterStructure();

/// The lengths of the months of a quarter, "4+5+4" weeks or "30+31+30" days.
std::string QuarterText(bool weeks);

/// "Quartane454" or "Quartane010".
std::string CalendarName();

struct QuaDate {
    FixedDay fixed = 0;
    std::int16_t yearDay = 0;         ///< 1 on New Year.
    bool isLeap = false;              ///< The year has 371 days.
    std::int16_t quarter = 0;         ///< 1 to 4.
    std::int16_t dayOfQuarter = 0;    ///< 1 to 91, with a leap week 98.
    std::int16_t weekOfQuarter = 0;   ///< 1 to 13, the leap week is 14.
    std::int16_t monthInQuarter = 0;  ///< 1 to 3; 4 for a leap week that stands alone.
    std::int16_t weekOfMonth = 0;     ///< 0 unless months have whole weeks.
    std::int16_t monthLength = 0;
    std::int32_t year = 0;
    std::int16_t month = 0;  ///< 1 to 13.
    std::int16_t day = 0;
    std::int32_t weekday = 0;  ///< 0 = Sunday.
    std::string_view weekdayName;
    std::int16_t weekOfYear = 0;  ///< 1 to 53.
};

/// "January" to "December", and "Zovember" for 13.
std::string_view MonthName(std::int32_t month);

constexpr std::int16_t QuaYearLength(bool isLeap) { return isLeap ? 371 : 364; }

/// The days of a year before a month, 1 to 13.
std::int16_t QuaDaysBeforeMonth(std::int32_t month);

/// The day of the year of a date.
std::int32_t QuaYearDay(std::int32_t month, std::int32_t day);

/// The fixed day of a date.
FixedDay QuaToFixed(std::int32_t year, std::int32_t month, std::int32_t day);

/// The date of a moment.
QuaDate FixedToQuaDate(Moment x);

/// Days of a month, as if the long month were always the middle one.
std::int16_t DaysInMonth(std::int32_t year, std::int32_t month);

/// "Monday, January 15, 2024", and "Mon, Jan 15, 2024".
std::string QuaDateString(const QuaDate& date);
std::string FixedToQuaShortDate(Moment x);

/// What the day of a date is in the calendar.
std::vector<std::string> EventsOf(const QuaDate& date);

/// The date of a moment, converted once for each day, numbering, rule and layout.
const QuaDate& QuaDateOn(Moment x);

/// For month grids: a date in the leap week of a year without one falls back by a week.
extern const CalendarContract Calendar;

}  // namespace horvanta::quartane
