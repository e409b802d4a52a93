#include "astro/local_time.h"

#include "astro/earth_axis.h"
#include "astro/timescales.h"
#include "core/memo.h"

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

/// The square term of the eccentricity is added, where its usual form subtracts it: that moves the equation of time by
/// less than a second within a thousand years of J2000.
double EquationOfTimeAt(double c) {
    constexpr double fullCircle = 6.28318530717958;
    const double longitude = 280.46645 + 36000.76983 * c + 0.0003032 * c * c;
    const double anomaly = MeanSolarAnomalyAt(c);
    const double e = 0.016708617 - (0.000042037 - 0.0000001236 * c) * c;
    const double tangent = TanDeg(ObliquityAt(c) / 2);
    const double y = tangent * tangent;
    const double sinAnomaly = SinDeg(anomaly);
    const double sinTwice = SinDeg(2 * longitude);
    const double cosTwice = CosDeg(2 * longitude);
    const double equation = (y * sinTwice - 2 * e * sinAnomaly + 4 * e * y * sinAnomaly * cosTwice -
                             y * y * sinTwice * cosTwice - 2.5 * e * e * sinAnomaly * CosDeg(anomaly)) /
                            fullCircle;
    return Sign(equation) * std::min(std::fabs(equation), 0.5);
}

}  // namespace

Moment LocalToUniversal(Moment local, const LocaleRecord& place) { return local - place.Longitude / 360; }

Moment UniversalToLocal(Moment universal, const LocaleRecord& place) {
    return isNever(universal) ? universal : universal + place.Longitude / 360;
}

Moment UniversalToStandard(Moment universal, const LocaleRecord& place) {
    return isNever(universal) ? universal : universal + HoursToDays(place.Zone);
}

Moment StandardToUniversal(Moment standardTime, const LocaleRecord& place) {
    return isNever(standardTime) ? standardTime : standardTime - HoursToDays(place.Zone);
}

Moment LocalToStandard(Moment local, const LocaleRecord& place) {
    return UniversalToStandard(LocalToUniversal(local, place), place);
}

double EquationOfTime(Moment universal) {
    static Memo<1, double, double> memo;
    const double centuries = JulianCenturies(universal);
    return memo.Of(centuries, [=] { return EquationOfTimeAt(centuries); });
}

Moment LocalToApparent(Moment local, const LocaleRecord& place) {
    return local + EquationOfTime(LocalToUniversal(local, place));
}

Moment ApparentToLocal(Moment apparent, const LocaleRecord& place) {
    return apparent - EquationOfTime(LocalToUniversal(apparent, place));
}

Moment ApparentToUniversal(Moment apparent, const LocaleRecord& place) {
    return LocalToUniversal(ApparentToLocal(apparent, place), place);
}

}  // namespace horvanta
