#include "astro/ephemeris.h"

namespace horvanta {

std::optional<Moment> SolexSolarLongitudeAfter(std::int32_t, double) { return std::nullopt; }

}  // namespace horvanta
