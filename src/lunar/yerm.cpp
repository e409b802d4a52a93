#include "lunar/yerm.h"

#include "astro/lunar_phases.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "core/memo.h"
#include "core/text.h"
#include "hebrew/molad.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace horvanta {
namespace {

using Count = std::int64_t;

/// The lengths of yerms in one unit, a short one, three together, and a long one.
struct YermLengths {
    Count brief;
    Count three;
    Count full;
};
constexpr YermLengths inDays{443, 1447, 502};
constexpr YermLengths inMonths{15, 49, 17};

struct YermPlace {
    Count yerm;
    Count rest;  ///< Units of the yerm that have passed.
};

YermPlace PlaceInEra(Count passed, bool hasYermZero, const YermLengths& lengths) {
    if (hasYermZero && passed < lengths.brief) return {0, passed};
    if (hasYermZero) passed -= lengths.brief;
    const Count inThree = passed % lengths.three;
    return {passed / lengths.three * 3 + inThree / lengths.full + 1, inThree % lengths.full};
}

/// Units of the era before a yerm.
Count BeforeYerm(Count yerm, bool hasYermZero, const YermLengths& lengths) {
    const Count ofThree = (yerm - 1) % 3;
    return (yerm - 1) / 3 * lengths.three + (hasYermZero ? lengths.brief : 0) +
           (ofThree < 0 ? -lengths.brief : ofThree * lengths.full);
}

/// Days of a yerm before a month, from 0.
constexpr Count DaysBeforeMonth(Count month) { return month / 2 * 59 + month % 2 * 30; }

/// The start of the day that a moment falls in.
Moment DayStart(Moment x) {
    const Moment epoch = PresentYermForm().EpochFixed;
    return epoch + Floor(x - epoch);
}

std::int16_t Short(Count n) { return WholeNumber<std::int16_t>(static_cast<double>(n)); }

YermDate DateInEra(const YermEra& era, const YermPlace& place, Count month, Count day) {
    const Count months = BeforeYerm(place.yerm, era.HasYermZero, inMonths) + month;
    const double partOfMonth = static_cast<double>(day) / DaysInYermMonth(static_cast<std::int32_t>(month + 1));
    const Count days = BeforeYerm(place.yerm, era.HasYermZero, inDays) + DaysBeforeMonth(month) + day;
    return {.EraNumber = WholeNumber<std::int16_t>(era.EraNumber),
            .Yerm = Short(place.yerm),
            .Month = Short(month + 1),
            .Day = Short(day + 1),
            .Fixed = era.EraStart + static_cast<double>(days),
            .Lunation = era.LunationStart + static_cast<double>(months) + partOfMonth,
            .EraStart = era.EraStart,
            .EraEnd = era.EraEnd};
}

bool isDate(const std::optional<YermDate>& date, std::int32_t era, std::int32_t yerm, std::int32_t month,
            std::int32_t day) {
    return date && date->EraNumber == era && date->Yerm == yerm && date->Month == month && date->Day == day;
}

/// Months before a date in its era.
Count MonthsBefore(const YermEra& era, std::int32_t yerm, std::int32_t month) {
    return BeforeYerm(yerm, era.HasYermZero, inMonths) + month - 1;
}

}  // namespace

std::optional<YermDate> FixedToYermDate(Moment x) {
    constexpr double farthest = 1e12;  // days
    const Moment within = x > -farthest ? std::min(x, farthest) : -farthest;
    const auto era = YermEraLookup(within, YermKey::Day);
    if (!era) return std::nullopt;
    const YermPlace place = PlaceInEra(WholeNumber<Count>(Floor(within - era->EraStart)), era->HasYermZero, inDays);
    const Count inPair = place.rest % 59;
    return DateInEra(*era, place, place.rest / 59 * 2 + inPair / 30, inPair % 30);
}

std::optional<YermDate> LunationToYermDate(double lunation) {
    const auto era = YermEraLookup(lunation, YermKey::Lunation);
    if (!era) return std::nullopt;
    const double whole = Floor(lunation);
    const YermPlace place = PlaceInEra(WholeNumber<Count>(whole - era->LunationStart), era->HasYermZero, inMonths);
    const std::int32_t length = DaysInYermMonth(static_cast<std::int32_t>(place.rest + 1));
    return DateInEra(*era, place, place.rest, WholeNumber<Count>(Round((lunation - whole) * length)));
}

FixedDay YermDateToFixed(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day) {
    const auto found = YermEraLookup(era, YermKey::Number);
    if (!found) return NeverMoment;
    const Count days = BeforeYerm(yerm, found->HasYermZero, inDays) + DaysBeforeMonth(Count{month} - 1) + day - 1;
    return found->EraStart + static_cast<double>(days);
}

double YermDateToLunation(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day) {
    const auto found = YermEraLookup(era, YermKey::Number);
    if (!found) return NeverMoment;
    return found->LunationStart + static_cast<double>(MonthsBefore(*found, yerm, month)) +
           (day - 1.0) / DaysInYermMonth(month);
}

std::string FixedToYermString(Moment x) {
    const auto date = FixedToYermDate(x);
    if (!date) return "–";
    return std::to_string(date->EraNumber) + "+" + std::to_string(date->Yerm) + "(" + std::to_string(date->Month) +
           "(" + std::to_string(date->Day);
}

bool FixedHasValidYermDate(Moment x) {
    const auto date = FixedToYermDate(x);
    if (!date) return false;
    const auto era = YermEraLookup(x, YermKey::Day);
    const std::int32_t lastYerm = era->EraYerms - (era->HasYermZero ? 1 : 0);
    return date->Yerm <= lastYerm &&
           YermDateToFixed(date->EraNumber, date->Yerm, date->Month, date->Day) == DayStart(x);
}

bool IsValidYermDate(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day) {
    const FixedDay fixed = YermDateToFixed(era, yerm, month, day);
    return !isNever(fixed) && isDate(FixedToYermDate(fixed), era, yerm, month, day);
}

bool IsValidYermLunation(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day) {
    const double lunation = YermDateToLunation(era, yerm, month, day);
    return !isNever(lunation) && isDate(LunationToYermDate(lunation), era, yerm, month, day);
}

FixedDay LunationEraToFixed(double lunation) {
    const auto date = LunationToYermDate(Floor(lunation));
    return date ? date->Fixed : NeverMoment;
}

std::optional<FixedDay> VarnokLunationToFixed(double lunation) {
    const auto era = YermEraLookup(lunation, YermKey::Lunation);
    if (!era) return std::nullopt;
    const auto [daysOfZero, monthsOfZero] = era->HasYermZero ? std::pair(443, 15) : std::pair(0, 0);
    return era->EraStart + daysOfZero + Floor((1447 * (lunation - era->LunationStart - monthsOfZero) + 23) / 49);
}

FixedDay HebrewLunationEraToFixed(double hebrewLunation) {
    return LunationEraToFixed(hebrewLunation - HebrewLunationOfJ2000);
}

/// The fixed cycle loses a 49th of a day on its subcycles with each cycle.
FixedDay HCEMtoFixed(double hebrewLunation) {
    if (PresentYermForm().Progressive) {
        const FixedDay listed = HebrewLunationEraToFixed(hebrewLunation);
        if (!isNever(listed)) return listed;
    }
    constexpr double firstOfCycle0 = HebrewLunationOfJ2000 - 17889;
    constexpr double monthsOfCycle = 850;
    const double cycle = Quotient(hebrewLunation - firstOfCycle0, monthsOfCycle);
    return Floor((1447 * hebrewLunation + 257568 - cycle) / 49) + HebrewEpoch - 5256;
}

namespace {

/// Hours that the description of a list says it is shifted by, as in "n+2".
double HoursInDescription(const std::string& description) {
    const std::size_t mark = description.find("n+");
    if (mark == std::string::npos) return 0;
    return ParseLeadingNumber(std::string_view(description).substr(mark + 2)).value_or(0);
}

double FindBias() {
    const YermForm& form = PresentYermForm();
    return YermDateToFixed(1, 1, 1, 1) - MeanNewMoonUT(YermDateToLunation(1, 1, 1, 1)) - form.DayOffsetUnits / 1296000 -
           HoursInDescription(form.EraDescription) / 24;
}

/// Days from the mean new moon to the calendar's first month.
double Bias() {
    struct Key {
        std::int64_t form;
        std::int64_t numbering;
        std::int64_t deltaT;

        bool operator==(const Key&) const = default;
    };
    static Memo<1, Key, double> memo;
    return memo.Of({YermSerial(), NumberingSerial, DeltaTSerial}, FindBias);
}

}  // namespace

Moment LunationEraToMoment(double lunation) {
    const auto era = YermEraLookup(lunation, YermKey::Lunation);
    if (!era) return NeverMoment;
    const double months = lunation - era->LunationStart;
    return era->EraStart + 29 * months + era->N30() * months / era->EraMonths - Bias();
}

namespace {

double DaysOfYerm(std::int32_t yerm) { return static_cast<double>(yerm % 3 == 0 ? inDays.brief : inDays.full); }

/// Days of the yerm before the one of a date; nothing before the first of all. Every era ends with a long one.
std::optional<double> DaysOfPreviousYerm(const YermEra& era, std::int32_t yerm) {
    const std::int32_t first = era.HasYermZero ? 0 : 1;
    if (yerm > first) return DaysOfYerm(yerm - 1);
    if (!YermEraLookup(era.EraNumber - 1, YermKey::Number)) return std::nullopt;
    return static_cast<double>(inDays.full);
}

}  // namespace

Moment JumpYerm(Moment from, int direction) {
    const auto date = FixedToYermDate(from);
    if (!date) return NeverMoment;
    const auto days = direction > 0 ? std::optional(DaysOfYerm(date->Yerm))
                                    : DaysOfPreviousYerm(*YermEraLookup(from, YermKey::Day), date->Yerm);
    if (!days) return NeverMoment;
    const Moment moved = from + direction * *days;
    return PresentYermForm().Progressive ? Ceiling(DayStart(moved)) : moved;
}

Moment JumpYermEra(Moment from, int direction) {
    const auto era = YermEraLookup(from, YermKey::Day);
    if (!era) return NeverMoment;
    const auto other = YermEraLookup(era->EraNumber + direction, YermKey::Number);
    return other ? from + (other->EraStart - era->EraStart) : NeverMoment;
}

namespace {

/// A yerm counted on from the first of all as 1.
struct CountedYerm {
    std::int32_t era;
    std::int32_t yerm;
};

std::optional<CountedYerm> YermOfCount(std::int32_t count) {
    const auto era = YermEraLookup(count - 1.0, YermKey::Yerm);
    if (!era) return std::nullopt;
    const double inEra = count - 1.0 - era->YermsBefore;
    return CountedYerm{era->EraNumber, WholeNumber(inEra + (era->HasYermZero ? 0 : 1))};
}

FixedDay GridToFixed(std::int32_t count, std::int32_t month, std::int32_t day) {
    const auto yerm = YermOfCount(count);
    return yerm ? Ceiling(YermDateToFixed(yerm->era, yerm->yerm, month, day)) : NeverMoment;
}

/// Of the midnight that begins the moment's day.
GridDate YermGridDate(Moment x) {
    const auto date = FixedToYermDate(Floor(x));
    if (!date) return {};
    const auto era = *YermEraLookup(Floor(x), YermKey::Day);
    const double count = era.YermsBefore + date->Yerm + (era.HasYermZero ? 1 : 0);
    return {.year = WholeNumber(count),
            .month = date->Month,
            .day = date->Day,
            .monthLength = static_cast<std::int16_t>(DaysInYermMonth(date->Month)),
            .firstWeekday = static_cast<std::int16_t>(DayOfWeek(Ceiling(date->Fixed) - date->Day + 1))};
}

std::vector<std::string> YermMonths(std::int32_t count) {
    const auto [era, yerm] = YermOfCount(count).value_or(CountedYerm{});
    std::vector<std::string> names;
    for (std::int32_t month = 1; month <= MonthsInYerm(yerm); ++month) {
        names.push_back("Yerm " + std::to_string(yerm) + ", month " + std::to_string(month));
    }
    return names;
}

NamesOfDays YermDays() { return GregorianCalendar.DayNames(); }

}  // namespace

constinit const CalendarContract YermCalendar{"Yerm Lunar", GridToFixed, YermGridDate, YermMonths, YermDays};

}  // namespace horvanta
