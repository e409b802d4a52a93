#include "astro/year_dates.h"

#include "astro/timescales.h"

#include <cmath>

namespace horvanta {
namespace {

constexpr double secondsPerDay = 86400;
constexpr double daysPerOrbitalYear = 365.242194;

// The rotation-adjusted year: the Sun's mean daily motion on January 1 of year 1, and what it gains each day.
constexpr double motionGain = 0.000000000000555894094157348;
constexpr double motionAtEpoch = 0.9856469813365;

}  // namespace

double MomentToOrbitalDate(Moment universal) {
    return (universal - GregorianEpoch + DeltaT(universal - 1, secondsPerDay)) / daysPerOrbitalYear + 1;
}

Moment OrbitalDateToMoment(double orbitalDate) {
    return TerrestrialToUniversal((orbitalDate - 1) * daysPerOrbitalYear + GregorianEpoch);
}

double MomentToRAYDate(Moment universal) {
    const double days = universal - GregorianEpoch;
    return 1 + (motionGain * days + 1.971293962673) * days / 720;
}

Moment RAYDateToMoment(double rayDate) {
    return (std::sqrt(0.00000000040024374779329054 * (rayDate - 1) + 0.9714999718177547) - motionAtEpoch) / motionGain +
           GregorianEpoch;
}

double RAYYearLength(Moment universal) { return 360 / ((universal - GregorianEpoch) * motionGain + motionAtEpoch); }

Moment StepByOrbitalYear(Moment universal, double years) { return RAYDateToMoment(MomentToRAYDate(universal) + years); }

}  // namespace horvanta
