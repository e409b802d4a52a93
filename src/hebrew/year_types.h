#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The 14 types of Hebrew years, and on which weekdays a date can fall. The calendar repeats after 689472 years, a
/// whole number of weeks, in which each type has its exact number of years.
namespace horvanta {

inline constexpr std::int32_t YearsOfFullCycle = 689472;

struct HebrewYearTypeCount {
    std::string_view character;  ///< As `HebrewYearCharacter` has it.
    std::int32_t years;          ///< Of a full cycle.
};

/// How often a date falls on each weekday, from Yom Rishon (Sunday) on, and on any.
struct WeekdayCounts {
    std::array<std::int32_t, 7> years{};
    std::int32_t total = 0;
};

/// The years of a full cycle in which the day of a month falls on each weekday: of common years (`selector` 0), leap
/// years (positive) or all (negative). -2 with month 13 takes the last Adar of every year; -3 with month 12 takes the
/// Adar of common years and Adar Rishon. A day that a month lacks is the day that follows it.
WeekdayCounts PossibleWeekdayCounts(std::int32_t month, std::int32_t day, std::int32_t selector);

/// The same as "Yom Sheini 28.5%, Yom Shlishi 11.5%", without the weekdays that don't occur.
std::string PossibleWeekdays(std::int32_t month, std::int32_t day, std::int32_t selector);

/// The types of years that can follow a year of some character, among leap or common years, with how many do so in a
/// full cycle; most frequent first. None after what is no character.
std::vector<HebrewYearTypeCount> YearTypeAfter(std::string_view character, bool leap);

/// A number of years of the full cycle as "39369 days (full cycle frequency 5.7% &asymp; 13123 / 229824 of years)".
std::string FullCycleFreq(std::int32_t count);

/// The same as "13123 / 229824 = 39369 &asymp; 5.7%", on two lines for web pages.
std::string TypeFreq(std::int32_t count, bool html);

/// What the signs of a year's character mean, in lines.
std::string ExplainCharacter();

}  // namespace horvanta
