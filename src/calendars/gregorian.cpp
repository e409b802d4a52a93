#include "calendars/gregorian.h"

#include "calendars/calendar_text.h"
#include "calendars/civil_days.h"
#include "calendars/twelve_months.h"
#include "core/memo.h"
#include "core/text.h"

#include <concepts>

namespace horvanta {
namespace {

using twelve_months::Days;

constexpr Days daysInCycle = 146097;
constexpr Days yearsInCycle = 400;

/// A multiple of 25 is a leap year if 16 divides it, since then 400 does.
constexpr bool isLeap(std::integral auto year) { return (year & (year % 25 == 0 ? 15 : 3)) == 0; }

/// The days of all years from 1 to `year`; negative before year 0. A shift is a floored division.
constexpr Days DaysThroughYear(Days year) {
    const Days centuries = FloorDivide(year, 100);
    return 365 * year + (year >> 2) - centuries + (centuries >> 2);
}

/// Days since January 1 of year 1.
Days DaysSinceEpoch(Moment x) { return twelve_months::DaysSince(x, GregorianEpoch); }

struct DayOfYear {
    Days year;
    std::uint32_t prior;  ///< Days of the year before this one.
    bool leap;
    std::uint32_t weekday;
};

/// In quarters of a day, centuries are 146097 long on the average, with the odd day at the end of the last of four. A
/// cycle is a whole number of weeks and begins on a Monday.
inline DayOfYear DayOfYearOf(Days daysSinceEpoch) {
    const Days cycle = FloorDivide(daysSinceEpoch, daysInCycle);
    const auto day = static_cast<std::uint32_t>(daysSinceEpoch - cycle * daysInCycle);  // [0, 146096]
    const std::uint32_t century = (4 * day + 3) / 146097;                               // [0, 3]
    const auto [year, prior] = twelve_months::YearDayOf((4 * day + 3) % 146097 / 4);    // [0, 99]
    const bool leap = year % 4 == 3 && (year != 99 || century == 3);
    return {yearsInCycle * cycle + 100 * century + year + 1, prior, leap, (day + 1) % 7};
}

// With years of 64 bits, so that the year before the first and after the last of 32 bits has its days too.
FixedDay FixedOf(Days year, Days month, Days day, bool leap) {
    const Days days = DaysThroughYear(year - 1) + twelve_months::DaysBeforeMonth(month, leap) + day;
    return GregorianEpoch - 1 + static_cast<double>(days);
}

FixedDay YearEndOf(Days year) { return GregorianEpoch - 1 + static_cast<double>(DaysThroughYear(year)); }

}  // namespace

bool isGregorianLeapYear(std::int32_t year) { return isLeap(year); }

FixedDay GregorianToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return FixedOf(year, month, day, isLeap(year));
}

FixedDay GregorianYearEnd(std::int32_t year) { return YearEndOf(year); }

std::int32_t FixedToGregorianYear(Moment x) { return static_cast<std::int32_t>(DayOfYearOf(DaysSinceEpoch(x)).year); }

GregorianDate FixedToGregorianDate(Moment x) {
    const Days days = DaysSinceEpoch(x);
    const auto [year, prior, leap, weekday] = DayOfYearOf(days);
    const auto [month, day] = twelve_months::MonthDayOf(prior, leap);
    return {.fixed = GregorianEpoch + static_cast<double>(days),
            .yearDay = static_cast<std::int16_t>(prior + 1),
            .year = static_cast<std::int32_t>(year),
            .month = static_cast<std::int32_t>(month),
            .day = static_cast<std::int16_t>(day),
            .weekday = static_cast<std::int32_t>(weekday),
            .weekdayName = WeekdayNames[weekday]};
}

std::int16_t GregorianMonthLength(std::int32_t year, std::int32_t month) {
    return twelve_months::MonthLength(month, isLeap(year));
}

std::string GregorianDateString(const GregorianDate& date) {
    return DateInWords(date.weekdayName, GregorianMonthNames[date.month - 1], date.day, std::to_string(date.year));
}

std::string FixedToGregorianString(Moment x) { return GregorianDateString(FixedToGregorianDate(x)); }

std::string GregorianDominicalLetters(std::int32_t year) {
    return DominicalLetters(DayOfWeek(YearEndOf(Days{year} - 1)), isLeap(year));
}

FixedDay ISOToFixed(std::int32_t year, std::int32_t week, std::int32_t weekday) {
    return NthKDay(week, 0, FixedOf(Days{year} - 1, 12, 28, isLeap(Days{year} - 1))) + weekday;
}

bool isISOLeapYear(std::int32_t year) {
    constexpr std::int32_t wednesday = 3;
    constexpr std::int32_t thursday = 4;
    return DayOfWeek(YearEndOf(year)) == thursday || DayOfWeek(YearEndOf(Days{year} - 1)) == wednesday;
}

/// A week belongs to the year of its Thursday, and a year whose first Thursday is January 1, or in a leap year January
/// 2, has a fifty-third at its end.
ISODate FixedToISODate(Moment x) {
    const Days days = DaysSinceEpoch(x);
    const Days sinceMonday = FloorModulo(days, 7);
    const DayOfYear thursday = DayOfYearOf(days - sinceMonday + 3);
    const std::uint32_t week = thursday.prior / 7 + 1;
    const std::uint32_t beforeFirst = thursday.prior % 7;
    return {.fixed = GregorianEpoch + static_cast<double>(days),
            .year = static_cast<std::int32_t>(thursday.year),
            .week = static_cast<std::int16_t>(week),
            .weekday = static_cast<std::int16_t>(sinceMonday + 1),
            .ordinalDay = static_cast<std::int16_t>(7 * week - 6 + sinceMonday),
            .isLeap = beforeFirst == 0 || (beforeFirst == 1 && thursday.leap)};
}

std::string ISODateString(const ISODate& date) {
    return std::to_string(date.year) + "-W" + FormatNumber(date.week, "00") + "-" + std::to_string(date.weekday);
}

std::vector<std::string> EventsOf(const ISODate& date) {
    std::vector<std::string> events;
    if (date.ordinalDay == 1) events.push_back("Begin ISO Year " + std::to_string(date.year));
    if (date.ordinalDay >= 365) events.emplace_back("ISO Standard Leap Week");
    return events;
}

namespace {

GridDate GregorianGridDate(Moment x) {
    const GregorianDate& date = DateOn<FixedToGregorianDate>(x);
    return {date.year, static_cast<std::int16_t>(date.month), date.day, GregorianMonthLength(date.year, date.month),
            static_cast<std::int16_t>(DayOfWeek(date.fixed - date.day + 1))};
}

FixedDay ISOBlockToFixed(std::int32_t year, std::int32_t block, std::int32_t day) {
    const double week = 4.0 * block - 4 + Ceiling(day / 7.0);
    return ISOToFixed(year, WholeNumber(week), WholeNumber(AdjustedModulo(day, 7)));
}

GridDate ISOGridDate(Moment x) {
    const ISODate& date = DateOn<FixedToISODate>(x);
    const auto block = static_cast<std::int16_t>(std::min(13, (date.week + 3) / 4));
    const bool withLeapWeek = date.week > 48 && date.isLeap;
    return {date.year, block, static_cast<std::int16_t>(date.ordinalDay - 28 * block + 28),
            static_cast<std::int16_t>(withLeapWeek ? 35 : 28), 0};
}

std::vector<std::string> ISOBlocks(std::int32_t) {
    std::vector<std::string> names;
    for (int week = 1; week < 49; week += 4) {
        names.push_back("Week " + std::to_string(week) + "-" + std::to_string(week + 3));
    }
    names.emplace_back("Week 49-End");
    return names;
}

/// The week and its day, as "W13-4".
std::string ISOCellText(const GridDate& shown, std::int32_t day) {
    return "W" + std::to_string((day - 1) / 7 + 4 * shown.month - 3) + "-" + std::to_string((day - 1) % 7 + 1);
}

}  // namespace

constinit const CalendarContract GregorianCalendar{
    .name = "Gregorian",
    .ToFixed = GregorianToFixed,
    .DateOf = GregorianGridDate,
    .MonthNames = [](std::int32_t) { return Texts(GregorianMonthNames); },
    .DayNames = [] { return WeekFrom(0, WeekdayNames, ShortWeekdayNames); },
    .DaysOf = CivilDaysOf};

constinit const CalendarContract ISOCalendar{.name = "ISO",
                                             .ToFixed = ISOBlockToFixed,
                                             .DateOf = ISOGridDate,
                                             .MonthNames = ISOBlocks,
                                             .DayNames = [] { return WeekFrom(1, WeekdayNames, ShortWeekdayNames); },
                                             .CellText = ISOCellText};

}  // namespace horvanta
