#include "calendars/easter.h"

#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/quartane.h"
#include "calendars/quartane_leap_rules.h"
#include "calendars/quartane_year_start.h"
#include "core/memo.h"
#include "locale/presets.h"

#include <algorithm>
#include <string_view>

namespace horvanta {
namespace {

constexpr std::int64_t yearsOfCycle = 19;  // after which the moons fall on the same days of the Julian year
constexpr std::int64_t daysOfEpacts = 30;

FixedDay SundayAfter(FixedDay moon) { return KDayAfter(0, moon); }

FixedDay FindAstronomicalPaschalMoon(std::int32_t year) {
    constexpr double northwardEquinox = 0;
    constexpr double fullMoon = 180;
    const LocaleRecord& jerusalem = PresetLocale("Jerusalem");
    const Moment equinox = SolarLongitudeAfter(GregorianToFixed(year, 1, 1), northwardEquinox);
    const Moment moon = PhaseAfter(equinox, fullMoon);
    return Floor(LocalToApparent(UniversalToLocal(moon, jerusalem), jerusalem));
}

struct YearKey {
    std::int32_t year;
    std::int64_t numbering;
    std::int64_t deltaT;

    bool operator==(const YearKey&) const = default;
};

/// A Julian year without a year 0 on the scale that has one.
constexpr std::int32_t WithYear0(std::int32_t year) { return year < 0 ? year + 1 : year; }

/// The Easter next to a moment in a direction, where a calendar's year begins its search.
Moment JumpTo(FixedDay (*easterOf)(std::int32_t year), std::int32_t (*yearBeside)(std::int32_t year, int direction),
              std::int32_t year, Moment from, int direction) {
    const FixedDay easter = easterOf(year);
    return direction * from >= direction * easter ? easterOf(yearBeside(year, direction)) : easter;
}

std::int32_t YearBeside(std::int32_t year, int direction) { return year + direction; }
std::int32_t YearBesideWithout0(std::int32_t year, int direction) {
    return year + direction == 0 ? direction : year + direction;
}

}  // namespace

FixedDay GregorianPaschalMoon(std::int32_t year) {
    const std::int64_t century = FloorDivide(year, 100) + 1;
    const std::int64_t golden = FloorModulo(year, yearsOfCycle);
    const std::int64_t epact =
        FloorModulo(14 + 11 * golden - FloorDivide(3 * century, 4) + FloorDivide(8 * century + 5, 25), daysOfEpacts);
    const bool shifted = epact == 0 || (epact == 1 && golden > 10);
    return GregorianToFixed(year, 4, 19) - static_cast<double>(shifted ? epact + 1 : epact);
}

FixedDay AstronomicalPaschalMoon(std::int32_t year) {
    static Memo<8, YearKey, FixedDay> memo;
    return memo.Of({year, NumberingSerial, DeltaTSerial}, [year] { return FindAstronomicalPaschalMoon(year); });
}

FixedDay EasterSunday(std::int32_t year, bool forceUniform) {
    const bool uniform = forceUniform || easter::options.UniformEaster;
    return SundayAfter(uniform ? AstronomicalPaschalMoon(year) : GregorianPaschalMoon(year));
}

FixedDay OrthodoxEaster(std::int32_t year) {
    if (easter::options.UniformEaster) return SundayAfter(AstronomicalPaschalMoon(WithYear0(year)));
    const std::int64_t golden = FloorModulo(year < 1 ? std::int64_t{year} + 1 : year, yearsOfCycle);
    const std::int64_t epact = FloorModulo(14 + 11 * golden, daysOfEpacts);
    return SundayAfter(JulianToFixed(year, 4, 19, false) - static_cast<double>(epact));
}

FixedDay AltOrthodoxEaster(std::int32_t year) {
    if (easter::options.UniformEaster) return SundayAfter(AstronomicalPaschalMoon(year));
    const std::int64_t y = year;
    const std::int64_t days =
        354 * y + 30 * FloorDivide(7 * y + 8, yearsOfCycle) + FloorDivide(y, 4) - FloorDivide(y, yearsOfCycle) - 273;
    return SundayAfter(GregorianEpoch + static_cast<double>(days));
}

namespace {

struct MovableDay {
    int fromEaster;
    std::string_view name;
    DayKind kind = DayKind::None;    ///< Of the Western day.
    bool isWestern = false;          ///< No other church keeps it.
    std::string_view sinceUSA = "";  ///< What is said behind the name since there are United States.
};

constexpr MovableDay movableDays[] = {
    {-63, "Septuagesima Sunday"},
    {-56, "Sexagesima Sunday"},
    {-49, "Shrove Sunday"},
    {-48, "Shrove Monday"},
    {-47, "Shrove Tuesday / Mardi Gras"},
    {-46, "Ash Wednesday"},
    {-42, "Feast of Orthodoxy"},
    {-21, "UK Mothering Sunday", DayKind::None, true},
    {-14, "Passion Sunday"},
    {-7, "Palm Sunday"},
    {-3, "Holy Thursday"},
    {-2, "Good Friday", DayKind::Church},
    {-1, "Holy Saturday"},
    {0, "Easter", DayKind::Church},
    {1, "Easter Monday", DayKind::Church},
    {35, "Rogation Sunday"},
    {39, "Ascension Day"},
    {49, "Pentecost / Whitsunday"},
    {50, "Whitmundy"},
    {56, "Trinity Sunday"},
    {60, "Corpus Christi", DayKind::None, false, " (not USA Catholics)"},
    {63, "Corpus Christi", DayKind::None, false, " (USA Catholics)"},
};

constexpr Epoch independenceOfUSA{648490};  // July 4, 1776

const MovableDay* FindMovableDay(double fromEaster, bool isOrthodox) {
    const auto* found = std::ranges::find_if(movableDays, [&](const MovableDay& day) {
        return day.fromEaster == fromEaster && !(isOrthodox && day.isWestern);
    });
    return found == std::end(movableDays) ? nullptr : found;
}

std::string NameOf(const MovableDay& day, Moment moment) {
    return std::string(day.name) + std::string(moment >= independenceOfUSA ? day.sinceUSA : "");
}

}  // namespace

std::string MovableChristianHoliday(Moment moment, FixedDay easter, bool isOrthodox, bool isUniform) {
    const MovableDay* day = FindMovableDay(Floor(moment - easter), isOrthodox);
    if (day == nullptr) return "";
    const bool uniform = isUniform || easter::options.UniformEaster;
    return (uniform ? "Uniform " : isOrthodox ? "Orthodox " : "") + NameOf(*day, moment);
}

DayText WesternMovableDay(FixedDay day, FixedDay easter, std::string_view prefix) {
    const MovableDay* found = FindMovableDay(day - easter, false);
    if (found == nullptr) return {};
    return {std::string(prefix) + NameOf(*found, day), found->kind};
}

Moment JumpEaster(Moment from, int direction) {
    const auto easterOf = [](std::int32_t year) { return EasterSunday(year, false); };
    return JumpTo(easterOf, YearBeside, FixedToGregorianYear(from), from, direction);
}

Moment JumpUniformEaster(Moment from, int direction) {
    const auto easterOf = [](std::int32_t year) { return EasterSunday(year, true); };
    return JumpTo(easterOf, YearBeside, FixedToGregorianYear(from), from, direction);
}

Moment JumpOrthoEaster(Moment from, int direction) {
    return JumpTo(OrthodoxEaster, YearBesideWithout0, FixedToJulianDate(from, true).year, from, direction);
}

namespace quartane {
namespace {

/// Months from the first of 1999's spring to that of a year, 4366 in 353 years.
double QuaElapsedMonths353(std::int32_t year) { return Floor(((year - 1999.0) * 4366 - 4011) / 353) + 2; }

}  // namespace

FixedDay QuaPaschalMoon(std::int32_t year) {
    const double meanLunation = Rule().MeanLunation;
    if (meanLunation == 0) return AstronomicalPaschalMoon(year);
    if (options.LeapRuleKey.starts_with("ISO")) return GregorianPaschalMoon(year);
    constexpr double meanNewMoon = 5.096215277777778;  // days after J2000, in universal time
    constexpr double jerusalemHours = 2;
    constexpr double jerusalemMinutes = 21;
    return Floor(J2000 + meanNewMoon + jerusalemHours / 24 + jerusalemMinutes / 1440 +
                 QuaElapsedMonths353(year) * meanLunation + 0.5) +
           14;
}

FixedDay QuaEaster(std::int32_t year) { return SundayAfter(QuaPaschalMoon(year)); }

FixedDay FixedEaster(std::int32_t year) {
    const auto day = static_cast<std::int32_t>(10 - FloorModulo(options.StartWeekday + 2, 7));
    return QuaToFixed(year, 4, day);
}

Moment JumpFixedEaster(Moment from, int direction) {
    return JumpTo(FixedEaster, YearBeside, FixedToQuaYear(from).year, from, direction);
}

}  // namespace quartane

}  // namespace horvanta
