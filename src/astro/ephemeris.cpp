#include "astro/ephemeris.h"

#include "astro/ephemeris_files.h"
#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/year_dates.h"

namespace horvanta {
namespace {

Moment ComputedQuarter(std::int64_t lunation, double degrees) {
    return PhaseAfter(NthNewMoon(lunation + FirstNewMoonOf2000) - 2, degrees);
}

}  // namespace

Moment SolexSolarLongitudeAfter(std::int64_t year, double degrees) {
    if (degrees < 0) return SolexSolarLongitudeAfter(year - 1, -degrees);
    if (const auto listed = ephemeris::ListedSeason(year, degrees)) return *listed;
    if (ephemeris::ComplaintOfYear(year)) return NeverMoment;
    return SolarLongitudeAfter(OrbitalDateToMoment(static_cast<double>(year)), degrees);
}

Moment SolexLunarQuarter(std::int64_t lunation, double degrees) {
    if (degrees < 0) return SolexLunarQuarter(lunation - 1, -degrees);
    if (const auto listed = ephemeris::ListedQuarter(lunation, degrees)) return *listed;
    return ephemeris::ComplaintOfLunation(lunation) ? NeverMoment : ComputedQuarter(lunation, degrees);
}

Moment LunarQuarter(std::int64_t lunation, double degrees) {
    if (degrees < 0) return LunarQuarter(lunation - 1, -degrees);
    const auto listed = ephemeris::ListedQuarter(lunation, degrees);
    return listed ? *listed : ComputedQuarter(lunation, degrees);
}

}  // namespace horvanta
