#include "calendars/quartane.h"

#include "astro/timescales.h"
#include "calendars/calendar_text.h"
#include "calendars/civil_days.h"
#include "calendars/gregorian.h"
#include "calendars/quartane_year_start.h"
#include "core/memo.h"
#include "core/text.h"

#include <algorithm>
#include <array>

namespace horvanta::quartane {
namespace {

constexpr std::int32_t quarterDays = 91;
constexpr std::int32_t leapWeekMonth = 13;

/// The lengths of the months of a quarter.
struct Structure {
    std::string_view key;
    std::array<std::int16_t, 3> weeks;
    std::array<std::int16_t, 3> days;
};

constexpr Structure structures[] = {
    {"LSS", {5, 4, 4}, {31, 30, 30}},
    {"SLS", {4, 5, 4}, {30, 31, 30}},
    {"SSL", {4, 4, 5}, {30, 30, 31}},
};

const Structure& StructureInForce() {
    const auto* found = std::ranges::find(structures, options.QuarterStructure, &Structure::key);
    return found == std::end(structures) ? structures[1] : *found;
}

/// The days of a month of a quarter without a leap week; 0 to 2.
std::int16_t LengthInQuarter(const Structure& structure, std::int32_t month) {
    const auto place = static_cast<std::size_t>(month);
    return static_cast<std::int16_t>(options.Qua454 ? 7 * structure.weeks[place] : structure.days[place]);
}

std::int32_t DaysOfQuarterBefore(const Structure& structure, std::int32_t month) {
    std::int32_t days = 0;
    for (std::int32_t earlier = 0; earlier < month; ++earlier) days += LengthInQuarter(structure, earlier);
    return days;
}

/// The month of a quarter and its length by the day of the quarter. The leap week is a fourth month, or belongs to the
/// third.
void SetMonth(QuaDate& date) {
    const Structure& structure = StructureInForce();
    std::int32_t month = 0;
    std::int32_t before = 0;
    while (month < 3 && date.dayOfQuarter > before + LengthInQuarter(structure, month)) {
        before += LengthInQuarter(structure, month++);
    }
    const bool standsAlone = HasZovember();
    if (month == 3 && !standsAlone) before -= LengthInQuarter(structure, --month);
    date.monthInQuarter = static_cast<std::int16_t>(month + 1);
    date.month = static_cast<std::int16_t>(3 * date.quarter - 2 + month);
    date.day = static_cast<std::int16_t>(date.dayOfQuarter - before);
    const bool withLeapWeek = date.month == 12 && date.isLeap && !standsAlone;
    date.monthLength = month == 3 ? std::int16_t{7} : LengthInQuarter(structure, month);
    if (withLeapWeek) date.monthLength = static_cast<std::int16_t>(date.monthLength + 7);
}

}  // namespace

bool QuaLeapUseZov() { return options.Qua454 ? options.UseZov454 : options.UseZov010; }
bool HasZovember() { return QuaLeapUseZov() || options.QuarterStructure == "SSL"; }
void ToggleUseZov(bool standsAlone) { (options.Qua454 ? options.UseZov454 : options.UseZov010) = standsAlone; }

void SetQuaQuarterStructure(std::string_view key) {
    const auto* found = std::ranges::find(structures, key, &Structure::key);
    if (found != std::end(structures)) options.QuarterStructure = key;
}

std::string_view NextQuarterStructure() {
    const auto place = static_cast<std::size_t>(&StructureInForce() - structures);
    return structures[(place + 1) % std::size(structures)].key;
}

std::string QuarterText(bool weeks) {
    const Structure& structure = StructureInForce();
    const auto& lengths = weeks ? structure.weeks : structure.days;
    return std::to_string(lengths[0]) + "+" + std::to_string(lengths[1]) + "+" + std::to_string(lengths[2]);
}

std::string CalendarName() { return options.Qua454 ? "Quartane454" : "Quartane010"; }

std::string_view MonthName(std::int32_t month) {
    return month == leapWeekMonth ? "Zovember" : GregorianMonthNames[month - 1];
}

std::int16_t QuaDaysBeforeMonth(std::int32_t month) {
    const std::int64_t quarter = FloorDivide(std::int64_t{month} - 1, 3);
    const auto inQuarter = static_cast<std::int32_t>(std::int64_t{month} - 1 - 3 * quarter);
    return static_cast<std::int16_t>(quarterDays * quarter + DaysOfQuarterBefore(StructureInForce(), inQuarter));
}

std::int32_t QuaYearDay(std::int32_t month, std::int32_t day) {
    return static_cast<std::int32_t>(std::int64_t{QuaDaysBeforeMonth(month)} + day);
}

FixedDay QuaToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return QuaNewYear(year) + QuaYearDay(month, day) - 1.0;
}

QuaDate FixedToQuaDate(Moment x) {
    const auto [year, newYear] = FixedToQuaYear(x);
    const std::int32_t prior = std::clamp(WholeNumber(Floor(x) - newYear), 0, 370);
    QuaDate date;
    date.fixed = newYear + prior;
    date.year = year;
    date.isLeap = isQuaLeapYear(year);
    date.yearDay = static_cast<std::int16_t>(prior + 1);
    date.weekOfYear = static_cast<std::int16_t>((date.yearDay + 6) / 7);
    date.quarter = static_cast<std::int16_t>(std::min(4, 1 + (date.yearDay - 1) / quarterDays));
    date.dayOfQuarter = static_cast<std::int16_t>(date.yearDay - quarterDays * (date.quarter - 1));
    date.weekOfQuarter = static_cast<std::int16_t>((date.dayOfQuarter + 6) / 7);
    SetMonth(date);
    if (options.Qua454) date.weekOfMonth = static_cast<std::int16_t>((date.day + 6) / 7);
    date.weekday = (options.StartWeekday + date.yearDay - 1) % 7;
    date.weekdayName = WeekdayNames[date.weekday];
    return date;
}

std::int16_t DaysInMonth(std::int32_t year, std::int32_t month) {
    if (month == leapWeekMonth) return 7;
    const bool longMonth = FloorModulo(month, 3) == 2;
    std::int32_t days = options.Qua454 ? 28 : 30;
    if (longMonth) days += options.Qua454 ? 7 : 1;
    if (month == 12 && !QuaLeapUseZov() && isQuaLeapYear(year)) days += 7;
    return static_cast<std::int16_t>(days);
}

std::string QuaDateString(const QuaDate& date) {
    return DateInWords(date.weekdayName, MonthName(date.month), date.day, std::to_string(date.year));
}

std::string FixedToQuaShortDate(Moment x) {
    const QuaDate date = FixedToQuaDate(x);
    return DateInWords(ShortWeekdayNames[date.weekday], MonthName(date.month).substr(0, 3), date.day,
                       std::to_string(date.year));
}

std::vector<std::string> EventsOf(const QuaDate& date) {
    std::vector<std::string> events;
    if (date.weekOfYear == 53) events.emplace_back("Leap Week (Semaine de la Révolution)");
    if (date.dayOfQuarter == 46) events.push_back(OrdinalString(date.quarter) + " Mid-Quarter Day");
    return events;
}

const QuaDate& QuaDateOn(Moment x) { return DateOn<FixedToQuaDate>(x, DeltaTSerial, options); }

namespace {

FixedDay GridDateToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    const FixedDay fixed = QuaToFixed(year, month, day);
    return fixed >= QuaNewYear(year + 1LL) ? fixed - 7 : fixed;
}

GridDate GridDateOf(Moment x) {
    const QuaDate& date = QuaDateOn(x);
    return {date.year, date.month, date.day, date.monthLength,
            static_cast<std::int16_t>(QuaDaysBeforeMonth(date.month) % 7)};
}

std::vector<std::string> MonthNames(std::int32_t year) {
    std::vector<std::string> names = Texts(GregorianMonthNames);
    if (HasZovember() && isQuaLeapYear(year)) names.emplace_back(MonthName(leapWeekMonth));
    return names;
}

NamesOfDays DayNames() {
    return WeekFrom(static_cast<std::size_t>(options.StartWeekday), WeekdayNames, ShortWeekdayNames);
}

}  // namespace

constinit const CalendarContract Calendar{.name = "Quartane",
                                          .ToFixed = GridDateToFixed,
                                          .DateOf = GridDateOf,
                                          .MonthNames = MonthNames,
                                          .DayNames = DayNames,
                                          .PresentName = CalendarName,
                                          .DaysOf = CivilDaysOf};

}  // namespace horvanta::quartane
