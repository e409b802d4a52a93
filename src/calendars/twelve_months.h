#pragma once

#include "core/numbering.h"

#include <cstdint>

/// What the solar calendars with the twelve months of Rome have in common. Whole days and years need no doubles: their
/// quotients lie on an integer or clearly beside it, so that integer division gives the dates of `Floor`, faster.
namespace horvanta::twelve_months {

using Days = std::int64_t;

/// Whole days from an epoch to a moment, held within the years of 32 bits.
inline Days DaysSince(Moment x, double epoch) {
    constexpr double limit = 784'000'000'000;
    const double days = Floor(x) - epoch;
    if (!(days < limit)) return static_cast<Days>(limit);
    return days > -limit ? static_cast<Days>(days) : static_cast<Days>(-limit);
}

/// The days of a year before the first of a month.
constexpr Days DaysBeforeMonth(Days month, bool leap) {
    const Days correction = month <= 2 ? 0 : leap ? -1 : -2;
    return FloorDivide(367 * month - 362, 12) + correction;
}

/// Days of a month, 28 to 31.
constexpr std::int16_t MonthLength(std::int32_t month, bool leap) {
    if (month == 2) return leap ? 29 : 28;
    return static_cast<std::int16_t>(30 + FloorModulo(month + FloorDivide(month, 8), 2));
}

struct MonthDay {
    std::uint32_t month;  ///< 1 to 12.
    std::uint32_t day;    ///< 1 to 31.
};

/// The date of the day with so many days of its year before it, at most 365.
constexpr MonthDay MonthDayOf(std::uint32_t prior, bool leap) {
    const std::uint32_t correction = prior < (leap ? 60U : 59U) ? 0 : leap ? 1 : 2;
    const std::uint32_t month = (12 * (prior + correction) + 373) / 367;
    const std::uint32_t firstOfMonth = (367 * month - 362) / 12 - correction;  // [0, 335]
    return {month, prior - firstOfMonth + 1};
}

struct YearDay {
    std::uint32_t year;   ///< From 0.
    std::uint32_t prior;  ///< Days of the year before this one, at most 365.
};

/// The year of a day in a run of years of which every fourth is leap, both counted from 0. In quarters of a day a year
/// is 1461 long on the average, and the odd day falls at the end of the last of four (Neri and Schneider, Euclidean
/// affine functions and their application to calendar algorithms).
constexpr YearDay YearDayOf(std::uint32_t day) { return {(4 * day + 3) / 1461, (4 * day + 3) % 1461 / 4}; }

}  // namespace horvanta::twelve_months
