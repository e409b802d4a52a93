#pragma once

#include "core/numerics.h"

#include <cstdint>

/// The true conjunctions by the months of the Hebrew calendar.
namespace horvanta {

/// The universal moment of the conjunction of a month counted from the first molad, which is month 0: from the
/// ephemeris file of conjunctions where it holds the month, else by the series of the new moon.
Moment SolexNewMoon(std::int64_t month);

}  // namespace horvanta
