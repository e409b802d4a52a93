#include "calendars/persian.h"

#include "astro/local_time.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "core/memo.h"
#include "core/text.h"
#include "locale/presets.h"

#include <algorithm>

namespace horvanta {
namespace {

/// Years counted on without a gap, 0 for year 1. With 64 bits, so that the last year of 32 bits has a next one.
using YearIndex = std::int64_t;

constexpr double meanYear = 365.2423611111111;  // days; only a search begins by it
constexpr std::int32_t farthestYear = 2'000'000'000;

constexpr YearIndex IndexOf(YearIndex year) { return year > 0 ? year - 1 : year; }
constexpr std::int32_t YearOf(YearIndex index) { return static_cast<std::int32_t>(index >= 0 ? index + 1 : index); }

/// Degrees of the Sun past the equinox at apparent noon on Iran's meridian; less than 0 in the last sixth of the
/// circle.
double DegreesPastAtNoon(FixedDay day) {
    const LocaleRecord& tehran = TehranMeridian();
    const double longitude = SolarLongitude(StandardToUniversal(SolarMidday(day, tehran), tehran));
    return longitude > 300 ? longitude - 360 : longitude;
}

/// The first day with the equinox behind its noon. At the equinox the Sun goes on by 0.948° to 1.026° from noon to
/// noon, as the millennium is: where the days back by a slower and by a faster Sun are the same, they need no second
/// look.
FixedDay FindNorouz(YearIndex index) {
    constexpr double slowest = 0.94;  // degrees
    constexpr double fastest = 1.035;
    constexpr int patience = 50;
    FixedDay day = Floor(static_cast<double>(index) * meanYear + PersianEpoch);
    for (int tries = 0; tries < patience; ++tries) {
        const double past = DegreesPastAtNoon(day);
        const double daysBack = Floor(past / slowest);
        day -= daysBack;
        if (daysBack == Floor(past / fastest)) return day;
    }
    return NeverMoment;
}

struct NewYearKey {
    YearIndex index;
    std::int64_t numbering;
    std::int64_t deltaT;

    bool operator==(const NewYearKey&) const = default;
};

/// Remembers as many years as the searches and the windows ask for by turns.
FixedDay NewYearOf(YearIndex index) {
    static Memo<16, NewYearKey, FixedDay> memo;
    return memo.Of({index, NumberingSerial, DeltaTSerial}, [index] { return FindNorouz(index); });
}

/// A year's index, its first day and that of the next one.
struct YearBounds {
    YearIndex index;
    FixedDay first;
    FixedDay next;
};

/// The mean year leads to the year itself or to one beside it.
YearBounds BoundsAround(FixedDay day) {
    const double years = Floor((day - PersianEpoch) / meanYear);
    const YearIndex index = std::clamp(WholeNumber(years), -farthestYear, farthestYear);
    const FixedDay first = NewYearOf(index);
    if (first > day) return {index - 1, NewYearOf(index - 1), first};
    const FixedDay next = NewYearOf(index + 1);
    if (next > day) return {index, first, next};
    return {index + 1, next, NewYearOf(index + 2)};
}

constexpr int daysOfLongMonths = 6 * 31;

/// Six months of 31 days and then months of 30.
constexpr int MonthOf(int yearDay) { return yearDay <= daysOfLongMonths ? (yearDay + 30) / 31 : (yearDay + 23) / 30; }
constexpr double DaysBeforeMonth(double month) { return month <= 7 ? 31 * (month - 1) : 30 * (month - 1) + 6; }
constexpr int MonthLength(int month, bool isLeap) { return month <= 6 ? 31 : month == 12 && !isLeap ? 29 : 30; }

}  // namespace

FixedDay persian::Norouz(std::int32_t year) { return NewYearOf(IndexOf(year)); }

bool persian::isLeapYear(std::int32_t year) {
    return NewYearOf(IndexOf(YearIndex{year} + 1)) - NewYearOf(IndexOf(year)) > 365;
}

std::int32_t FixedToPersianYear(Moment x) { return YearOf(BoundsAround(Floor(x)).index); }

std::int32_t PersianWeekdayNum(Moment x) { return WholeNumber(Modulo(Floor(x) - PersianEpoch - 1, 7)); }

FixedDay PersianToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return persian::Norouz(year) - 1 + DaysBeforeMonth(month) + day;
}

PersianDate FixedToPersianDate(Moment x) {
    const FixedDay fixed = Floor(x);
    const auto [index, first, next] = BoundsAround(fixed);
    const bool isLeap = next - first > 365;
    const int yearDay = std::clamp(WholeNumber(fixed - first + 1), 1, 366);
    const int month = MonthOf(yearDay);
    const int before = static_cast<int>(DaysBeforeMonth(month));
    return {.fixed = fixed,
            .newYear = first,
            .nextNewYear = next,
            .isLeap = isLeap,
            .yearDay = static_cast<std::int16_t>(yearDay),
            .weekOfYear = static_cast<std::int16_t>((yearDay + 6) / 7),
            .year = YearOf(index),
            .month = static_cast<std::int16_t>(month),
            .day = static_cast<std::int16_t>(yearDay - before),
            .daysBeforeMonth = static_cast<std::int16_t>(before),
            .monthLength = static_cast<std::int16_t>(MonthLength(month, isLeap)),
            .weekday = PersianWeekdayNum(fixed)};
}

std::string PersianDateString(const PersianDate& date) {
    const auto month = static_cast<std::size_t>(date.month - 1);
    return std::to_string(date.day) + " " + std::string(PersianMonthNames[month]) + " " + std::to_string(date.year) +
           (date.year >= 1 ? " PE" : " BPE");
}

Moment PersianEquinoxOn(FixedDay day) {
    const Moment equinox = UniversalToStandard(SolarLongitudeAfter(day - 10, 0), TehranMeridian());
    return Floor(equinox) == day ? equinox : NeverMoment;
}

namespace {

struct YearlyEvent {
    int month;
    int day;
    std::string_view text;
};

constexpr YearlyEvent yearlyEvents[] = {
    {1, 1, "Norouz (new year)"},
    {1, 13, "Sizdah Bedar (nature day)"},
    {1, 19, "Farvardingân (memorial day)"},
    {4, 13, "Tiregân (pray for rain)"},
    {7, 10, "Mehregân (thanksgiving)"},
    {9, 30, "Yalda (winter solstice, longest night)"},
    {11, 10, "Sadeh (fire festival)"},
    {11, 29, "Sepandar Mazgân (ladies' day)"},
};

std::string FirstOfMonthText(const PersianDate& date) {
    if (date.day != 1 || date.month == 1) return "";
    return "First day of " + std::string(PersianMonthNames[static_cast<std::size_t>(date.month - 1)]);
}

std::string_view YearlyText(const PersianDate& date) {
    const auto* found = std::ranges::find_if(
        yearlyEvents, [&](const YearlyEvent& event) { return event.month == date.month && event.day == date.day; });
    return found == std::end(yearlyEvents) ? "" : found->text;
}

/// The day before the year's last Wednesday.
std::string_view EveOfLastWednesdayText(const PersianDate& date) {
    constexpr int tuesday = 3;    // of a week from Saturday
    constexpr int wednesday = 3;  // of a week from Sunday
    const bool isEve = date.month == 12 && date.weekday == tuesday &&
                       CountKDaysInRange(wednesday, date.fixed, date.nextNewYear - 1) == 1;
    return isEve ? "Eve of Charshanbe Suri" : "";
}

/// Only the first and the last day of a year can have the equinox.
std::string EquinoxText(const PersianDate& date) {
    if (date.fixed != date.newYear && date.fixed != date.nextNewYear - 1) return "";
    const Moment equinox = PersianEquinoxOn(date.fixed);
    if (isNever(equinox)) return "";
    return "Tahvil-e sâl (spring equinox) at " + FormatTime(equinox, 2) + " Iran Standard Time";
}

}  // namespace

std::vector<std::string> EventsOf(const PersianDate& date) {
    std::vector<std::string> events{FirstOfMonthText(date), std::string(YearlyText(date)),
                                    std::string(EveOfLastWednesdayText(date)), EquinoxText(date)};
    std::erase(events, "");
    return events;
}

namespace {

GridDate PersianGridDate(Moment x) {
    const PersianDate& date = DateOn<FixedToPersianDate>(x, DeltaTSerial);
    return {date.year, date.month, date.day, date.monthLength,
            static_cast<std::int16_t>(PersianWeekdayNum(date.fixed - date.day + 1))};
}

}  // namespace

constinit const CalendarContract PersianCalendar{
    .name = "Persian",
    .ToFixed = PersianToFixed,
    .DateOf = PersianGridDate,
    .MonthNames = [](std::int32_t) { return Texts(PersianMonthNames); },
    .DayNames = [] { return WeekFrom(0, PersianWeekdayNames, ShortPersianWeekdayNames); },
    .HasYear0 = HasNoYear0};

}  // namespace horvanta
