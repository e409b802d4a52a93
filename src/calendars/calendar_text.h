#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Texts that several calendars share.
namespace horvanta {

/// The letter of the Sundays of a year, where A is January 1, and in a leap year behind it the letter of its Sundays
/// from March on. The weekday is that of the last day of the year before, 0 = Sunday.
inline std::string DominicalLetters(std::int32_t weekdayBefore, bool leap) {
    constexpr std::string_view fromJanuary = "ABCDEFG";
    constexpr std::string_view fromMarch = "GABCDEF";
    const auto i = static_cast<std::size_t>(6 - weekdayBefore);
    std::string letters{fromJanuary[i]};
    if (leap) letters += fromMarch[i];
    return letters;
}

/// "Leap year", "Common year"
constexpr const char* YearKind(bool leap) { return leap ? "Leap year" : "Common year"; }

/// "15+351=366": how much of a whole has begun, what remains, and the whole.
std::string PartAndRest(int part, int whole);

/// "24th year of 6th cycle AD" for cycles of so many years; `kind` is what stands for "cycle". Years before 1 count
/// their cycles back from it.
std::string YearOfCycle(std::int32_t year, std::int32_t length, std::string_view kind);

/// "Monday, January 15, 2024"
std::string DateInWords(std::string_view weekday, std::string_view month, int day, std::string_view year);

}  // namespace horvanta
