#include "calendars/oriental.h"

#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "core/memo.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace horvanta::oriental {
namespace {

struct ZoneSpan {
    double firstDay;  ///< From the Gregorian epoch.
    double hours;
};

constexpr double sinceEver = -std::numeric_limits<double>::infinity();

// Before there were zones, the mean times of Beijing, of Kyoto, and of Seoul.
constexpr ZoneSpan chineseZones[] = {{sinceEver, 1397.0 / 180}, {704227, 8}};
constexpr ZoneSpan japaneseZones[] = {{sinceEver, 9.317777777777778}, {689254, 9}};
constexpr ZoneSpan koreanZones[] = {
    {sinceEver, 8.464444444444444}, {696607, 8.5}, {697977, 9}, {713397, 8.5}, {716096, 9}};
constexpr ZoneSpan vietnameseZones[] = {{sinceEver, 1397.0 / 180}, {704227, 8}, {718431, 7}};

/// A calendar as a row.
struct VariantRow {
    std::span<const ZoneSpan> zones;
    bool choosesEra;  ///< Its years are counted from the era that is chosen, otherwise from `yearEpoch`.
    Epoch yearEpoch;
};

constexpr Epoch usualEpoch{-985012};

constexpr VariantRow variants[] = {
    {chineseZones, true, usualEpoch},
    {japaneseZones, false, {-241019}},
    {koreanZones, false, {-852066}},
    {vietnameseZones, true, usualEpoch},
};

const VariantRow& Present() { return variants[options.OrientVariant]; }

/// A beginning of the count. The cycles begin with it or with the usual one.
struct Era {
    std::int32_t year;
    Epoch yearEpoch;
    Epoch cycleEpoch;
};

constexpr Era usualEra{-2697, usualEpoch, usualEpoch};
constexpr Era eras[] = {{-2637, {-963100}, {-963100}}, {-2698, {-985396}, usualEpoch}};

Era PresentEra() {
    if (!Present().choosesEra) return {0, Present().yearEpoch, usualEpoch};
    const auto* found = std::ranges::find(eras, options.OrientEpochYear, &Era::year);
    return found == std::end(eras) ? usualEra : *found;
}

}  // namespace

FixedDay OrientEpoch() { return PresentEra().cycleEpoch; }
FixedDay OrientYearEpoch() { return PresentEra().yearEpoch; }

double OrientZone(Moment x) {
    const double day = x - GregorianEpoch;
    const auto& zones = Present().zones;
    const auto later = std::ranges::find_if(zones, [day](const ZoneSpan& span) { return day < span.firstDay; });
    return std::prev(later)->hours;
}

Moment OrientUniversal(Moment standardTime) { return standardTime - OrientZone(standardTime) / 24; }
Moment OrientStandard(Moment universal) { return universal + OrientZone(universal) / 24; }
Moment OrientMidnight(Moment day) { return OrientUniversal(Floor(day)); }
double MidnightLongitude(FixedDay day) { return SolarLongitude(OrientMidnight(day)); }

namespace {

Moment TermOnOrAfter(FixedDay day, double first) {
    const double terms = Ceiling((MidnightLongitude(day) - first) / DegreesOfTerm);
    return OrientLongitudeOnOrAfter(day, Modulo(DegreesOfTerm * terms + first, 360));
}

}  // namespace

std::int32_t TermAt(double longitude, double first) {
    return WholeNumber(AdjustedModulo(1 + Floor((longitude - first) / DegreesOfTerm), 12));
}

std::int32_t MajorSolarTerm(FixedDay day) { return TermAt(MidnightLongitude(day), FirstMajorTerm); }
std::int32_t MinorSolarTerm(FixedDay day) { return TermAt(MidnightLongitude(day), FirstMinorTerm); }

Moment OrientLongitudeOnOrAfter(FixedDay day, double degrees) {
    return OrientStandard(SolarLongitudeAfter(OrientMidnight(day), degrees));
}

Moment MajorSolarTermOnOrAfter(FixedDay day) { return TermOnOrAfter(day, FirstMajorTerm); }
Moment MinorSolarTermOnOrAfter(FixedDay day) { return TermOnOrAfter(day, FirstMinorTerm); }

namespace {

// The year from winter solstice to winter solstice, the sui, is what decides the months.

constexpr double winterSolstice = 270;
constexpr Epoch solsticeOf1999{730109.5};     // near it
constexpr std::int64_t farthestSui = 12'000;  // from 1999; no day that can be displayed is farther

/// What everything remembered depends on, and which one it is, counted from 1999.
struct SuiKey {
    std::int64_t index;
    std::int32_t variant;
    std::int64_t numbering;
    std::int64_t deltaT;

    bool operator==(const SuiKey&) const = default;
};

SuiKey KeyOf(std::int64_t index) { return {index, options.OrientVariant, NumberingSerial, DeltaTSerial}; }

/// The day at whose end the Sun is past the solstice and at whose beginning it is not, near a day. About the solstice
/// the Sun goes on by 0.948° to 1.026° a day, as the millennium is: where the days back by a slower and by a faster Sun
/// are the same, they need no second look.
FixedDay FindSolstice(FixedDay day) {
    constexpr double slowest = 0.94;  // degrees
    constexpr double fastest = 1.035;
    constexpr int patience = 50;
    for (int tries = 0; tries < patience; ++tries) {
        const double past = ModuloRange(MidnightLongitude(day + 1) - winterSolstice, -180, 180);
        const double daysBack = Ceiling(past / slowest) - 1;
        day -= daysBack;
        if (daysBack == Ceiling(past / fastest) - 1) return day;
    }
    return day;
}

FixedDay SolsticeOf(std::int64_t index) {
    static Memo<16, SuiKey, FixedDay> memo;
    return memo.Of(KeyOf(index), [index] {
        return FindSolstice(Floor(solsticeOf1999 + static_cast<double>(index) * MeanTropicalYear));
    });
}

/// The day of a new moon, by the number of its lunation.
FixedDay NewMoonDay(std::int64_t lunation) { return Floor(OrientStandard(NthNewMoon(lunation))); }

/// The number of the last lunation that began up to a day.
std::int64_t LunationOn(FixedDay day) {
    constexpr Epoch newMoonOf2000{730124.6};
    const double since2000 = Floor((day - newMoonOf2000) / MeanSynodicMonth);
    auto lunation = WholeNumber<std::int64_t>(since2000) + FirstNewMoonOf2000;
    while (NewMoonDay(lunation) > day) --lunation;
    while (NewMoonDay(lunation + 1) <= day) ++lunation;
    return lunation;
}

/// The months about the days from a winter solstice up to the next.
struct Sui {
    FixedDay solstice = 0;
    FixedDay nextSolstice = 0;
    std::size_t months = 0;             ///< 12 or 13, from one 11th month to the next.
    std::size_t leap = 0;               ///< Which of them, from 0, is a leap month; 0 if none.
    std::array<FixedDay, 15> starts{};  ///< First days from the 11th month on; the next 11th is at `months`, and the
                                        ///< month after that one stands behind it.

    bool isLeap() const { return months == 13; }
    FixedDay NewYear() const { return starts[NewYearPlace()]; }
    std::size_t NewYearPlace() const { return leap == 1 || leap == 2 ? 3 : 2; }

    /// The place of the month of a day that lies in the sui.
    std::size_t PlaceOf(FixedDay day) const {
        std::size_t place = 0;
        while (place < months && starts[place + 1] <= day) ++place;
        return place;
    }

    std::int16_t MonthAt(std::size_t place) const {
        const std::size_t numbered = leap > 0 && place >= leap ? place - 1 : place;
        return static_cast<std::int16_t>((numbered + 10) % 12 + 1);
    }
};

/// The first month that ends under the major term under which it began.
std::size_t FindLeap(const Sui& sui) {
    std::int32_t term = MajorSolarTerm(sui.starts[1]);
    for (std::size_t place = 1; place < sui.months; ++place) {
        const std::int32_t next = MajorSolarTerm(sui.starts[place + 1]);
        if (next == term) return place;
        term = next;
    }
    return 0;
}

Sui MakeSui(std::int64_t index) {
    Sui sui{.solstice = SolsticeOf(index), .nextSolstice = SolsticeOf(index + 1)};
    std::int64_t lunation = LunationOn(sui.solstice);
    std::size_t place = 0;
    do {
        sui.starts[place] = NewMoonDay(lunation++);
    } while (sui.starts[place] <= sui.nextSolstice && ++place < sui.starts.size());
    sui.months = place - 1;
    if (sui.isLeap()) sui.leap = FindLeap(sui);
    return sui;
}

const Sui& SuiOf(std::int64_t index) {
    static Memo<8, SuiKey, Sui> memo;
    return memo.Of(KeyOf(index), [index] { return MakeSui(index); });
}

/// The sui in which a day lies.
std::int64_t SuiIndexOf(FixedDay day) {
    const double suis = Floor((day - solsticeOf1999) / MeanTropicalYear);
    const std::int64_t index = std::clamp(WholeNumber<std::int64_t>(suis), -farthestSui, farthestSui);
    if (day < SolsticeOf(index)) return index - 1;
    return day < SolsticeOf(index + 1) ? index : index + 1;
}

/// The sui in which the year of a day begins.
std::int64_t YearIndexOf(FixedDay day) {
    const std::int64_t index = SuiIndexOf(day);
    return day < SuiOf(index).NewYear() ? index - 1 : index;
}

}  // namespace

FixedDay WinterSolsticeOnOrBefore(FixedDay day) { return SolsticeOf(SuiIndexOf(Floor(day))); }

FixedDay NewYearOnOrBefore(FixedDay day) { return SuiOf(YearIndexOf(Floor(day))).NewYear(); }

namespace {

/// Years of all cycles in one count.
std::int64_t CountOf(std::int32_t cycle, std::int32_t year) { return std::int64_t{60} * cycle + year - 60; }

/// The sui in which the year of a count begins, by the middle of the mean year.
std::int64_t IndexOfYear(std::int64_t count) {
    return YearIndexOf(Floor((static_cast<double>(count) - 0.5) * MeanTropicalYear + OrientEpoch()));
}

/// The year of a month and of the days from an epoch, as near as a year can be.
std::int64_t YearAt(std::int32_t month, double days) {
    return WholeNumber<std::int32_t>(Floor(1.5 - month / 12.0 + days / MeanTropicalYear));
}

/// How far the count of the cycles is ahead of the years shown.
std::int64_t CountLessShown() {
    return WholeNumber<std::int64_t>(Round((OrientYearEpoch() - OrientEpoch()) / MeanTropicalYear));
}

/// The months of the year that begins in a sui, and behind them the first of the next.
std::vector<Month> MonthsOfYear(std::int64_t index) {
    std::vector<Month> months;
    const auto add = [&](const Sui& sui, std::size_t from, std::size_t to) {
        for (std::size_t place = from; place < to; ++place) {
            months.push_back({sui.starts[place], sui.MonthAt(place), place > 0 && place == sui.leap});
        }
    };
    const Sui& sui = SuiOf(index);
    add(sui, sui.NewYearPlace(), sui.months);
    const Sui& next = SuiOf(index + 1);
    add(next, 0, next.NewYearPlace() + 1);
    return months;
}

}  // namespace

FixedDay NewYear(std::int32_t cycle, std::int32_t year, std::int32_t addend) {
    return SuiOf(IndexOfYear(CountOf(cycle, year) + addend)).NewYear();
}

FixedDay OrientToFixed(std::int32_t cycle, std::int32_t year, std::int32_t month, bool isLeapMonth, std::int32_t day) {
    const std::vector<Month> months = MonthsOfYear(IndexOfYear(CountOf(cycle, year)));
    const auto place = static_cast<std::size_t>(std::clamp(month, 1, 12) - 1);
    const Month& found = months[place];
    const bool isIt = found.number == month && found.isLeap == isLeapMonth;
    return (isIt ? found : months[place + 1]).first + day - 1;
}

OrientDate FixedToOrientDate(Moment x) {
    OrientDate date{.fixed = Floor(x)};
    const std::int64_t index = SuiIndexOf(date.fixed);
    const Sui& sui = SuiOf(index);
    const std::size_t place = sui.PlaceOf(date.fixed);
    date.isLeapSui = sui.isLeap();
    date.month = sui.MonthAt(place);
    date.isLeapMonth = place > 0 && place == sui.leap;
    date.day = WholeNumber<std::int16_t>(date.fixed - sui.starts[place] + 1);
    date.monthLength = static_cast<std::int16_t>(sui.starts[place + 1] - sui.starts[place]);
    const bool begun = date.fixed >= sui.NewYear();
    const Sui& other = SuiOf(begun ? index + 1 : index - 1);
    date.newYear = begun ? sui.NewYear() : other.NewYear();
    date.nextNewYear = begun ? other.NewYear() : sui.NewYear();
    const std::size_t placesBefore = begun ? 0 : other.months;
    date.place = static_cast<std::int16_t>(placesBefore + place + 1 - (begun ? sui : other).NewYearPlace());
    date.isLongYear = date.nextNewYear - date.newYear > 365;
    date.gregorianYear = FixedToGregorianYear(date.newYear);
    date.elapsed = date.fixed - OrientEpoch();
    const std::int64_t count = YearAt(date.month, date.elapsed);
    date.cycle = static_cast<std::int32_t>(FloorDivide(count - 1, 60) + 1);
    date.year = static_cast<std::int32_t>(FloorModulo(count - 1, 60) + 1);
    date.shownYear = static_cast<std::int32_t>(YearAt(date.month, date.fixed - OrientYearEpoch()));
    date.weekday = DayOfWeek(date.fixed);
    date.sexagesimal = WholeNumber<std::int16_t>(AdjustedModulo(date.fixed - GregorianEpoch + 16, 60));
    return date;
}

const OrientDate& OrientDateOn(Moment x) {
    return DateOn<FixedToOrientDate>(x, DeltaTSerial, options.OrientVariant, options.OrientEpochYear);
}

Moment JumpNewYear(Moment from, int direction) {
    const std::int64_t index = YearIndexOf(Floor(from));
    const FixedDay newYear = SuiOf(index).NewYear();
    return direction * from < direction * newYear ? newYear : SuiOf(index + direction).NewYear();
}

std::int32_t KoreanYear(std::int32_t cycle, std::int32_t year) { return 60 * cycle + year - 424; }

std::string_view MarriageAugury(std::int32_t cycle, std::int32_t year) {
    const bool beginsLate = MinorSolarTerm(NewYear(cycle, year)) == 1;
    const bool endsEarly = MinorSolarTerm(NewYear(cycle, year, 1)) == 12;
    if (beginsLate) return endsEarly ? "widow" : "blind";
    return endsEarly ? "bright" : "double bright";
}

std::vector<Month> MonthsOfShownYear(std::int32_t year) { return MonthsOfYear(IndexOfYear(year + CountLessShown())); }

}  // namespace horvanta::oriental
