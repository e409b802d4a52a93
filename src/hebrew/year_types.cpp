#include "hebrew/year_types.h"

#include "core/text.h"
#include "hebrew/hebrew_arithmetic.h"

#include <algorithm>
#include <span>

namespace horvanta {
namespace {

struct YearType {
    std::int32_t sample;  ///< A year of the type.
    std::string_view character;
    std::int32_t years;  ///< Of a full cycle.
};

// clang-format off
constexpr YearType yearTypes[] = {
    {5773, "2D3", 39369},
    {5781, "7D1", 29853},
    {5786, "3N5", 43081},
    {5772, "5N7", 124416},
    {5780, "2P5", 81335},
    {5832, "5P1", 22839},
    {5791, "7P3", 94563},
    {5793, "2D5*", 40000},
    {5812, "5D1*", 26677},
    {5801, "7D3*", 40000},
    {5782, "3N7*", 36288},
    {5779, "2P7*", 32576},
    {5771, "5P3*", 45899},
    {5858, "7P5*", 32576},
};

/// How many years of a type follow one of another in a full cycle.
struct Succession {
    std::string_view character;
    std::string_view next;
    std::int32_t years;
};

constexpr Succession successions[] = {
    {"2D3", "5P3*", 22965},
    {"2D3", "5P1", 9516},
    {"2D3", "5N7", 6888},
    {"2D5*", "7P3", 40000},
    {"2P5", "7D3*", 40000},
    {"2P5", "7D1", 16404},
    {"2P5", "7P3", 16381},
    {"2P5", "7P5*", 8550},
    {"2P7*", "2D3", 22965},
    {"2P7*", "2P5", 9611},
    {"3N5", "7P5*", 24026},
    {"3N5", "7P3", 19055},
    {"3N7*", "2P5", 36288},
    {"5D1*", "3N5", 26677},
    {"5N7", "2D5*", 40000},
    {"5N7", "2P5", 35436},
    {"5N7", "2P7*", 32576},
    {"5N7", "2D3", 16404},
    {"5P1", "3N7*", 13323},
    {"5P1", "3N5", 9516},
    {"5P3*", "5N7", 45899},
    {"7D1", "3N7*", 22965},
    {"7D1", "3N5", 6888},
    {"7D3*", "5N7", 26677},
    {"7D3*", "5P1", 13323},
    {"7P3", "5N7", 44952},
    {"7P3", "5D1*", 26677},
    {"7P3", "5P3*", 22934},
    {"7P5*", "7P3", 19127},
    {"7P5*", "7D1", 13449},
};
// clang-format on

constexpr std::span<const YearType> allTypes(yearTypes);
constexpr std::span<const YearType> commonTypes = allTypes.first(7);
constexpr std::span<const YearType> leapTypes = allTypes.subspan(7);

void Count(WeekdayCounts& counts, std::span<const YearType> types, std::int32_t month, std::int32_t day) {
    for (const YearType& type : types) {
        const auto weekday = static_cast<std::size_t>(DayOfWeek(HebrewToFixed(type.sample, month, day)));
        counts.years[weekday] += type.years;
        counts.total += type.years;
    }
}

std::string Share(std::int32_t count, std::int32_t total) {
    return FormatNumber(static_cast<double>(count) / total, "0.0%");
}

}  // namespace

WeekdayCounts PossibleWeekdayCounts(std::int32_t month, std::int32_t day, std::int32_t selector) {
    constexpr std::int32_t adar = 12;
    const bool lastAdars = selector == -2 && month == 13;
    WeekdayCounts counts;
    if (selector != 0) Count(counts, leapTypes, selector == -3 ? adar : month, day);
    if (selector <= 0) Count(counts, commonTypes, lastAdars ? adar : month, day);
    return counts;
}

std::string PossibleWeekdays(std::int32_t month, std::int32_t day, std::int32_t selector) {
    const WeekdayCounts counts = PossibleWeekdayCounts(month, day, selector);
    std::string text;
    for (std::size_t weekday = 0; weekday < counts.years.size(); ++weekday) {
        if (counts.years[weekday] == 0) continue;
        text += text.empty() ? "" : ", ";
        text += WeekdayName(static_cast<std::int32_t>(weekday));
        text += " " + Share(counts.years[weekday], counts.total);
    }
    return text;
}

std::vector<HebrewYearTypeCount> YearTypeAfter(std::string_view character, bool leap) {
    std::vector<HebrewYearTypeCount> list;
    for (const Succession& row : successions) {
        if (row.character == character && row.next.ends_with('*') == leap) list.push_back({row.next, row.years});
    }
    std::ranges::sort(list, std::ranges::greater(), &HebrewYearTypeCount::years);
    return list;
}

std::string FullCycleFreq(std::int32_t count) {
    return std::to_string(count) + " days (full cycle frequency " + Share(count, YearsOfFullCycle) + " &asymp; " +
           FractionText(0, count, YearsOfFullCycle, false) + " of years)";
}

std::string TypeFreq(std::int32_t count, bool html) {
    return FractionText(0, count, YearsOfFullCycle, html) + " = " + std::to_string(count) + (html ? "<br>" : " ") +
           "&asymp; " + Share(count, YearsOfFullCycle);
}

std::string ExplainCharacter() {
    return "There are 14 unique types of Hebrew calendar year.\n"
           "A digit 2, 3, 5, or 7 denotes the first weekday of Rosh Hashanah.\n"
           "The letter N, D, or P denotes the year length: Normal, Deficient or Perfect.\n"
           "A digit 1, 3, 5, or 7 denotes the first weekday of Passover.\n"
           "An asterisk denotes a leap year.";
}

}  // namespace horvanta
