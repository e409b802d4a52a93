#include "reports/weekday_frequencies.h"

#include "core/numerics.h"
#include "core/text.h"
#include "hebrew/hebrew_arithmetic.h"
#include "hebrew/year_types.h"

#include <memory>
#include <set>
#include <utility>

namespace horvanta {
namespace {

/// The table of a month: of which years is told by its selector, as `PossibleWeekdayCounts` takes it.
struct MonthTable {
    std::string_view name;  ///< Marked up.
    std::int32_t month;
    std::int32_t selector;
    std::int32_t days;
};

constexpr MonthTable months[] = {
    {"<i>Tishrei</i>", 7, -1, 30},
    {"<i>Cheshvan</i>", 8, -1, 30},
    {"<i>Kislev</i>", 9, -1, 30},
    {"<i>Tevet</i>", 10, -1, 29},
    {"<i>Shevat</i>", 11, -1, 30},
    {"<i>Adar</i>", 12, 0, 29},
    {"<i>Adar Rishon</i>", 12, 1, 30},
    {"<i>Adar Sheini</i>", 13, 1, 29},
    {"<i>Adar</i> or <i>Adar Rishon</i>", 12, -3, 29},
    {"<i>Adar</i> or <i>Adar Sheini</i>", 13, -2, 29},
    {"<i>Nisan</i>", 1, -1, 30},
    {"<i>Iyar</i>", 2, -1, 29},
    {"<i>Sivan</i>", 3, -1, 30},
    {"<i>Tammuz</i>", 4, -1, 29},
    {"<i>Av</i>", 5, -1, 30},
    {"<i>Elul</i>", 6, -1, 29},
};

constexpr std::int32_t allDays = [] {
    std::int32_t days = 0;
    for (const MonthTable& month : months) days += month.days;
    return days;
}();

/// A row of the tables.
struct DayOfMonth {
    const MonthTable& table;
    std::int32_t day;

    WeekdayCounts Counts() const { return PossibleWeekdayCounts(table.month, day, table.selector); }
};

/// The day of an index from 0.
DayOfMonth DayAt(std::int32_t index) {
    const MonthTable* table = months;
    while (index >= table->days) index -= (table++)->days;
    return {*table, index + 1};
}

/// A fraction in lowest terms.
using Fraction = std::pair<std::int32_t, std::int32_t>;

Fraction Reduced(std::int32_t count, std::int32_t total) {
    const std::int32_t divisor = GCD(count, total);
    return {count / divisor, total / divisor};
}

/// Of all tables; there are 17.
std::set<Fraction> AllFractions() {
    std::set<Fraction> fractions;
    for (std::int32_t index = 0; index < allDays; ++index) {
        const WeekdayCounts counts = DayAt(index).Counts();
        for (const std::int32_t years : counts.years) {
            if (years != 0) fractions.insert(Reduced(years, counts.total));
        }
    }
    return fractions;
}

constexpr std::string_view shades[] = {
    "PaleTurquoise", "SpringGreen", "cyan",   "PaleGreen", "Plum",  "Lavender", "MistyRose",  "Gold",       "LightBlue",
    "Cornsilk",      "Tan",         "yellow", "Bisque",    "Beige", "pink",     "Aquamarine", "GreenYellow"};

/// The share of a number of years, in words and by a colour: equal shares have the same, so that the eye can follow
/// one through the tables.
ReportCell ReduceAndShade(std::int32_t count, std::int32_t total, const std::set<Fraction>& fractions) {
    if (count == 0) return {"0"};
    const auto place = std::distance(fractions.begin(), fractions.find(Reduced(count, total)));
    return {
        std::to_string(count),
        FractionText(0, count, total, true) + " &asymp; " + FormatNumber(static_cast<double>(count) / total, "0.0%"),
        shades[static_cast<std::size_t>(place) % std::size(shades)]};
}

ReportRow PossibleWeekdayStatistics(const DayOfMonth& day, const std::set<Fraction>& fractions) {
    const WeekdayCounts counts = day.Counts();
    ReportRow row = Cells(std::string(day.table.name), std::to_string(day.day));
    for (const std::int32_t years : counts.years) row.push_back(ReduceAndShade(years, counts.total, fractions));
    row.push_back({std::to_string(counts.total)});
    return row;
}

std::vector<ReportColumn> Columns() {
    std::vector<ReportColumn> columns{{ColumnKind::Group, "Month"}, {ColumnKind::Number, "Day", "Day of the month"}};
    for (std::int32_t weekday = 0; weekday < 7; ++weekday) {
        columns.push_back({ColumnKind::Number, WeekdayName(weekday), "Years in which the day falls on this weekday"});
    }
    columns.push_back({ColumnKind::Number, "Years", "Years of the full cycle that have the month"});
    return columns;
}

std::vector<ReportNote> Notes() {
    return {
        {"h2", "The Full Cycle"},
        {"p",
         "The mean year of the Hebrew calendar is 235 months &times; the <i>molad</i> interval over 19 years. "
         "There are 25920 parts per day, and 25920 &times; 29 + 13753 = 765432 + 1 parts per <i>molad</i>. A "
         "whole number of weeks first accumulates in 36288 cycles of 19 years, which are 689472 years, and there "
         "are 7 &times; 47 = 329 <i>molad</i> cycles of 25920 months in this full cycle. Then all weekdays "
         "repeat, and so the numbers below are exact: in how many of the 689472 years a day falls on a weekday, "
         "the share of those years in lowest terms, and the same in percent. Equal shares have the same "
         "background color."},
        {"p",
         "<i>Cheshvan</i> and <i>Kislev</i> have 30 days in some years and 29 in others; in the latter, day 30 is "
         "counted as the day that follows day 29. <i>Adar</i> is told of the 435456 common years and <i>Adar "
         "Rishon</i> and <i>Adar Sheini</i> of the 254016 leap years, and then together of all years."},
        {"h2", "Printing"},
        {"p",
         "Choose the paper size of your printer and landscape orientation, have background colors printed, and "
         "scale the page to fit the paper width."},
    };
}

}  // namespace

Report ListPossibleWeekdayStats() {
    const auto fractions = std::make_shared<const std::set<Fraction>>(AllFractions());
    return {.description = "Hebrew Possible Weekdays",
            .fileName = "Hebrew Possible Weekdays",
            .title = "Weekday Frequencies",
            .heading = "Exact Hebrew Calendar Full Cycle Weekday Frequencies",
            .notes = Notes(),
            .columns = Columns(),
            .isWide = true,
            .length = allDays,
            .row = [fractions](std::int32_t index) { return PossibleWeekdayStatistics(DayAt(index), *fractions); }};
}

}  // namespace horvanta
