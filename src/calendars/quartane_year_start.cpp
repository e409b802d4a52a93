#include "calendars/quartane_year_start.h"

#include "astro/sun.h"
#include "astro/year_dates.h"
#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/quartane_leap_rules.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace horvanta::quartane {
namespace {

using Days = std::int64_t;

constexpr Days daysOfCommonYear = 364;

std::int32_t Year32(std::int64_t year) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(year, Limits::min(), Limits::max()));
}

Moment GregorianNewYear(std::int64_t year) { return GregorianYearEnd(Year32(year - 1)) + 1; }
Moment RevisedJulianNewYear(std::int64_t year) { return RevisedJulianYearEnd(year - 1) + 1; }

constexpr int monday = 1;

/// The day of a season, whose longitude a negative number looks up in the year before, and days from it.
template <int Degrees, int YearsBack>
Moment Season(std::int64_t year, double days) {
    return SeasonMoment(Year32(year - YearsBack), Degrees, days);
}

template <int Degrees, int YearsBack>
Moment MeanSeason(std::int64_t year, double days) {
    return MeanSeasonMoment(Year32(year - YearsBack), Degrees) + days;
}

/// A rule that ties the new year to a moment, by its key.
struct YearStart {
    std::string_view key;
    Moment (*moment)(std::int64_t year);
};

// clang-format off
constexpr YearStart yearStarts[] = {
    {"ISO", GregorianNewYear},
    {"ISOalt", [](std::int64_t y) { return KDayNearest(monday, GregorianNewYear(y)); }},
    {"RJISO", RevisedJulianNewYear},
    {"RJISOalt", [](std::int64_t y) { return KDayNearest(monday, RevisedJulianNewYear(y)); }},
    {"NE80", [](std::int64_t y) { return Season<360, 0>(y, -78.5); }},
    {"MNE80", [](std::int64_t y) { return MeanSeason<0, 0>(y, -78.5); }},
    {"NS174", [](std::int64_t y) { return Season<90, 0>(y, -172.5); }},
    {"MNS174", [](std::int64_t y) { return MeanSeason<90, 0>(y, -172.5); }},
    {"SE100", [](std::int64_t y) { return Season<180, 1>(y, 100.25); }},
    {"MSE100", [](std::int64_t y) { return MeanSeason<180, 1>(y, 100.25); }},
    {"SS10", [](std::int64_t y) { return Season<270, 1>(y, 10.25); }},
    {"MSS10", [](std::int64_t y) { return MeanSeason<270, 1>(y, 10.25); }},
    {"BNY", [](std::int64_t y) { return Season<-280, 0>(y, 0); }},
    {"MOY", [](std::int64_t y) { return OrbitalDateToMoment(static_cast<double>(y)); }},
    {"RAY", [](std::int64_t y) { return RAYDateToMoment(static_cast<double>(y)); }},
    {"LANEY", [](std::int64_t y) { return LinApprox(y, 5500, 14000, 0.24232081911262798, 0.24053240740740742, 0.4); }},
    {"LANSY", [](std::int64_t y) { return LinApprox(y, 10500, 18200, 0.2416452442159383, 0.24050925925925926, 0.4); }},
    {"LASEY", [](std::int64_t y) { return LinApprox(y, -3000, 5200, 0.24346064814814813, 0.24112268518518518, 0.25); }},
    {"LASSY", [](std::int64_t y) { return LinApprox(y, 1400, 9250, 0.2429050925925926, 0.24079861111111112, -1.0); }},
    {"LABY", [](std::int64_t y) { return LinApprox(y, 1600, 9700, 0.24287037037037038, 0.24081018518518518, -1.3); }},
};
// clang-format on

const YearStart& StartOf(std::string_view key) {
    const auto* found = std::ranges::find(yearStarts, key, &YearStart::key);
    return found == std::end(yearStarts) ? yearStarts[0] : *found;
}

/// The leap years from year 1 to `year`, fewer than none before it.
Days LeapYearsThrough(const LeapRule& rule, std::int64_t year) {
    return FloorDivide(rule.LeapNumerator * year + rule.CycleOffset, rule.CycleLength);
}

/// Days from the epoch to a new year, in a cycle.
Days DaysBeforeYear(const LeapRule& rule, std::int64_t year) {
    return daysOfCommonYear * (year - 1) + 7 * LeapYearsThrough(rule, year - 1);
}

Moment MeanNewYear(const LeapRule& rule, std::int64_t year) {
    const auto past = static_cast<double>(year - 1);
    return past * 365 + QuaEpoch() + past * static_cast<double>(rule.DayExcess) / static_cast<double>(rule.CycleLength);
}

/// The mean year leads to the year itself or to a neighbour.
QuaYear YearInCycle(const LeapRule& rule, FixedDay fixed) {
    constexpr double farthest = 7e11;  // days, within the years of 32 bits
    const FixedDay epoch = QuaEpoch();
    const auto days = static_cast<Days>(std::fmax(-farthest, std::fmin(farthest, fixed - epoch)));
    std::int64_t year = FloorDivide(days * rule.CycleLength, rule.CycleDays) + 1;
    Days before = DaysBeforeYear(rule, year);
    if (before > days) before = DaysBeforeYear(rule, --year);
    if (days - before >= daysOfCommonYear) {
        const Days next = DaysBeforeYear(rule, year + 1);
        if (days >= next) return {Year32(year + 1), epoch + static_cast<double>(next)};
    }
    return {Year32(year), epoch + static_cast<double>(before)};
}

/// The rotation-adjusted year begins within days of the year of any rule.
QuaYear YearByMoments(FixedDay fixed) {
    const auto year = WholeNumber(Floor(MomentToRAYDate(fixed)));
    const FixedDay newYear = QuaNewYear(year);
    if (newYear > fixed) return {Year32(year - 1LL), QuaNewYear(year - 1LL)};
    if (fixed - newYear >= daysOfCommonYear) {
        const FixedDay next = QuaNewYear(year + 1LL);
        if (fixed >= next) return {Year32(year + 1LL), next};
    }
    return {year, newYear};
}

}  // namespace

FixedDay QuaEpoch() { return static_cast<double>((options.StartWeekday + 2) % 7) + GregorianEpoch - 3; }

Moment QuaNewYear(std::int64_t year, bool wantMoment) {
    const LeapRule& rule = Rule();
    if (rule.IsCycleRule) {
        return wantMoment ? MeanNewYear(rule, year) : QuaEpoch() + static_cast<double>(DaysBeforeYear(rule, year));
    }
    const Moment moment = StartOf(options.LeapRuleKey).moment(year);
    return wantMoment ? moment : KDayOnOrBefore(options.StartWeekday, Floor(moment) + 3);
}

Moment LinApprox(std::int64_t year, double startYear, double endYear, double startFraction, double endFraction,
                 double offset) {
    const double slope = (endFraction - startFraction) / (endYear - startYear);
    const double intercept = startFraction - startYear * slope;
    const double n = static_cast<double>(year) - 1;
    const auto evenYears = [](double years, double fraction) { return 365 * years + years * fraction; };
    const auto changingYears = [=](double years, double fraction) {
        return 365 * years + years * fraction + years * years * slope / 2;
    };
    double days = 0;
    if (n <= 0) {
        if (startYear >= 1) {
            days = evenYears(n, startFraction);
        } else if (n > startYear) {
            days = changingYears(n, intercept);
        } else {
            days = evenYears(n - startYear, startFraction) + changingYears(startYear, intercept);
        }
    } else if (startYear < 1) {
        days = changingYears(std::fmin(n, endYear), intercept);
    } else if (n <= startYear) {
        days = evenYears(n, startFraction);
    } else {
        days = evenYears(startYear, startFraction) + changingYears(std::fmin(n, endYear) - startYear, startFraction);
    }
    if (n > 0 && n > endYear) days += evenYears(n - endYear, endFraction);
    return GregorianEpoch + offset + days;
}

bool isQuaLeapYear(std::int64_t year) {
    const LeapRule& rule = Rule();
    if (!rule.IsCycleRule) return QuaNewYear(year + 1) - QuaNewYear(year) > daysOfCommonYear;
    return FloorModulo(year * rule.LeapNumerator + rule.CycleOffset, rule.CycleLength) < rule.LeapNumerator;
}

QuaYear FixedToQuaYear(Moment x) {
    const FixedDay fixed = Floor(x);
    const LeapRule& rule = Rule();
    return rule.IsCycleRule ? YearInCycle(rule, fixed) : YearByMoments(fixed);
}

std::int16_t FixedToQuaDayOfYear(Moment x) {
    return WholeNumber<std::int16_t>(Floor(x) - FixedToQuaYear(x).newYear + 1);
}

Moment JumpLeapWeek(Moment from, int direction) {
    const int step = direction < 0 ? -1 : 1;
    std::int64_t year = FixedToQuaYear(from).year;
    if (FixedToQuaDayOfYear(from) > daysOfCommonYear) {
        year += 5 * step;
    } else if (step < 0 && isQuaLeapYear(year)) {
        year -= 5;
    }
    while (!isQuaLeapYear(year)) year += step;
    return QuaNewYear(year + 1) - 7;
}

Moment JumpNYmoment(Moment from, int direction) {
    const auto newYear = [](std::int64_t year) { return QuaNewYear(year, !isISORule()); };
    const auto isBefore = [](Moment a, Moment b) { return Round(a, 1) < Round(b, 1); };
    const std::int64_t year = FixedToQuaYear(from).year;
    // a year's moment may lie some days to either side of its first day
    if (direction < 0) {
        std::int64_t found = year + 1LL;
        while (!isBefore(newYear(found), from)) --found;
        return newYear(found);
    }
    std::int64_t found = year;
    while (!isBefore(from, newYear(found))) ++found;
    return newYear(found);
}

Moment JumpQuaCycle(Moment from, int direction) {
    const LeapRule& rule = Rule();
    if (rule.CycleLength == 0) return NeverMoment;
    const std::int64_t year = FixedToQuaYear(from).year;
    const std::int64_t past = FloorModulo(year - 1, rule.CycleLength);
    if (past == 0) return from + direction * static_cast<double>(rule.CycleDays);
    const std::int64_t first = year - past;
    if (direction > 0) return QuaNewYear(first + rule.CycleLength);
    const Moment begin = QuaNewYear(first);
    return from <= begin ? QuaNewYear(first - rule.CycleLength) : begin;
}

}  // namespace horvanta::quartane
