#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Phrases that several calendars share.
namespace horvanta {

/// "15+351=366": how much of a whole has begun, what remains, and the whole.
std::string PartAndRest(int part, int whole);

/// "24th year of 6th cycle AD" for cycles of so many years; `kind` is what stands for "cycle". Years before 1 count
/// their cycles back from it.
std::string YearOfCycle(std::int32_t year, std::int32_t length, std::string_view kind);

/// "Monday, January 15, 2024"
std::string DateInWords(std::string_view weekday, std::string_view month, int day, std::int32_t year);

}  // namespace horvanta
