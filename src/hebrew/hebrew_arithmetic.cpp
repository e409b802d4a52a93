#include "hebrew/hebrew_arithmetic.h"

#include "core/memo.h"
#include "hebrew/hebrew_modes.h"
#include "hebrew/molad.h"

#include <algorithm>
#include <array>
#include <utility>

namespace horvanta {
namespace {

using Days = std::int64_t;

constexpr Days tishrei = 7;
constexpr Days partsPerDay = 25920;
constexpr Days partsPerMonth = 29 * partsPerDay + 13753;

/// The first molad, counted from the noon before `HebrewEpoch`: a molad from noon on belongs to the next day.
constexpr Days partsOfFirstMolad = 12084;

// Whole days, months and years need no doubles: their quotients lie on an integer or at least 1/25920 beside it, so
// that integer division gives the dates of `Floor`, faster. Days count from `HebrewEpoch`; years have 64 bits, so that
// those before the first and after the last of 32 bits have their days too.

bool isLeap(Days year) { return FloorModulo(7 * year + 1 + hebrew::options.CycleShift, 19) < 7; }

Days MonthsBeforeTishrei(Days year) { return FloorDivide(235 * year - 234 + hebrew::options.CycleShift, 19); }

/// The year whose Tishrei falls in the same spring-to-winter round as the month.
constexpr Days YearOfTishrei(std::int32_t year, std::int32_t month) { return month < tishrei ? Days{year} + 1 : year; }

Days ElapsedDaysOf(Days year) {
    const Days days = FloorDivide(MonthsBeforeTishrei(year) * partsPerMonth + partsOfFirstMolad, partsPerDay);
    return days + (FloorModulo(3 * (days + 1), 7) < 3);  // not on a Sunday, Wednesday or Friday
}

/// The first day of a year, from the elapsed days of the year before, itself and the year after. No year may have 356
/// days, nor a leap year 382.
constexpr Days NewYearOf(Days before, Days elapsed, Days after) {
    if (after - elapsed == 356) return elapsed + 2;
    return elapsed - before == 382 ? elapsed + 1 : elapsed;
}

Days NewYearOf(Days year) { return NewYearOf(ElapsedDaysOf(year - 1), ElapsedDaysOf(year), ElapsedDaysOf(year + 1)); }

struct YearSpan {
    Days start;
    Days length;  ///< 353 to 355, or 383 to 385.

    Days months() const { return length > 355 ? 13 : 12; }
};

YearSpan SpanOf(Days year) {
    const Days elapsed = ElapsedDaysOf(year);
    const Days after = ElapsedDaysOf(year + 1);
    const Days start = NewYearOf(ElapsedDaysOf(year - 1), elapsed, after);
    return {start, NewYearOf(elapsed, after, ElapsedDaysOf(year + 2)) - start};
}

using MonthStarts = std::array<std::int16_t, 14>;

/// Days of a year before each month from Tishrei on, and before the next year.
constexpr MonthStarts monthStarts[] = {
    {0, 30, 59, 88, 117, 147, 176, 206, 235, 265, 294, 324, 353},       // deficient
    {0, 30, 59, 89, 118, 148, 177, 207, 236, 266, 295, 325, 354},       // normal
    {0, 30, 60, 90, 119, 149, 178, 208, 237, 267, 296, 326, 355},       // perfect
    {0, 30, 59, 88, 117, 147, 177, 206, 236, 265, 295, 324, 354, 383},  // deficient leap
    {0, 30, 59, 89, 118, 148, 178, 207, 237, 266, 296, 325, 355, 384},  // normal leap
    {0, 30, 60, 90, 119, 149, 179, 208, 238, 267, 297, 326, 356, 385},  // perfect leap
};

const MonthStarts& StartsOf(const YearSpan& year) {
    return monthStarts[year.months() == 12 ? year.length - 353 : year.length - 380];
}

/// The days of a year before a month. What would follow month 12 of a common year is a month 13 of 29 days, and
/// after 13 all months have 30.
Days DaysBeforeMonth(const YearSpan& year, Days month) {
    const MonthStarts& starts = StartsOf(year);
    const auto start = [&](Days place) -> Days { return starts[static_cast<std::size_t>(place)]; };
    if (month < tishrei) return start(std::max<Days>(month, 1) + year.months() - tishrei);
    if (month <= 13) return start(month - tishrei);
    return start(6) + 29 + 30 * (month - 14);
}

/// Days since `HebrewEpoch`, held within the years of 32 bits.
Days DaysSinceEpoch(Moment x) {
    constexpr double limit = 784'000'000'000;
    const double days = Floor(x) - HebrewEpoch;
    if (!(days < limit)) return static_cast<Days>(limit);
    return days > -limit ? static_cast<Days>(days) : static_cast<Days>(-limit);
}

struct DayOfYear {
    Days year;
    YearSpan span;
    Days prior;  ///< Days of the year before this one.
};

/// The last molad whose day is not after this one belongs to the last Tishrei that may have begun; only in the two
/// days of a postponement it has not.
DayOfYear DayOfYearOf(Days day) {
    const Days months = FloorDivide((day + 1) * partsPerDay - 1 - partsOfFirstMolad, partsPerMonth);
    const Days year = FloorDivide(19 * months + 252 - hebrew::options.CycleShift, 235);
    const YearSpan span = SpanOf(year);
    if (span.start <= day) return {year, span, day - span.start};
    const YearSpan before = SpanOf(year - 1);
    return {year - 1, before, day - before.start};
}

struct NameList {
    std::string_view months[14];
    std::string_view commonAdar;
    std::string_view weekdays[7];
};

constexpr NameList names{
    {"All", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishrei", "Cheshvan", "Kislev", "Tevet", "Shevat",
     "Adar Rishon", "Adar Sheini"},
    "Adar",
    {"Yom Rishon", "Yom Sheini", "Yom Shlishi", "Yom Rivii", "Yom Chamishi", "Yom Shishi", "Yom Shabbat"},
};

constexpr NameList hebrewScriptNames{
    {"Kol", "ניסן", "אייר", "סיון", "תמוז", "אב", "אלול", "תשרי", "חשון", "כסלו", "טבת", "שבט", "אדר ראשון", "אדר שני"},
    "אדר",
    {"יום ראשון", "יום שני", "יום שלישי", "יום רביעי", "יום חמישי", "יום ששי", "יום שבת"},
};

const NameList& Names() { return hebrew::options.UseHebrewFont ? hebrewScriptNames : names; }

/// A pattern with { and } replaced by the marks of italics, and | by the separator.
std::string Filled(std::string_view pattern, std::string_view separator, std::string_view open,
                   std::string_view close) {
    std::string text;
    for (const char& c : pattern) {
        text += c == '{' ? open : c == '}' ? close : c == '|' ? separator : std::string_view(&c, 1);
    }
    return text;
}

}  // namespace

std::int64_t ElapsedDays(std::int32_t year) { return ElapsedDaysOf(year); }

FixedDay HebrewNewYear(std::int32_t year) { return HebrewEpoch + static_cast<double>(NewYearOf(year)); }

std::int32_t DaysInHebrewYear(std::int32_t year) { return static_cast<std::int32_t>(SpanOf(year).length); }

bool LongCheshvan(std::int32_t year) {
    const std::int32_t days = DaysInHebrewYear(year);
    return days == 355 || days == 385;
}

bool ShortKislev(std::int32_t year) {
    const std::int32_t days = DaysInHebrewYear(year);
    return days == 353 || days == 383;
}

bool isHebrewLeapYear19(std::int32_t year) { return isLeap(year); }

bool isHebrewLeapYear(bool rectified, std::int32_t year) {
    return rectified ? isHebrewLeapYear353(year) : isHebrewLeapYear19(year);
}

std::int32_t MonthsInHebrewYear(std::int32_t year) { return isHebrewLeapYear19(year) ? 13 : 12; }

std::int16_t LastDayOfHebrewMonth(std::int32_t year, std::int32_t month) {
    switch (month) {
        case 2:
        case 4:
        case 6:
        case 10:
        case 13: return 29;
        case 8: return LongCheshvan(year) ? 30 : 29;
        case 9: return ShortKislev(year) ? 29 : 30;
        case 12: return isHebrewLeapYear19(year) ? 30 : 29;
        default: return 30;
    }
}

FixedDay HebrewToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    const YearSpan span = SpanOf(year);
    return HebrewEpoch + static_cast<double>(span.start + DaysBeforeMonth(span, month) + day - 1);
}

HebrewDateRecord FixedToHebrewDate(Moment moment) {
    const Days day = DaysSinceEpoch(moment);
    const auto [year, span, prior] = DayOfYearOf(day);
    const MonthStarts& starts = StartsOf(span);
    auto place = static_cast<std::size_t>(prior / 30);  // or the one after it, since months are no longer
    place += starts[place + 1] <= prior;
    const Days month = static_cast<Days>(place) + tishrei;
    const Days weekday = FloorModulo(day + 1, 7);  // the count of days begins on a Monday

    return {.Fixed = HebrewEpoch + static_cast<double>(day),
            .Year = static_cast<std::int32_t>(year),
            .Month = static_cast<std::int32_t>(month > span.months() ? month - span.months() : month),
            .Day = static_cast<std::int16_t>(prior - starts[place] + 1),
            .YearDay = static_cast<std::int16_t>(prior + 1),
            .WeekDay = static_cast<std::int32_t>(weekday + 1),
            .WeekDayName = Names().weekdays[weekday]};
}

std::int32_t FixedToHebrewYear(Moment moment) {
    return static_cast<std::int32_t>(DayOfYearOf(DaysSinceEpoch(moment)).year);
}

std::string_view HebrewMonthName(std::int32_t year, std::int32_t month) {
    if (month < 0 || month > 13) return {};
    return month == 12 && !isHebrewLeapYear19(year) ? Names().commonAdar : Names().months[month];
}

std::string_view WeekdayName(std::int32_t weekday) { return Names().weekdays[weekday]; }

// Moments too large to tell days apart come to no weekday.
std::string_view WeekdayLabel(Moment x) { return WeekdayName(std::clamp(DayOfWeek(x), 0, 6)); }

std::string HebrewDateString(const HebrewDateRecord& date, bool withWeekday, bool italics, bool withYear) {
    const auto marked = [&](std::string_view name) {
        return italics ? "<i>" + std::string(name) + "</i>" : std::string(name);
    };
    const std::string weekday = withWeekday ? marked(date.WeekDayName) : "";
    const std::string month = marked(HebrewMonthName(date.Year, date.Month));
    const std::string day = std::to_string(date.Day);
    const std::string year = withYear ? std::to_string(date.Year) : "";
    return weekday + (withWeekday ? ", " : "") + day + " " + month + (withYear ? ", " : "") + year;
}

std::string FixedToHebrewString(Moment moment) {
    return HebrewDateString(FixedToHebrewDate(moment), true, false, true);
}

std::string HebrewShortDateString(const HebrewDateRecord& date, bool withYear) {
    return HebrewDateString(date, false, false, withYear);
}

std::string FixedToHebrewShortDate(Moment moment) { return HebrewShortDateString(FixedToHebrewDate(moment), false); }

constinit const HebrewReckoning TraditionalReckoning{HebrewToFixed, FixedToHebrewDate, MonthsInHebrewYear,
                                                     LastDayOfHebrewMonth, HebrewMonthName};

double ElapsedMonths19(std::int32_t year, std::int32_t month) {
    return Quotient(235.0 * static_cast<double>(YearOfTishrei(year, month)) - 234, 19) + (month - 7.0);
}

double ElapsedMonths(bool rectified, std::int32_t year, std::int32_t month) {
    return rectified ? ElapsedMonths353(year, month) : ElapsedMonths19(year, month);
}

Moment molad(std::int32_t year, std::int32_t month) {
    const Days n = MonthsBeforeTishrei(YearOfTishrei(year, month)) + month - tishrei;
    return static_cast<double>(n) * MoladInterval + MoladEpoch();
}

Moment MoladBefore(Moment moment) {
    return WholeNumber(Floor((moment - MoladEpoch()) / MoladInterval)) * MoladInterval + MoladEpoch();
}

// The two products keep more of the parts than one with the whole interval.
Moment TraditionalMolad(double n) { return n * 0.030594135802469134 + n * 29.5 + MoladEpochEve(); }

double TraditionalMomentToLunation(Moment moment) { return (moment - MoladEpochEve()) / MoladInterval; }

Moment MyMoladMoment(bool progressive, double n, double addend) {
    const double parts = n * 13753 + 5604;
    const Moment moment = n * 29 + parts / partsPerDay + addend + HebrewEpoch;
    return progressive ? moment - MoladAdjustment(n, true) : moment;
}

FixedDay MoladDay(bool progressive, double n) { return Floor(MyMoladMoment(progressive, n, 0.25)); }

namespace {

struct YearKind {
    char letter;
    std::string_view name;
    std::string_view months;  ///< A pattern for `Filled`.
};

constexpr YearKind yearKinds[] = {
    {'P', "Perfect", "({Cheshvan} and {Kislev} both 30 days)"},
    {'N', "Normal", "({Cheshvan} 29 days, {Kislev} 30 days)"},
    {'D', "Deficient", "({Cheshvan} and {Kislev} both 29 days)"},
};

const YearKind& KindOf(std::int32_t year) {
    return yearKinds[(isHebrewLeapYear19(year) ? 385 : 355) - DaysInHebrewYear(year)];
}

std::string CharacterOf(std::int32_t year) {
    return std::to_string(DayOfWeek(HebrewNewYear(year)) + 1) + KindOf(year).letter +
           std::to_string(DayOfWeek(HebrewToFixed(year, 1, 15)) + 1) + (isHebrewLeapYear19(year) ? "*" : "");
}

}  // namespace

// The weekdays are the same under every numbering.
std::string HebrewYearCharacter(std::int32_t year) {
    static Memo<1, std::pair<std::int32_t, hebrew::Options>, std::string> memo;
    return memo.Of({year, hebrew::options}, [year] { return CharacterOf(year); });
}

std::string HebrewYearType(std::int32_t year, bool withCycle, std::string_view separator, std::string_view openItalic,
                           std::string_view closeItalic) {
    const YearKind& kind = KindOf(year);
    std::string pattern{kind.name};
    pattern += isHebrewLeapYear19(year) ? " Leap Year|" : " Non-Leap Year|";
    pattern += kind.months;
    if (withCycle) pattern += " in year " + std::to_string(WholeNumber(AdjustedModulo(year, 19))) + " of 19";
    return Filled(pattern, separator, openItalic, closeItalic);
}

namespace {

struct Postponement {
    std::string rules;
    std::string reason;  ///< A pattern for `Filled`.
};

/// The move that rule 2 makes from a weekday, 0 = Sunday, and its reason; empty for a weekday that may begin a year.
constexpr std::string_view ExcludedDay(std::int32_t weekday) {
    switch (weekday) {
        case 0: return "{Yom} 1 to 2|to avoid {Hoshanah Rabbah} on {Shabbat}";
        case 3: return "{Yom} 4 to 5|to avoid {Yom Kippur} just before {Shabbat}";
        case 5: return "{Yom} 6 to {Shabbat}|to avoid {Yom Kippur} right after {Shabbat}";
        default: return {};
    }
}

/// Rules 3 and 4 for a year whose molad of Tishrei is that of lunation n; nothing if neither holds.
std::optional<Postponement> ForYearLength(Days year, double n, std::int32_t weekday) {
    if (weekday == 2 && !isLeap(year)) {
        const Moment next = TraditionalMolad(n + 12);
        if (DayOfWeek(next + 0.25) != 0) return {};
        return Postponement{"3", "postponed 2 days to prevent year " + std::to_string(year) +
                                     "|from being too long (year " + std::to_string(year + 1) + " postponed " +
                                     (DayOfWeek(next) == 6 ? "2 days)" : "a day)")};
    }
    if (weekday == 1 && isLeap(year - 1)) {
        if (DayOfWeek(TraditionalMolad(n - 13) + 0.25) != 3) return {};
        return Postponement{"4", "postponed a day to prevent previous year|(leap year " + std::to_string(year - 1) +
                                     ", postponed 2 days) from being too short"};
    }
    return {};
}

Postponement PostponementOf(std::int32_t year) {
    const double n = ElapsedMonths19(year, tishrei);
    const Moment moladOfTishrei = TraditionalMolad(n);
    if (HebrewNewYear(year) == Floor(moladOfTishrei)) return {"", "on the day of the {molad}"};

    Postponement result;
    if (Modulo(moladOfTishrei, 1) >= 0.75) result = {"1", "postponed due to {molad} at or after noon (18h)"};
    const std::int32_t weekday = DayOfWeek(moladOfTishrei + 0.25);
    if (const std::string_view excluded = ExcludedDay(weekday); !excluded.empty()) {
        result.rules += "2";
        result.reason += result.reason.empty() ? "postponed from " : "|and then postponed from ";
        result.reason += excluded;
    } else if (const auto forLength = ForYearLength(year, n, weekday)) {
        result.rules += forLength->rules;
        result.reason = forLength->reason;
    }
    return result;
}

}  // namespace

std::string PostponeReason(std::int32_t year, std::string_view separator, bool italics, bool asSentence) {
    const Postponement postponement = PostponementOf(year);
    const std::string pattern =
        asSentence ? "{Rosh Hashanah} " + postponement.reason + "." : postponement.rules + ":" + postponement.reason;
    return Filled(pattern, separator, italics ? "<i>" : "", italics ? "</i>" : "");
}

namespace {

/// Months from Tishrei on, 1 to 12 or 13.
FixedDay GridDateToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    const std::int32_t monthsFromTishrei = MonthsInHebrewYear(year) - 6;
    return HebrewToFixed(year, month > monthsFromTishrei ? month - monthsFromTishrei : month + 6, day);
}

GridDate GridDateOf(Moment x) {
    const HebrewDateRecord& date = DateOn<FixedToHebrewDate>(x, hebrew::options);
    const std::int32_t place = date.Month >= tishrei ? date.Month - 6 : date.Month + MonthsInHebrewYear(date.Year) - 6;
    return {date.Year, static_cast<std::int16_t>(place), date.Day, LastDayOfHebrewMonth(date.Year, date.Month),
            WholeNumber<std::int16_t>(Modulo(date.WeekDay - date.Day, 7))};
}

std::vector<std::string> MonthNames(std::int32_t year) {
    const std::int32_t months = MonthsInHebrewYear(year);
    std::vector<std::string> list;
    for (std::int32_t month = tishrei; month <= months; ++month) list.emplace_back(HebrewMonthName(year, month));
    for (std::int32_t month = 1; month < tishrei; ++month) list.emplace_back(HebrewMonthName(year, month));
    return list;
}

NamesOfDays DayNames() {
    NamesOfDays days;
    for (std::size_t i = 0; i < days.full.size(); ++i) {
        days.full[i] = Names().weekdays[i];
        days.script[i] = hebrewScriptNames.weekdays[i].substr(std::string_view("יום ").size());
        days.brief[i] = "( " + std::to_string(i + 1) + " )";
    }
    return days;
}

}  // namespace

constexpr std::int16_t adarOfGrid = 6;

constinit const CalendarContract hebrew::Calendar{.name = "Hebrew",
                                                  .ToFixed = GridDateToFixed,
                                                  .DateOf = GridDateOf,
                                                  .MonthNames = MonthNames,
                                                  .DayNames = DayNames,
                                                  .leapMonthAfter = adarOfGrid};

}  // namespace horvanta
