#include "calendars/gregorian.h"

#include "core/moment.h"
#include "core/text.h"

namespace horvanta {
namespace {

using Days = std::int64_t;

/// Whole days and years need no doubles: their quotients lie on an integer or at least 1/146097 beside it, so that
/// 64-bit division gives the dates of `Floor`, faster.
constexpr Days FloorDivide(Days a, Days b) { return a / b - (a % b < 0); }

constexpr Days FloorModulo(Days a, Days b) { return a - FloorDivide(a, b) * b; }

constexpr bool isLeap(Days year) { return year % (year % 100 == 0 ? 400 : 4) == 0; }

/// The days of all years from 1 to `year`; negative before year 0.
constexpr Days DaysThroughYear(Days year) {
    return 365 * year + FloorDivide(year, 4) - FloorDivide(year, 100) + FloorDivide(year, 400);
}

/// The day of the year on which the day before a month's first falls.
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

Days YearOf(Days daysSinceEpoch) {
    const Days n400 = FloorDivide(daysSinceEpoch, 146097);
    const Days d1 = daysSinceEpoch - n400 * 146097;  // [0, 146096]
    const Days n100 = d1 / 36524;                    // [0, 4]
    const Days d2 = d1 - n100 * 36524;               // [0, 36523]
    const Days n4 = d2 / 1461;                       // [0, 24]
    const Days n1 = (d2 - n4 * 1461) / 365;          // [0, 4]
    const bool lastDayOfCycle = n100 == 4 || n1 == 4;
    return 400 * n400 + 100 * n100 + 4 * n4 + n1 + (lastDayOfCycle ? 0 : 1);
}

// With years of 64 bits, so that the year before the first and after the last of 32 bits has its days too.
FixedDay FixedOf(Days year, Days month, Days day) {
    const Days days = DaysThroughYear(year - 1) + DaysBeforeMonth(month, isLeap(year)) + day;
    return GregorianEpoch - 1 + static_cast<double>(days);
}

FixedDay YearEndOf(Days year) { return GregorianEpoch - 1 + static_cast<double>(DaysThroughYear(year)); }

}  // namespace

bool isGregorianLeapYear(std::int32_t year) { return isLeap(year); }

FixedDay GregorianToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return FixedOf(year, month, day);
}

FixedDay GregorianYearEnd(std::int32_t year) { return YearEndOf(year); }

std::int32_t FixedToGregorianYear(Moment x) { return WholeNumber(static_cast<double>(YearOf(DaysSinceEpoch(x)))); }

GregorianDate FixedToGregorianDate(Moment x) {
    const Days days = DaysSinceEpoch(x);
    const Days year = YearOf(days);
    const bool leap = isLeap(year);
    const Days prior = days - DaysThroughYear(year - 1);  // [0, 365]
    const bool beforeMarch = prior < (leap ? 60 : 59);
    const Days correction = beforeMarch ? 0 : leap ? 1 : 2;
    const Days month = (12 * (prior + correction) + 373) / 367;  // [1, 12]

    GregorianDate date;
    date.fixed = GregorianEpoch + static_cast<double>(days);
    date.yearDay = static_cast<std::int16_t>(prior + 1);
    date.year = static_cast<std::int32_t>(year);
    date.month = static_cast<std::int32_t>(month);
    date.day = static_cast<std::int16_t>(prior + 1 - DaysBeforeMonth(month, leap));
    date.weekday = static_cast<std::int32_t>(FloorModulo(days + 1, 7));
    date.weekdayName = WeekdayNames[date.weekday];
    return date;
}

std::int16_t GregorianMonthLength(std::int32_t year, std::int32_t month) {
    if (month == 2) return isLeap(year) ? 29 : 28;
    return static_cast<std::int16_t>(30 + FloorModulo(month + FloorDivide(month, 8), 2));
}

std::string GregorianDateString(const GregorianDate& date) {
    return std::string(date.weekdayName) + ", " + std::string(GregorianMonthNames[date.month - 1]) + " " +
           std::to_string(date.day) + ", " + std::to_string(date.year);
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
    return NthKDay(week, 0, FixedOf(Days{year} - 1, 12, 28)) + weekday;
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

namespace {

/// A date of the displayed moment, kept for as long as its day and the numbering stay.
template <class Date, Date (*Convert)(Moment)>
const Date& DisplayedDate() {
    static struct {
        std::optional<FixedDay> fixed;
        std::int64_t numbering = 0;
        Date date;
    } memo;
    const FixedDay fixed = Floor(DisplayedMoment);
    if (memo.fixed != fixed || memo.numbering != NumberingSerial) {
        memo = {fixed, NumberingSerial, Convert(fixed)};
    }
    return memo.date;
}

}  // namespace

const GregorianDate& DisplayedGregorianDate() { return DisplayedDate<GregorianDate, FixedToGregorianDate>(); }
const ISODate& DisplayedISODate() { return DisplayedDate<ISODate, FixedToISODate>(); }

}  // namespace horvanta
