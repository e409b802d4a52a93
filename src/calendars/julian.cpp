#include "calendars/julian.h"

#include "calendars/calendar_text.h"
#include "calendars/gregorian.h"
#include "calendars/twelve_months.h"

namespace horvanta {
namespace {

using twelve_months::Days;

/// The year on a scale that has a year 0.
constexpr Days YearFromZero(Days year, bool noYearZero) { return noYearZero && year < 0 ? year + 1 : year; }

bool isRevised(bool allowRevised) { return julian::options.Revise && allowRevised; }

bool isLeap(Days yearFromZero, bool revised) {
    if (!revised || yearFromZero % 100 != 0) return yearFromZero % 4 == 0;
    const Days remainder = FloorModulo(yearFromZero / 100, 9);
    return remainder == 2 || remainder == 6;
}

/// How many days the revised rule has left out by the end of a year, beside the two between the epochs.
constexpr Days DaysLeftOut(Days year) {
    const Days centuries = FloorDivide(year, 100);
    return centuries - FloorDivide(2 * centuries + 6, 9);
}

struct DayOfYear {
    Days year;  ///< On the scale that has a year 0.
    std::uint32_t prior;
    bool leap;
};

/// Cycles of four years, the last of which is leap.
DayOfYear JulianDayOfYear(Days daysSinceEpoch) {
    constexpr Days daysInCycle = 1461;
    const Days cycle = FloorDivide(daysSinceEpoch, daysInCycle);
    const auto [year, prior] =
        twelve_months::YearDayOf(static_cast<std::uint32_t>(daysSinceEpoch - cycle * daysInCycle));
    return {4 * cycle + year + 1, prior, year == 3};
}

/// Cycles of nine centuries, the second and the sixth of which end in a leap year. In ninths of a day a century is
/// 328718 long on the average.
DayOfYear RevisedDayOfYear(Days daysSinceEpoch) {
    constexpr Days daysInCycle = 328718;
    const Days cycle = FloorDivide(daysSinceEpoch, daysInCycle);
    const auto day = static_cast<std::uint32_t>(daysSinceEpoch - cycle * daysInCycle);
    const std::uint32_t century = (9 * day + 2) / 328718;                             // [0, 8]
    const auto [year, prior] = twelve_months::YearDayOf((9 * day + 2) % 328718 / 9);  // [0, 99]
    const bool leap = year % 4 == 3 && (year != 99 || century == 1 || century == 5);
    return {900 * cycle + 100 * century + year + 1, prior, leap};
}

}  // namespace

bool isJulianLeapYear(std::int32_t year, bool allowRevised, bool noYearZero) {
    return isLeap(YearFromZero(year, noYearZero), isRevised(allowRevised));
}

FixedDay JulianToFixed(std::int32_t year, std::int32_t month, std::int32_t day, bool allowRevised, bool noYearZero) {
    const bool revised = isRevised(allowRevised);
    const Days y = YearFromZero(year, noYearZero);
    const Days ofYears = 365 * (y - 1) + FloorDivide(y - 1, 4) - (revised ? DaysLeftOut(y - 1) : 0);
    const Days days = ofYears + twelve_months::DaysBeforeMonth(month, isLeap(y, revised)) + day - 1;
    return (revised ? GregorianEpoch : JulianEpoch) + static_cast<double>(days);
}

FixedDay RevisedJulianYearEnd(std::int64_t year) {
    return GregorianEpoch - 1 + static_cast<double>(365 * year + FloorDivide(year, 4) - DaysLeftOut(year));
}

JulianDate FixedToJulianDate(Moment x, bool allowRevised) {
    const bool revised = isRevised(allowRevised);
    const double epoch = revised ? GregorianEpoch : JulianEpoch;
    const Days days = twelve_months::DaysSince(x, epoch);
    const auto [year, prior, leap] = revised ? RevisedDayOfYear(days) : JulianDayOfYear(days);
    const auto [month, day] = twelve_months::MonthDayOf(prior, leap);
    return {.fixed = epoch + static_cast<double>(days),
            .year = static_cast<std::int32_t>(year > 0 ? year : year - 1),
            .month = static_cast<std::int16_t>(month),
            .day = static_cast<std::int16_t>(day)};
}

std::int16_t JulianMonthLength(std::int32_t year, std::int32_t month, bool allowRevised) {
    return twelve_months::MonthLength(month, isJulianLeapYear(year, allowRevised));
}

/// February 29 of a century year that is common in the Gregorian calendar reads as March 1 there; it is told apart from
/// year 300 on.
std::int16_t JulianGregDiff(Moment x, bool allowRevised) {
    const JulianDate date = FixedToJulianDate(x, allowRevised);
    const std::int32_t year = date.year < 0 ? date.year + 1 : date.year;
    const bool isCentury = year >= 300 && year % 100 == 0 && year % 400 != 0;
    const bool isAmiss = isCentury && date.month == 2 && date.day == 29;
    return WholeNumber<std::int16_t>(date.fixed - GregorianToFixed(year, date.month, date.day) + (isAmiss ? 1 : 0));
}

std::string JulianDominicalLetters(std::int32_t year) {
    return DominicalLetters(DayOfWeek(JulianToFixed(year, 1, 1, true) - 1), isJulianLeapYear(year, true));
}

}  // namespace horvanta
