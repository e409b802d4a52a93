#include "locale/distances.h"

#include "core/numerics.h"

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

constexpr double flattening = 0.0033528106647474805;
constexpr double sphereRadius = 6367000;  // metres

double Squared(double x) { return x * x; }

}  // namespace

double SphericalDistance(const LocaleRecord& from, const LocaleRecord& to) {
    const double h = Squared(SinDeg((to.Latitude - from.Latitude) / 2)) +
                     CosDeg(from.Latitude) * CosDeg(to.Latitude) * Squared(SinDeg((to.Longitude - from.Longitude) / 2));
    return 2 * ArcTanRad(std::sqrt(std::max(0.0, 1 - h)), std::sqrt(h)) * sphereRadius / 1000;
}

double OblateDistance(const LocaleRecord& from, const LocaleRecord& to) {
    const double f = (from.Latitude + to.Latitude) / 2;
    const double g = (from.Latitude - to.Latitude) / 2;
    const double l = (from.Longitude - to.Longitude) / 2;
    const double s = Squared(SinDeg(g)) * Squared(CosDeg(l)) + Squared(CosDeg(f)) * Squared(SinDeg(l));
    const double c = Squared(CosDeg(g)) * Squared(CosDeg(l)) + Squared(SinDeg(f)) * Squared(SinDeg(l));
    if (s <= 0 || c <= 0) return 0;
    const double w = ArcTanRad(std::sqrt(s / c));
    const double r = std::sqrt(s * c) / w;
    const double h1 = (3 * r - 1) / (2 * c);
    const double h2 = (3 * r + 1) / (2 * s);
    return 2 * w * EquatorialRadius *
           (1 + flattening * h1 * Squared(SinDeg(f)) * Squared(CosDeg(g)) -
            flattening * h2 * Squared(CosDeg(f)) * Squared(SinDeg(g)));
}

double DirectionTo(const LocaleRecord& from, const LocaleRecord& to) {
    const double d = to.LongRad - from.LongRad;
    const double b = std::cos(from.LatRad) * std::tan(to.LatRad) - std::sin(from.LatRad) * std::cos(d);
    const double a = std::sin(d);
    return Round(b, 10) == 0 ? (a > 0 ? 90 : a < 0 ? 270 : 0) : ArcTan2Deg(a, b);
}

}  // namespace horvanta
