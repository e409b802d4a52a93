#pragma once

#include <cstdint>

/// The choices of the Hebrew calendar.
namespace horvanta::hebrew {

struct Options {
    std::int32_t HebrewMode = 21;           ///< The rule of the calendars beside the traditional one, 0 to 23.
    std::int32_t CycleShift = 0;            ///< Moves the leap years within the cycle of 19 years.
    bool UseHebrewFont = false;             ///< Names are written in Hebrew letters.
    std::int32_t CandlesBeforeSunset = 18;  ///< Minutes.
    std::int32_t MoladTimeFormat = 7;  ///< A molad is told in hours and parts (5), or hours, minutes and parts (7).
    bool operator==(const Options&) const = default;
};
inline Options options;

}  // namespace horvanta::hebrew
