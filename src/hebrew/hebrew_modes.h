#pragma once

#include <cstdint>

/// Other leap rules of the Hebrew calendar.
namespace horvanta {

/// Leap years of the rectified cycle, 130 in 353 years, whose mean year keeps to the spring equinox.
bool isHebrewLeapYear353(std::int32_t year);

/// Lunations before a month by the rectified cycle.
double ElapsedMonths353(std::int32_t year, std::int32_t month);

}  // namespace horvanta
