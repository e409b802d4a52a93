#include "astro/sidereal.h"

#include "astro/earth_axis.h"
#include "astro/timescales.h"

namespace horvanta {
namespace {

constexpr double daysPerCentury = 36525;

}  // namespace

double MeanSiderealDegrees(Moment universal) {
    const double c = (universal - J2000) / daysPerCentury;
    return Modulo(280.46061837 + daysPerCentury * c * 360.98564736629 + 0.000387933 * c * c - c * c * c / 38710000,
                  360);
}

double ApparentSiderealDegrees(Moment universal) {
    const double centuries = JulianCenturies(universal);
    return MeanSiderealDegrees(universal) + NutationAt(centuries) * CosDeg(ObliquityAt(centuries));
}

double SiderealDegrees(Moment universal) {
    const double c = (universal - J2000) / daysPerCentury;
    return Modulo(280.46061837 + 13185000.770053742 * c + 0.000387933 * c * c - c * c * c / 38710000, 360);
}

}  // namespace horvanta
