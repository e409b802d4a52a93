#include "hebrew/year_types.h"

#include "hebrew/hebrew_arithmetic.h"

#include <gtest/gtest.h>

#include <map>

namespace horvanta {
namespace {

/// All successions of types are counted again over the whole cycle.
TEST(YearTypes, FollowOneAnotherAsInTheFullCycle) {
    std::map<std::pair<std::string, std::string>, std::int32_t> counted;
    std::string character = HebrewYearCharacter(1);
    for (std::int32_t year = 1; year <= YearsOfFullCycle; ++year) {
        const std::string next = HebrewYearCharacter(year + 1);
        ++counted[{character, next}];
        character = next;
    }
    std::size_t found = 0;
    for (const auto& [pair, years] : counted) {
        std::int32_t atMost = YearsOfFullCycle;
        for (const HebrewYearTypeCount& type : YearTypeAfter(pair.first, pair.second.ends_with('*'))) {
            EXPECT_LE(type.years, atMost);
            atMost = type.years;
            if (type.character != pair.second) continue;
            ++found;
            EXPECT_EQ(type.years, years) << pair.first << " " << pair.second;
        }
    }
    EXPECT_EQ(found, counted.size());
}

/// Over the whole cycle the weekdays of days are counted by their dates.
TEST(YearTypes, AgreeWithDates) {
    struct Asked {
        std::int32_t month, day, selector;
        std::array<std::int32_t, 7> years{};
    } days[] = {{7, 1, -1}, {1, 15, -1}, {9, 25, 0}, {10, 3, 1}, {13, 14, -2}, {12, 7, -3}, {13, 7, 1}};
    for (std::int32_t year = 1; year <= YearsOfFullCycle; ++year) {
        const bool leap = isHebrewLeapYear19(year);
        for (auto& [month, day, selector, years] : days) {
            if ((selector == 0 && leap) || (selector > 0 && !leap)) continue;
            const std::int32_t asked = selector == -2 && !leap ? 12 : month;
            ++years[static_cast<std::size_t>(DayOfWeek(HebrewToFixed(year, asked, day)))];
        }
    }
    for (const auto& [month, day, selector, years] : days) {
        EXPECT_EQ(PossibleWeekdayCounts(month, day, selector).years, years) << month << " " << day;
    }
    EXPECT_EQ(PossibleWeekdays(7, 1, -1), "Yom Sheini 28.0%, Yom Shlishi 11.5%, Yom Chamishi 31.9%, Yom Shabbat 28.6%");
}

}  // namespace
}  // namespace horvanta
