#pragma once

#include <cstdint>

/// The choices of the Hebrew calendar.
namespace horvanta::hebrew {

struct Options {
    std::int32_t CycleShift = 0;       ///< Moves the leap years within the cycle of 19 years.
    bool UseHebrewFont = false;        ///< Texts take their names in the letters of a Hebrew display font.
    std::int32_t MoladTimeFormat = 7;  ///< A molad is told in hours and parts (5), or hours, minutes and parts (7).
    bool operator==(const Options&) const = default;
};
inline Options options;

}  // namespace horvanta::hebrew
