#include "hebrew/hebrew_modes.h"

#include "astro/crescents.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "core/memo.h"
#include "hebrew/molad.h"
#include "locale/presets.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>
#include <tuple>

namespace horvanta {
namespace {

constexpr std::int32_t elul = 6;
constexpr std::int32_t tishrei = 7;
constexpr std::int32_t tammuz = 4;

// The day on which a month begins, by its conjunction (universal).

/// The conjunction's day of local mean time, some days later.
template <double days>
FixedDay DayOfMeanTime(Moment conjunction, const LocaleRecord& place) {
    return Floor(UniversalToLocal(conjunction, place) + days);
}

/// The day after the conjunction's, or the second for a conjunction after 6:00 by a scale of the place.
template <Moment (*toScale)(Moment, const LocaleRecord&)>
FixedDay DayAfterMorning(Moment conjunction, const LocaleRecord& place) {
    const Moment x = toScale(conjunction, place);
    const bool late = x - Floor(x) > 0.25;
    return Floor(late ? x + 1 : x) + 1;
}

/// The same with sunrise for 6:00. Its moment, not its time of day, is held against the conjunction's time of day, so
/// that no conjunction of a positive day (counted from January 1 of year 1) is late.
FixedDay DayAfterSunrise(Moment conjunction, const LocaleRecord& place) {
    const Moment x = UniversalToStandard(conjunction, place);
    const bool late = Sunrise(x, place) - (GregorianEpoch - 1) < x - Floor(x);
    return Floor(late ? x + 1 : x) + 1;
}

Moment UniversalSunset(Moment date, const LocaleRecord& place) {
    return StandardToUniversal(Sunset(date, place), place);
}

/// The day that begins at the sunset next to the conjunction.
FixedDay DayOfNearestSunset(Moment conjunction, const LocaleRecord& place) {
    const Moment sunset = UniversalSunset(conjunction, place);
    const FixedDay first = Floor(sunset) + 1;
    if (sunset <= conjunction) return first;
    return sunset - conjunction > conjunction - UniversalSunset(conjunction - 1, place) ? first - 1 : first;
}

/// The day that begins at the first sunset more than half a day after the conjunction.
FixedDay DayOfLaterSunset(Moment conjunction, const LocaleRecord& place) {
    constexpr int enough = 5;  // evenings
    Moment sunset = conjunction;
    for (int i = 0; i < enough && !(sunset - conjunction > 0.5); ++i) sunset = UniversalSunset(conjunction + i, place);
    return Floor(sunset) + 1;
}

/// The day after the first evening of the crescent.
FixedDay DayAfterCrescent(Moment conjunction, const LocaleRecord& place) {
    constexpr int enough = 10;  // evenings
    FixedDay evening = Floor(conjunction) + 1;
    for (int i = 1; i < enough && !(VisibleCrescent(evening, place) > 0); ++i) ++evening;
    return evening + 1;
}

// The day by the number of its lunation.

template <double days>
FixedDay DayOfAdjustedMolad(double n, const LocaleRecord&) {
    return Floor(n * MoladInterval + MoladEpoch() - AverageMoladAdjust(n, true) + days);
}

template <double days>
FixedDay DayOfTraditionalMolad(double n, const LocaleRecord&) {
    return Floor(n * MoladInterval + MoladEpoch() + days);
}

FixedDay DayOfMoladAtPlace(double n, const LocaleRecord& place) {
    return DayOfMeanTime<1.75>(MoladToUniversal(n * MoladInterval + MoladEpoch()), place);
}

FixedDay DayOfMeanConjunction(double n, const LocaleRecord& place) {
    return DayOfMeanTime<1.75>(AdjustedMoladBefore(n * MoladInterval + HebrewEpoch), place);
}

FixedDay DayOfProgressiveMolad(double n, const LocaleRecord&) { return Floor(ProgressiveMolad(n) + 1); }
FixedDay DayOfEveMolad(double n, const LocaleRecord&) { return Floor(TraditionalMolad(n) + 1); }

// The first of Nisan of a year.

/// The equinox of its spring, after a universal start.
Moment EquinoxOf(std::int32_t year) { return SolarLongitudeAfter(RAYDateToMoment(year - 3760.0), 0); }

/// The 15th ends after the equinox.
bool isAfterEquinox(FixedDay first, Moment equinox, const LocaleRecord& place) {
    return UniversalSunset(first + 14, place) > equinox;
}

// The conjunction that is taken in place of one too early, from the equinox or from the first day that it would give.
Moment AfterTheEquinox(Moment equinox, FixedDay) { return NewMoonAfter(equinox); }
template <int days>
Moment AfterTheFirst(Moment, FixedDay first) {
    return NewMoonAfter(first + days);
}

template <auto dayOf, auto nextConjunction>
FixedDay NisanByMoon(std::int32_t year, const LocaleRecord& place) {
    const Moment equinox = EquinoxOf(year);
    const FixedDay first = dayOf(NewMoonBefore(equinox), place);
    return isAfterEquinox(first, equinox, place) ? first : dayOf(nextConjunction(equinox, first), place);
}

FixedDay NisanByMeanMoon(std::int32_t year, const LocaleRecord& place) {
    const Moment equinox = EquinoxOf(year);
    const Moment conjunction = AdjustedMoladBefore(equinox);
    const FixedDay first = DayOfMeanTime<1.75>(conjunction, place);
    if (isAfterEquinox(first, equinox, place)) return first;
    return DayOfMeanTime<1.75>(AdjustedMoladAfter(conjunction), place);
}

/// By the first opposition after the equinox.
FixedDay NisanByOpposition(std::int32_t year, const LocaleRecord& place) {
    const Moment start = (year - 1.0) * 365 + Floor(8.0 * year / 33) + HebrewEpoch;
    const Moment opposition = PhaseAfter(SolarLongitudeAfter(start, 0), 180);
    return DayOfMeanTime<1.0>(NewMoonAfter(opposition - 30), place);
}

template <auto dayOf>
FixedDay NisanByCycle(std::int32_t year, const LocaleRecord& place) {
    return dayOf(ElapsedMonths353(year, 1), place);
}

/// The six months to Tishrei always have 177 days.
FixedDay NisanBeforeTishrei(std::int32_t year, const LocaleRecord&) { return HebrewNewYear353(year + 1) - 177; }

FixedDay TraditionalNisan(std::int32_t year, const LocaleRecord&) { return HebrewToFixed(year, 1, 1); }

// Whether a month that begins at `first` has 30 days.

template <auto dayOf>
bool isLongByMoon(FixedDay first, std::int32_t, std::int32_t, const LocaleRecord& place) {
    return dayOf(NewMoonAfter(first + 7), place) > first + 29;
}

bool isLongByMeanMoon(FixedDay first, std::int32_t, std::int32_t, const LocaleRecord& place) {
    return DayOfMeanTime<1.75>(AdjustedMoladAfter(AdjustedMoladBefore(first + 7)), place) > first + 29;
}

bool isLongByMolad(FixedDay first, std::int32_t, std::int32_t, const LocaleRecord& place) {
    const Moment next = MoladBefore(first + 7) + MoladInterval;
    return DayOfMeanTime<1.75>(MoladToUniversal(next), place) > first + 29;
}

template <auto dayOf>
bool isLongByCycle(FixedDay first, std::int32_t year, std::int32_t month, const LocaleRecord& place) {
    return dayOf(ElapsedMonths353(year, month) + 1, place) > first + 29;
}

/// No crescent on the evening that would begin day 30.
bool isLongByCrescent(FixedDay first, std::int32_t, std::int32_t, const LocaleRecord& place) {
    return !(VisibleCrescent(first + 28, place) > 0);
}

bool isLongByNearestSunset(FixedDay first, std::int32_t, std::int32_t, const LocaleRecord& place) {
    const Moment conjunction = NewMoonAfter(first + 7);
    const double before = std::abs(conjunction - UniversalSunset(first + 28, place));
    return std::abs(UniversalSunset(first + 29, place) - conjunction) < before;
}

bool isLongByLaterSunset(FixedDay first, std::int32_t, std::int32_t, const LocaleRecord& place) {
    return UniversalSunset(first + 28, place) - NewMoonAfter(first + 7) < 0.5;
}

bool isLongByRectifiedYear(FixedDay, std::int32_t year, std::int32_t month, const LocaleRecord&) {
    switch (month) {
        case 2:
        case 4:
        case 6:
        case 10:
        case 13: return false;
        case 8: return DaysInRectHebrewYear(year) % 10 == 5;
        case 9: return DaysInRectHebrewYear(year) % 10 != 3;
        case 12: return isHebrewLeapYear353(year);
        default: return true;
    }
}

bool isLongByTradition(FixedDay, std::int32_t year, std::int32_t month, const LocaleRecord&) {
    return LastDayOfHebrewMonth(year, month) == 30;
}

/// Which lengths of months a rule leaves open.
enum Lengths {
    AllOpen,      ///< All, and the new year moves by Elul's.
    SummerFixed,  ///< Not those of Av (30) and Elul (29): the new year moves by Tammuz's.
    AllFixed,     ///< None: the lengths are those of the year.
};

/// Whether the leap years are those of the rectified cycle.
enum Cycle { NoCycle, FixedCycle };

struct Mode {
    Cycle cycle;
    std::string_view rule;
    FixedDay (*nisan)(std::int32_t year, const LocaleRecord& place);
    bool (*isLong)(FixedDay first, std::int32_t year, std::int32_t month, const LocaleRecord& place);
    Lengths lengths = AllOpen;
};

// clang-format off
constexpr Mode modes[] = {
    {NoCycle, "7/19 Metonic Leap Cycle, Traditional Molad, Fixed Month Lengths",
     TraditionalNisan, isLongByTradition, AllFixed},
    {NoCycle, "Crescent",
     NisanByMoon<DayAfterCrescent, AfterTheFirst<0>>, isLongByCrescent},
    {NoCycle, "Sunset Closest to Conjunction",
     NisanByMoon<DayOfNearestSunset, AfterTheFirst<7>>, isLongByNearestSunset},
    {NoCycle, "First Sunset >1/2 Day After Conjunction",
     NisanByMoon<DayOfLaterSunset, AfterTheFirst<7>>, isLongByLaterSunset},
    {NoCycle, "Sunset After Conjunction, or Next if Conjunction After 06:00h JMST",
     NisanByMoon<DayAfterMorning<UniversalToLocal>, AfterTheEquinox>, isLongByMoon<DayAfterMorning<UniversalToLocal>>},
    {NoCycle, "Sunset Before FLOOR(Conjunction + 2 days)",
     NisanByMoon<DayOfMeanTime<2.0>, AfterTheEquinox>, isLongByMoon<DayOfMeanTime<2.0>>},
    {NoCycle, "Sunset Before FLOOR(Conjunction + 42h)",
     NisanByMoon<DayOfMeanTime<1.75>, AfterTheEquinox>, isLongByMoon<DayOfMeanTime<1.75>>},
    {NoCycle, "Sunset Before FLOOR(Conjunction + 30h)",
     NisanByMoon<DayOfMeanTime<1.25>, AfterTheEquinox>, isLongByMoon<DayOfMeanTime<1.25>>},
    {NoCycle, "Sunset Before FLOOR(MEAN Conjunction + 42h)",
     NisanByMeanMoon, isLongByMeanMoon},
    {FixedCycle, "Sunset Before FLOOR(MEAN Conjunction + 42h)",
     NisanByCycle<DayOfMeanConjunction>, isLongByMeanMoon},
    {FixedCycle, "Sunset Before FLOOR(Adjusted Molad + 42h)",
     NisanByCycle<DayOfAdjustedMolad<1.75>>, isLongByCycle<DayOfAdjustedMolad<1.75>>},
    {FixedCycle, "Sunset Before FLOOR(Adjusted Molad + 24h)",
     NisanByCycle<DayOfAdjustedMolad<1.0>>, isLongByCycle<DayOfAdjustedMolad<1.0>>},
    {FixedCycle, "Sunset Before FLOOR(Traditional Molad + 24h)",
     NisanByCycle<DayOfTraditionalMolad<1.0>>, isLongByCycle<DayOfTraditionalMolad<1.0>>},
    {FixedCycle, "Sunset Before FLOOR(Traditional Molad + 42h)",
     NisanByCycle<DayOfTraditionalMolad<1.75>>, isLongByCycle<DayOfTraditionalMolad<1.75>>},
    {FixedCycle, "Sunset Before FLOOR(Molad + 42h)",
     NisanByCycle<DayOfMoladAtPlace>, isLongByMolad},
    {NoCycle, "Sunset After Conjunction, or Next if Conjunction After 06:00h IST",
     NisanByMoon<DayAfterMorning<UniversalToStandard>, AfterTheEquinox>, isLongByMoon<DayAfterMorning<UniversalToStandard>>},
    {NoCycle, "Sunset After Sunrise After Conjunction",
     NisanByMoon<DayAfterSunrise, AfterTheEquinox>, isLongByMoon<DayAfterSunrise>},
    {FixedCycle, "Sunset Before FLOOR(Progressive Molad + 24h)",
     NisanByCycle<DayOfProgressiveMolad>, isLongByCycle<DayOfProgressiveMolad>},
    {FixedCycle, "Sunset Before FLOOR(Traditional Molad + 24h)",
     NisanByCycle<DayOfEveMolad>, isLongByCycle<DayOfEveMolad>},
    {FixedCycle, "Sunset Before FLOOR(Progressive Molad + 24h), Av=30d Elul=29d",
     NisanByCycle<DayOfProgressiveMolad>, isLongByCycle<DayOfProgressiveMolad>, SummerFixed},
    {FixedCycle, "Sunset Before FLOOR(Traditional Molad + 24h), Av=30d Elul=29d",
     NisanByCycle<DayOfEveMolad>, isLongByCycle<DayOfEveMolad>, SummerFixed},
    {FixedCycle, "Nile-Euphrates Midpoint Molad with Fixed Month Lengths",
     NisanBeforeTishrei, isLongByRectifiedYear, AllFixed},
    {FixedCycle, "Traditional Molad with Fixed Month Lengths",
     NisanBeforeTishrei, isLongByRectifiedYear, AllFixed},
    {NoCycle, "Sunset >=24h after Conjunction before 1st Opposition after Northward Equinox at Nile-Euphrates Midpoint",
     NisanByOpposition, isLongByMoon<DayOfMeanTime<1.0>>},
};
// clang-format on

constexpr std::int32_t nileEuphratesMode = 23;

/// Leap years of the rectified cycle, its years and its months, and where in the cycle year 0 stands.
constexpr std::int32_t leapYearsOfCycle = 130;
constexpr std::int32_t yearsOfCycle = 353;
constexpr std::int32_t monthsOfCycle = 4366;
constexpr std::int32_t cycleDelta = 139;

const Mode& Chosen() { return modes[hebrew::options.HebrewMode]; }

const LocaleRecord& PlaceOfMode() {
    static const LocaleRecord& jerusalem = PresetLocale("Jerusalem");
    static const LocaleRecord& nileEuphrates = PresetLocale("N-E Mid");
    return hebrew::options.HebrewMode < nileEuphratesMode ? jerusalem : nileEuphrates;
}

/// All that a year of a mode depends on.
using ModeKey = std::tuple<std::int32_t, hebrew::Options, std::int64_t, bool, std::int64_t>;

ModeKey KeyOf(std::int32_t year) {
    return {year, hebrew::options, DeltaTSerial, horizon::options.UseElevation, NumberingSerial};
}

/// The weekday of the first of Tishrei is one of those that may not begin a year.
bool isExcluded(FixedDay day) {
    const std::int32_t weekday = DayOfWeek(day);
    return weekday == 0 || weekday == 3 || weekday == 5;
}

FixedDay Shifted(FixedDay first, FixedDay candidate, double shortSpan) {
    if (!isExcluded(candidate)) return candidate;
    return candidate - first == shortSpan ? candidate + 1 : candidate - 1;
}

/// The first days of the months of one round from a Nisan; the year changes at month 7. After month 12 or 13 the next
/// Nisan begins, and what stands behind it is of no date.
using MonthStarts = std::array<FixedDay, 15>;

MonthStarts StartsFrom(std::int32_t year) {
    MonthStarts starts{};
    starts[1] = NisanFirstDay(year);
    for (std::int32_t month = 1; month <= 13; ++month) {
        const auto place = static_cast<std::size_t>(month);
        starts[place + 1] = HopToNextMonth(starts[place], month < tishrei ? year : year + 1, month, true);
    }
    return starts;
}

/// Of the Nisan in a year.
const MonthStarts& StartsOfRound(std::int32_t year) {
    static Memo<4, ModeKey, MonthStarts> memo;
    return memo.Of(KeyOf(year), [year] { return StartsFrom(year); });
}

std::int32_t RoundOf(std::int32_t year, std::int32_t month) { return month < tishrei ? year : year - 1; }

// Operations of the reckoning.

std::int32_t MonthsInActiveYear(std::int32_t year) { return isAstroHebrewLeapYear(year) ? 13 : 12; }

std::int16_t LastDayOfActiveMonth(std::int32_t year, std::int32_t month) {
    const FixedDay first = AstroHebrewToFixed(year, month, 1);
    return WholeNumber<std::int16_t>(HopToNextMonth(first, year, month, true) - first);
}

std::string_view ActiveMonthName(std::int32_t year, std::int32_t month) {
    constexpr std::int32_t commonYear = 1;
    constexpr std::int32_t leapYear = 3;
    return HebrewMonthName(isAstroHebrewLeapYear(year) ? leapYear : commonYear, month);
}

constinit const HebrewReckoning activeReckoning{AstroHebrewToFixed,   FixedToActiveHebrewDate, MonthsInActiveYear,
                                                LastDayOfActiveMonth, ActiveMonthName,         true};

}  // namespace

std::string AstroRule(std::int32_t mode) {
    if (mode < 0) mode = hebrew::options.HebrewMode;
    if (mode >= std::ssize(modes)) return "Unknown Hebrew Calendar Mode";
    const std::string prefix = std::to_string(leapYearsOfCycle) + "/" + std::to_string(yearsOfCycle) +
                               " FixedCycle, delta=" + std::to_string(cycleDelta) + ", ";
    return (modes[mode].cycle == FixedCycle ? prefix : "") + std::string(modes[mode].rule);
}

FixedDay NisanFirstDay(std::int32_t year) {
    static Memo<2, ModeKey, FixedDay> memo;
    return memo.Of(KeyOf(year), [year] { return Chosen().nisan(year, PlaceOfMode()); });
}

FixedDay HopToNextMonth(FixedDay first, std::int32_t year, std::int32_t month, bool shift) {
    constexpr std::int32_t av = 5;
    const Mode& mode = Chosen();
    if (mode.lengths == SummerFixed && month == av) return first + 30;
    if (mode.lengths == SummerFixed && month == elul) return first + 29;
    const FixedDay next = first + (mode.isLong(first, year, month, PlaceOfMode()) ? 30 : 29);
    if (!shift || mode.lengths == AllFixed) return next;
    if (mode.lengths == SummerFixed) return month == tammuz ? ShiftRoshHashanahElul29(first, next + 59) - 59 : next;
    return month == elul ? ShiftRoshHashanah(first, next) : next;
}

FixedDay ShiftRoshHashanah(FixedDay first, FixedDay candidate) { return Shifted(first, candidate, 29); }
FixedDay ShiftRoshHashanahElul29(FixedDay first, FixedDay candidate) { return Shifted(first, candidate, 88); }

bool isAstroHebrewLeapYear(std::int32_t year) { return NisanFirstDay(year) - NisanFirstDay(year - 1) > 365; }

FixedDay AstroHebrewToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    const MonthStarts& starts = StartsOfRound(RoundOf(year, month));
    return starts[static_cast<std::size_t>(std::clamp(month, 1, 14))] + day - 1;
}

HebrewDateRecord FixedToActiveHebrewDate(Moment moment) {
    if (hebrew::options.HebrewMode == 0) return FixedToHebrewDate(moment);
    constexpr double yearOfMode = 365.2423611111111;
    const FixedDay day = Floor(moment);
    auto year = WholeNumber(Floor((moment - HebrewEpoch) / yearOfMode)) + 1;
    if (day < NisanFirstDay(year)) --year;
    const MonthStarts& starts = StartsOfRound(year);
    std::size_t month = 1;
    while (month < 13 && starts[month + 1] <= day) ++month;
    const auto monthNumber = static_cast<std::int32_t>(month);
    return {.Fixed = day,
            .Year = monthNumber < tishrei ? year : year + 1,
            .Month = monthNumber,
            .Day = WholeNumber<std::int16_t>(day - starts[month] + 1),
            .WeekDay = DayOfWeek(day) + 1,
            .WeekDayName = WeekdayLabel(day)};
}

const HebrewReckoning& ActiveReckoning() {
    return hebrew::options.HebrewMode == 0 ? TraditionalReckoning : activeReckoning;
}

bool isHebrewLeapYear353(std::int32_t year) {
    if (hebrew::options.HebrewMode == 0) return isHebrewLeapYear19(year);
    const double place = static_cast<double>(leapYearsOfCycle) * year + leapYearsOfCycle + cycleDelta;
    return Modulo(place, yearsOfCycle) < leapYearsOfCycle;
}

double ElapsedMonths353(std::int32_t year, std::int32_t month) {
    const double yearOfTishrei = month < tishrei ? year + 1.0 : year;
    return Quotient(yearOfTishrei * monthsOfCycle - 4097, yearsOfCycle) + (month - 7.0);
}

namespace {

/// A calendar by its months, its leap years and its molad, where days begin at 6 pm.
struct Reckoned {
    double (*elapsedMonths)(std::int32_t year, std::int32_t month);
    bool (*isLeapYear)(std::int32_t year);
    Moment (*molad)(double n);
};

/// The first of Tishrei from the day of its molad; `dayOf` is that of the molad so many months on. It is put off from a
/// Tuesday when the year would be too long, and from a Monday when the year before would be too short: told by lengths,
/// or by the weekdays that come to the same.
template <bool byWeekdays, class DayOfMonths>
FixedDay Postponed(FixedDay day, bool leap, bool afterLeap, const DayOfMonths& dayOf) {
    if (isExcluded(day)) return day + 1;
    if (DayOfWeek(day) == 2 && !leap) {
        const FixedDay next = dayOf(12);
        if (byWeekdays ? DayOfWeek(next) == 0 : next - day == 355) return day + 2;
    }
    if (DayOfWeek(day) == 1 && afterLeap) {
        const FixedDay last = dayOf(-13);
        if (byWeekdays ? DayOfWeek(last) == 3 : day - last == 383) return day + 1;
    }
    return day;
}

/// A year is too long, or follows one too short, only after a molad in the second half of the day counted from noon.
template <bool byWeekdays>
FixedDay NewYearByMolad(std::int32_t year, const Reckoned& calendar) {
    const double n = calendar.elapsedMonths(year, tishrei);
    const auto dayOf = [&](double months) { return Floor(calendar.molad(n + months) + 0.25); };
    const Moment fromNoon = calendar.molad(n) + 0.25;
    const FixedDay day = Floor(fromNoon);
    if (!isExcluded(day) && !(fromNoon - day > 0.5)) return day;
    return Postponed<byWeekdays>(day, calendar.isLeapYear(year), calendar.isLeapYear(year - 1), dayOf);
}

template <bool byWeekdays>
FixedDay NewYearByMoladDay(bool progressive, std::int32_t year) {
    const double n = ElapsedMonths(progressive, year, tishrei);
    return Postponed<byWeekdays>(MoladDay(progressive, n), isHebrewLeapYear(progressive, year),
                                 isHebrewLeapYear(progressive, year - 1),
                                 [&](double months) { return MoladDay(progressive, n + months); });
}

constexpr Reckoned traditional{ElapsedMonths19, isHebrewLeapYear19, TraditionalMolad};

}  // namespace

FixedDay HebrewNewYear353(std::int32_t year) {
    constexpr std::int32_t progressiveMode = 21;
    const bool progressive = hebrew::options.HebrewMode == progressiveMode;
    return NewYearByMolad<false>(
        year, {ElapsedMonths353, isHebrewLeapYear353, progressive ? ProgressiveMolad : TraditionalMolad});
}

std::int32_t DaysInRectHebrewYear(std::int32_t year) {
    return WholeNumber(HebrewNewYear353(year + 1) - HebrewNewYear353(year));
}

FixedDay RectHebrewToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    const bool fromNisan = month < tishrei;
    FixedDay start = fromNisan ? NisanFirstDay(year) : HebrewNewYear353(year);
    for (std::int32_t k = fromNisan ? 1 : tishrei; k < month; ++k) start = HopToNextMonth(start, year, k, true);
    return start + day - 1;
}

std::string HebrewYearCharacter353(std::int32_t year) {
    constexpr std::string_view letters = "PND";
    const bool leap = isHebrewLeapYear353(year);
    const auto place = static_cast<std::size_t>((leap ? 385 : 355) - DaysInRectHebrewYear(year));
    return std::to_string(DayOfWeek(HebrewNewYear353(year)) + 1) + (place < letters.size() ? letters[place] : '?') +
           std::to_string(DayOfWeek(NisanFirstDay(year) + 14) + 1) + (leap ? "*" : "");
}

FixedDay HebrewNewYear19(std::int32_t year) { return NewYearByMolad<false>(year, traditional); }
FixedDay HebrewNewYear19alt(std::int32_t year) { return NewYearByMolad<true>(year, traditional); }

FixedDay MyHebrewNewYear(bool progressive, std::int32_t year) { return NewYearByMoladDay<false>(progressive, year); }
FixedDay MyHebrewNewYearAlt(bool progressive, std::int32_t year) { return NewYearByMoladDay<true>(progressive, year); }

std::int32_t DaysInMyHebrewYear(bool progressive, std::int32_t year) {
    return WholeNumber(MyHebrewNewYear(progressive, year + 1) - MyHebrewNewYear(progressive, year));
}

}  // namespace horvanta
