#include "calendars/roman.h"

#include "calendars/calendar_text.h"
#include "calendars/gregorian.h"
#include "core/text.h"

#include <algorithm>
#include <cstdlib>

namespace horvanta {
namespace {

using Years = std::int64_t;

constexpr Years modernStart = 1896;
constexpr std::int32_t greatestNumeral = 3999;

constexpr std::string_view eventNames[] = {"", "kalendas", "nonas", "idus"};

struct Numeral {
    std::int32_t value;
    std::string_view letters;
};

// clang-format off
constexpr Numeral numerals[] = {
    {1000, "M"},
    {900, "CM"},
    {500, "D"},
    {400, "CD"},
    {100, "C"},
    {90, "XC"},
    {50, "L"},
    {40, "XL"},
    {10, "X"},
    {9, "IX"},
    {5, "V"},
    {4, "IV"},
    {1, "I"},
};
// clang-format on

struct LetterValue {
    char letter;
    std::int32_t value;
};

// clang-format off
constexpr LetterValue letterValues[] = {
    {'I', 1},
    {'V', 5},
    {'X', 10},
    {'L', 50},
    {'C', 100},
    {'D', 500},
    {'M', 1000},
    {'v', 5000},
    {'x', 10000},
    {'l', 50000},
    {'c', 100000},
    {'d', 5000000},
    {'m', 1000000},
};
// clang-format on

std::int32_t ValueOf(char letter) {
    const auto found = std::ranges::find(letterValues, letter, &LetterValue::letter);
    return found == std::end(letterValues) ? 0 : found->value;
}

double SumOfLetters(std::string_view letters) {
    double sum = 0;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const std::int32_t value = ValueOf(letters[i]);
        const bool subtracts = i + 1 < letters.size() && ValueOf(letters[i + 1]) > value;
        sum += subtracts ? -value : value;
    }
    return sum;
}

std::string_view FirstThree(std::string_view name) { return name.substr(0, 3); }

std::string LatinMonth(const RomanDate& date) {
    return std::string(eventNames[date.event]) + " " + std::string(RomanMonthNames[date.month - 1]) + " ";
}

/// "bis ante diem VI ", "pridie ", or nothing on the event itself.
std::string CountText(const RomanDate& date) {
    if (date.count <= 1) return "";
    const std::string bis = date.leap ? "bis " : "";
    return bis + (date.count == 2 ? "pridie " : "ante diem " + DecimalToRoman(date.count, "", "") + " ");
}

/// The days after the Ides look to the Kalends of the next month.
RomanDate BeforeKalends(const JulianDate& date) {
    const bool endsYear = date.month == 12;
    const std::int32_t next = date.year == -1 ? 1 : date.year + 1;
    RomanDate roman{date.fixed, endsYear ? next : date.year, endsYear ? 1 : date.month + 1, Kalends};
    const FixedDay kalends = JulianToFixed(roman.year, roman.month, 1, false);
    roman.count = WholeNumber<std::int16_t>(kalends - date.fixed + 1);
    return roman;
}

/// Caesar's leap day stands before the sixth day to the Kalends of March and shares its number, so that the days ahead
/// of it are counted as in a common year.
RomanDate BeforeLeapMarch(const JulianDate& date) {
    const bool ahead = date.day < 25;
    return {date.fixed, date.year, 3, Kalends, static_cast<std::int16_t>((ahead ? 30 : 31) - date.day), date.day == 25};
}

std::string DigitsOrRoman(std::int32_t value, bool asRoman) {
    const auto size = static_cast<std::int32_t>(std::min<Years>(std::abs(Years{value}), 0x7fffffff));
    return asRoman ? DecimalToRoman(size, "", " BC") : std::to_string(size);
}

}  // namespace

FixedDay RomanToFixed(std::int32_t year, std::int32_t month, std::int32_t event, std::int32_t count, bool leap) {
    const std::int32_t day = event == Nones ? RomanNones(month) : event == Ides ? RomanIdes(month) : 1;
    const bool beforeLeapDay =
        month == 3 && event == Kalends && count >= 6 && count <= 16 && isJulianLeapYear(year, false);
    return JulianToFixed(year, month, day, false) - count + (beforeLeapDay ? 0 : 1) + (leap ? 1 : 0);
}

RomanDate FixedToRomanDate(Moment x) {
    const JulianDate date = FixedToJulianDate(x, false);
    const auto until = [&date](RomanEvent event, int day) -> RomanDate {
        return {date.fixed, date.year, date.month, event, static_cast<std::int16_t>(day - date.day + 1)};
    };
    if (date.day == 1) return until(Kalends, 1);
    if (date.day <= RomanNones(date.month)) return until(Nones, RomanNones(date.month));
    if (date.day <= RomanIdes(date.month)) return until(Ides, RomanIdes(date.month));
    const bool leapFebruary = date.month == 2 && isJulianLeapYear(date.year, false);
    return leapFebruary ? BeforeLeapMarch(date) : BeforeKalends(date);
}

std::string RomanDateString(const RomanDate& date) {
    const std::string weekday(RomanWeekdayNames[DayOfWeek(date.fixed)]);
    return " " + weekday + ", " + CountText(date) + LatinMonth(date) + JulianYearString(date.year, true);
}

std::string RomanEventString(const RomanDate& date) { return LatinMonth(date) + JulianYearString(date.year, false); }

std::string DecimalToRoman(std::int32_t value, std::string_view plusSuffix, std::string_view minusSuffix) {
    const Years size = std::abs(Years{value});
    std::string text = size > greatestNumeral ? std::to_string(size) : "";
    Years rest = size > greatestNumeral ? 0 : size;
    for (const Numeral& numeral : numerals) {
        for (; rest >= numeral.value; rest -= numeral.value) text += numeral.letters;
    }
    return text += value < 0 ? minusSuffix : plusSuffix;
}

std::int32_t RomanToDecimal(std::string_view text) {
    const std::size_t mark = text.find(" BC");
    const std::string_view digits = text.substr(0, mark);
    const double value = Round(ParseNumber(digits).value_or(SumOfLetters(digits)));
    return WholeNumber(mark == std::string_view::npos ? value : -value);
}

std::int32_t JulianToAUC(std::int32_t year) {
    const bool betweenEras = julian::options.YRF <= year && year <= -1;
    return static_cast<std::int32_t>(Years{year} - julian::options.YRF + (betweenEras ? 1 : 0));
}

std::int32_t AUCToJulian(std::int32_t year) {
    const bool betweenEras = 1 <= year && year <= -julian::options.YRF;
    return static_cast<std::int32_t>(Years{year} + julian::options.YRF - (betweenEras ? 1 : 0));
}

std::string JulianYearString(std::int32_t year, bool asRoman) {
    if (!julian::options.UseAUC) return DigitsOrRoman(year, asRoman) + (year < 0 ? " BC" : " AD");
    const std::int32_t sinceRome = JulianToAUC(year);
    return DigitsOrRoman(sinceRome, asRoman) + (sinceRome < 0 ? " PUC" : " AUC");
}

std::string FixedToJulianShortDate(Moment x) {
    const JulianDate date = FixedToJulianDate(x, true);
    return DateInWords(ShortWeekdayNames[DayOfWeek(date.fixed)], FirstThree(GregorianMonthNames[date.month - 1]),
                       date.day, JulianYearString(date.year, false));
}

std::string FixedToJulianMonthDay(Moment x) {
    const JulianDate date = FixedToJulianDate(x, true);
    return std::to_string(date.day) + " " + std::string(FirstThree(GregorianMonthNames[date.month - 1]));
}

std::int32_t OlympiadStart(std::int32_t year) {
    return year >= modernStart ? static_cast<std::int32_t>(modernStart) : julian::options.OSY;
}

/// Years of an Olympiad are counted on a scale without a year 0, on which the half year before July of year 1 falls to
/// 0 and counts as the one before.
Olympiad JulianToOlympiad(std::int32_t year, std::int32_t month) {
    const Years start = OlympiadStart(year);
    const Years begun = month < 7 ? Years{year} - 1 : year;
    const Years elapsed = begun - start - (begun < 0 ? 0 : 1) + (start == modernStart ? 1 : 0);
    return {static_cast<std::int32_t>(FloorDivide(elapsed, 4) + 1),
            static_cast<std::int32_t>(FloorModulo(elapsed, 4) + 1)};
}

std::int32_t OlympiadToJulian(std::int32_t cycle, std::int32_t year) {
    const Years begun =
        4 * Years{cycle} + julian::options.OSY + year - 5 - (julian::options.OSY == modernStart ? 1 : 0);
    return static_cast<std::int32_t>(begun >= 0 ? begun + 1 : begun);
}

bool hasOlympiads(std::int32_t year) { return year <= 394 || year >= modernStart; }

std::string YearToOlympiadString(double year) {
    const bool held = year >= julian::options.OSY && (year < 394 || year >= static_cast<double>(modernStart));
    if (!held) return "";
    const Olympiad olympiad = JulianToOlympiad(WholeNumber(year), 8);
    return "c" + std::to_string(olympiad.cycle) + " y" + std::to_string(olympiad.year);
}

std::vector<std::string> EventsOf(const RomanDate& date) {
    constexpr const char* names[] = {"", "Kalends", "Nones", "Ides"};
    return date.count == 1 ? std::vector<std::string>{names[date.event]} : std::vector<std::string>();
}

std::string JulianCalendarName() { return julian::options.Revise ? "Revised Julian" : "Julian"; }

namespace {

template <bool AllowRevised>
FixedDay WrittenToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return JulianToFixed(julian::options.UseAUC ? AUCToJulian(year) : year, month, day, AllowRevised);
}

template <bool AllowRevised>
GridDate WrittenDate(Moment x) {
    const JulianDate date = FixedToJulianDate(x, AllowRevised);
    const std::int32_t year = julian::options.UseAUC ? JulianToAUC(date.year) : date.year;
    return {year, date.month, date.day, JulianMonthLength(date.year, date.month, AllowRevised),
            static_cast<std::int16_t>(DayOfWeek(date.fixed - date.day + 1))};
}

std::string WrittenYear(std::int32_t year) {
    return JulianYearString(julian::options.UseAUC ? AUCToJulian(year) : year, false);
}

std::vector<std::string> LatinMonths(std::int32_t) {
    constexpr std::ptrdiff_t monthsOfYear = 12;
    return {std::begin(RomanMonthNames), std::begin(RomanMonthNames) + monthsOfYear};
}

NamesOfDays LatinDays() {
    NamesOfDays names = WeekFrom(0, RomanWeekdayNames, RomanWeekdayNames);
    for (std::string& name : names.brief) name.resize(3);
    return names;
}

}  // namespace

constinit const CalendarContract JulianCalendar{.name = "Julian",
                                                .ToFixed = WrittenToFixed<true>,
                                                .DateOf = WrittenDate<true>,
                                                .MonthNames = [](std::int32_t) { return Texts(GregorianMonthNames); },
                                                .DayNames = [] { return GregorianCalendar.DayNames(); },
                                                .HasYear0 = HasNoYear0,
                                                .PresentName = JulianCalendarName,
                                                .YearText = WrittenYear};

constinit const CalendarContract RomanCalendar{.name = "Roman",
                                               .ToFixed = WrittenToFixed<false>,
                                               .DateOf = WrittenDate<false>,
                                               .MonthNames = LatinMonths,
                                               .DayNames = LatinDays,
                                               .HasYear0 = HasNoYear0,
                                               .YearText = WrittenYear};

}  // namespace horvanta
