#include "calendars/gregorian.h"

#include "calendars/calendar_phrases.h"
#include "core/moment.h"
#include "core/text.h"

#include <algorithm>
#include <concepts>

namespace horvanta {
namespace {

using Days = std::int64_t;

// Whole days and years need no doubles: their quotients lie on an integer or at least 1/146097 beside it, so that
// integer division gives the dates of `Floor`, faster.

constexpr Days daysInCycle = 146097;
constexpr Days yearsInCycle = 400;

/// A multiple of 25 is a leap year if 16 divides it, since then 400 does.
constexpr bool isLeap(std::integral auto year) { return (year & (year % 25 == 0 ? 15 : 3)) == 0; }

/// The days of all years from 1 to `year`; negative before year 0. A shift is a floored division.
constexpr Days DaysThroughYear(Days year) {
    const Days centuries = FloorDivide(year, 100);
    return 365 * year + (year >> 2) - centuries + (centuries >> 2);
}

/// The days of a year before the first of a month.
constexpr Days DaysBeforeMonth(Days month, bool leap) {
    const Days correction = month <= 2 ? 0 : leap ? -1 : -2;
    return FloorDivide(367 * month - 362, 12) + correction;
}

/// Days since January 1 of year 1, held within the years of 32 bits.
Days DaysSinceEpoch(Moment x) {
    constexpr double limit = 784'000'000'000;
    const double days = Floor(x) - GregorianEpoch;
    if (!(days < limit)) return static_cast<Days>(limit);
    return days > -limit ? static_cast<Days>(days) : static_cast<Days>(-limit);
}

struct DayOfYear {
    Days year;
    std::uint32_t prior;  ///< Days of the year before this one.
    bool leap;
    std::uint32_t weekday;
};

/// In quarters of a day, centuries and years are 146097 and 1461 long on the average, and the odd day falls at the end
/// of the last of four, where the calendar has it (Neri and Schneider, Euclidean affine functions and their
/// application to calendar algorithms). A cycle is a whole number of weeks and begins on a Monday.
inline DayOfYear DayOfYearOf(Days daysSinceEpoch) {
    const Days cycle = FloorDivide(daysSinceEpoch, daysInCycle);
    const auto day = static_cast<std::uint32_t>(daysSinceEpoch - cycle * daysInCycle);  // [0, 146096]
    const std::uint32_t century = (4 * day + 3) / 146097;                               // [0, 3]
    const std::uint32_t dayOfCentury = (4 * day + 3) % 146097 / 4;                      // [0, 36524]
    const std::uint32_t year = (4 * dayOfCentury + 3) / 1461;                           // [0, 99]
    const std::uint32_t prior = (4 * dayOfCentury + 3) % 1461 / 4;                      // [0, 365]
    const bool leap = year % 4 == 3 && (year != 99 || century == 3);
    return {yearsInCycle * cycle + 100 * century + year + 1, prior, leap, (day + 1) % 7};
}

// With years of 64 bits, so that the year before the first and after the last of 32 bits has its days too.
FixedDay FixedOf(Days year, Days month, Days day, bool leap) {
    const Days days = DaysThroughYear(year - 1) + DaysBeforeMonth(month, leap) + day;
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
    const bool beforeMarch = prior < (leap ? 60U : 59U);
    const std::uint32_t correction = beforeMarch ? 0 : leap ? 1 : 2;
    const std::uint32_t month = (12 * (prior + correction) + 373) / 367;       // [1, 12]
    const std::uint32_t firstOfMonth = (367 * month - 362) / 12 - correction;  // [0, 335]

    return {.fixed = GregorianEpoch + static_cast<double>(days),
            .yearDay = static_cast<std::int16_t>(prior + 1),
            .year = static_cast<std::int32_t>(year),
            .month = static_cast<std::int32_t>(month),
            .day = static_cast<std::int16_t>(prior - firstOfMonth + 1),
            .weekday = static_cast<std::int32_t>(weekday),
            .weekdayName = WeekdayNames[weekday]};
}

std::int16_t GregorianMonthLength(std::int32_t year, std::int32_t month) {
    if (month == 2) return isLeap(year) ? 29 : 28;
    return static_cast<std::int16_t>(30 + FloorModulo(month + FloorDivide(month, 8), 2));
}

std::string GregorianDateString(const GregorianDate& date) {
    return DateInWords(date.weekdayName, GregorianMonthNames[date.month - 1], date.day, date.year);
}

std::string FixedToGregorianString(Moment x) { return GregorianDateString(FixedToGregorianDate(x)); }

std::string GregorianDominicalLetters(std::int32_t year) {
    constexpr std::string_view fromJanuary = "ABCDEFG";
    constexpr std::string_view fromMarch = "GABCDEF";
    const auto i = static_cast<std::size_t>(6 - DayOfWeek(YearEndOf(Days{year} - 1)));
    std::string letters{fromJanuary[i]};
    if (isLeap(year)) letters += fromMarch[i];
    return letters;
}

FixedDay ISOToFixed(std::int32_t year, std::int32_t week, std::int32_t weekday) {
    return NthKDay(week, 0, FixedOf(Days{year} - 1, 12, 28, isLeap(Days{year} - 1))) + weekday;
}

bool isISOLeapYear(std::int32_t year) {
    constexpr std::int32_t wednesday = 3;
    constexpr std::int32_t thursday = 4;
    return DayOfWeek(YearEndOf(year)) == thursday || DayOfWeek(YearEndOf(Days{year} - 1)) == wednesday;
}

ISODate FixedToISODate(Moment x) {
    ISODate date;
    date.fixed = Floor(x);
    const std::int32_t approx = FixedToGregorianYear(date.fixed - 3);
    date.year = date.fixed >= ISOToFixed(approx + 1, 1, 1) ? approx + 1 : approx;
    date.isLeap = isISOLeapYear(date.year);
    date.week = WholeNumber<std::int16_t>(Floor((date.fixed - ISOToFixed(date.year, 1, 1)) / 7) + 1);
    date.weekday = WholeNumber<std::int16_t>(AdjustedModulo(date.fixed - WeekdayOffset, 7));
    date.ordinalDay = static_cast<std::int16_t>(7 * date.week - 7 + date.weekday);
    return date;
}

std::string ISODateString(const ISODate& date) {
    return std::to_string(date.year) + "-W" + FormatNumber(date.week, "00") + "-" + std::to_string(date.weekday);
}

const GregorianDate& DisplayedGregorianDate() { return DisplayedDate<GregorianDate, FixedToGregorianDate>(); }
const ISODate& DisplayedISODate() { return DisplayedDate<ISODate, FixedToISODate>(); }

}  // namespace horvanta
