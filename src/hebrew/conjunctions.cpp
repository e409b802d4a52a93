#include "hebrew/conjunctions.h"

#include "astro/ephemeris_files.h"
#include "astro/lunar_phases.h"
#include "astro/timescales.h"
#include "hebrew/hebrew_arithmetic.h"

namespace horvanta {

Moment SolexNewMoon(std::int64_t month) {
    constexpr std::int64_t ofTheFirstMolad = -46509;  // the number of its new moon
    if (const auto listed = ephemeris::ListedConjunction(month)) {
        return TerrestrialToUniversal(Floor(TraditionalMolad(static_cast<double>(month))) + *listed);
    }
    return NthNewMoon(month + ofTheFirstMolad);
}

}  // namespace horvanta
