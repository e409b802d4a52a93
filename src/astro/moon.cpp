#include "astro/moon.h"

#include "astro/bisection.h"
#include "astro/earth_axis.h"
#include "astro/moon_tables.h"
#include "astro/series.h"
#include "astro/sidereal.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "core/memo.h"

#include <cmath>

namespace horvanta::lunar {
namespace {

constexpr double dailyMeanAnomaly = 477198.8675055 / 36525;
constexpr double daysPerDegreeOfPhase = 29.530588853 / 360;
constexpr double oneAstronomicalUnit = 149597870.7;  // km

/// The arguments of the series in degrees: mean longitude, elongation from the Sun, mean anomalies of Sun and Moon, and
/// argument of latitude. `factors` are the powers of the term by which the Earth's orbit becomes rounder.
struct Fundamentals {
    double longitude;
    double d;
    double m;
    double mPrime;
    double f;
    series::Factors factors;
};

double MeanAnomalyAt(double c) {
    return 134.9633964 + 477198.8675055 * c + 0.0087414 * c * c + c * c * c / 69699 - c * c * c * c / 14712000;
}

Fundamentals FundamentalsAt(double c) {
    const double c2 = c * c;
    const double c3 = c2 * c;
    const double c4 = c3 * c;
    const double e = 1 - 0.002516 * c - 0.0000074 * c2;
    return {.longitude = 218.3164477 + 481267.88123421 * c - 0.0015786 * c2 + c3 / 538841 - c4 / 65194000,
            .d = 297.8501921 + 445267.1114034 * c - 0.0018819 * c2 + c3 / 545868 - c4 / 113065000,
            .m = 357.5291092 + 35999.0502909 * c - 0.0001536 * c2 + c3 / 24490000,
            .mPrime = MeanAnomalyAt(c),
            .f = 93.272095 + 483202.0175233 * c - 0.0036539 * c2 - c3 / 3526000 + c4 / 863310000,
            .factors = {1, e, e * e}};
}

/// Shared by the three series of one moment.
const Fundamentals& FundamentalsOf(double centuries) {
    static Memo<1, double, Fundamentals> memo;
    return memo.Of(centuries, [=] { return FundamentalsAt(centuries); });
}

/// The coefficient in the column of the power of the factor that goes with the multiple of the Sun's anomaly.
template <class Row>
constexpr series::Term TermOf(const Row& row, double coefficient) {
    const double power = row.m < 0 ? -row.m : row.m;
    return {.angle = {row.d, row.m, row.mPrime, row.f},
            .coefficient = {power == 0 ? coefficient : 0, power == 1 ? coefficient : 0, power == 2 ? coefficient : 0}};
}

constexpr auto longitudeSeries =
    series::MakeTable(longitudeTerms, [](const LongitudeTerm& row) { return TermOf(row, row.longitude); });
constexpr auto distanceSeries =
    series::MakeTable(longitudeTerms, [](const LongitudeTerm& row) { return TermOf(row, row.distance); });
constexpr auto latitudeSeries =
    series::MakeTable(latitudeTerms, [](const LatitudeTerm& row) { return TermOf(row, row.latitude); });

constexpr auto asTheyStand = [](const series::Term& term) { return term; };

/// The terms that Venus, Jupiter and the flattening of the Earth add: multiples of two angles of their own, of the
/// Moon's mean longitude, its anomaly and its argument of latitude.
constexpr series::Term addedToLongitude[] = {
    {{1, 0, 0, 0, 0}, {3958}},
    {{0, 0, 1, 0, -1}, {1962}},
    {{0, 1, 0, 0, 0}, {318}},
};
constexpr series::Term addedToLatitude[] = {
    {{1, 0, 0, 0, 1}, {175}},  {{1, 0, 0, 0, -1}, {175}}, {{0, 0, 1, 0, 0}, {-2235}},
    {{0, 0, 1, -1, 0}, {127}}, {{0, 0, 1, 1, 0}, {-115}}, {{0, 1, 0, 0, 0}, {382}},
};
/// What makes the true node of the mean one.
constexpr series::Term nodeTerms[] = {
    {{2, 0, 0, -2}, {-1.4979}}, {{0, 1}, {-0.15}},          {{2}, {-0.1226}},
    {{0, 0, 0, 2}, {0.1176}},   {{0, 0, 2, -2}, {-0.0801}},
};
constexpr auto nodeSeries = series::MakeTable(nodeTerms, asTheyStand);
constexpr auto longitudeAddition = series::MakeTable(addedToLongitude, asTheyStand);
constexpr auto latitudeAddition = series::MakeTable(addedToLatitude, asTheyStand);

double VenusAngle(double c) { return 119.75 + 131.849 * c; }

double LongitudeAt(double c) {
    const Fundamentals& at = FundamentalsOf(c);
    const double sum = series::SumOfSines(longitudeSeries, {at.d, at.m, at.mPrime, at.f}, at.factors);
    const double jupiterAngle = 53.09 + 479264.29 * c;
    const double all =
        series::SumOfSines(longitudeAddition, {VenusAngle(c), jupiterAngle, at.longitude, at.mPrime, at.f}, {1}, sum);
    return Degrees(all / 1000000 + at.longitude + NutationAt(c));
}

double LatitudeAt(double c) {
    const Fundamentals& at = FundamentalsOf(c);
    const double sum = series::SumOfSines(latitudeSeries, {at.d, at.m, at.mPrime, at.f}, at.factors);
    const double ownAngle = 313.45 + 481266.484 * c;
    return series::SumOfSines(latitudeAddition, {VenusAngle(c), ownAngle, at.longitude, at.mPrime, at.f}, {1}, sum) /
           1000000;
}

double DistanceAt(double c) {
    const Fundamentals& at = FundamentalsOf(c);
    return 385000.56 + series::SumOfCosines(distanceSeries, {at.d, at.m, at.mPrime, at.f}, at.factors) / 1000;
}

/// A direction in degrees from the ecliptic or the equator.
struct Equatorial {
    double rightAscension;
    double declination;
};

Equatorial ToEquator(double longitude, double latitude, double obliquity) {
    const double sinLongitude = SinDeg(longitude);
    const double sinObliquity = SinDeg(obliquity);
    const double cosObliquity = CosDeg(obliquity);
    return {
        .rightAscension = ArcTan2Deg(sinLongitude * cosObliquity - TanDeg(latitude) * sinObliquity, CosDeg(longitude)),
        .declination = ArcSinDeg(SinDeg(latitude) * cosObliquity + CosDeg(latitude) * sinObliquity * sinLongitude)};
}

Equatorial PositionAt(Moment universal) {
    static Memo<8, double, Equatorial> memo;
    const double centuries = JulianCenturies(universal);
    return memo.Of(centuries,
                   [=] { return ToEquator(Longitude(universal), Latitude(universal), ObliquityAt(centuries)); });
}

double ParallaxAt(double altitude, double distance) {
    return ArcSinDeg(EquatorialRadius * CosDeg(altitude) / distance);
}

double HourAngleAt(double siderealDegrees, double rightAscension, const LocaleRecord& place) {
    return Degrees(place.Longitude + siderealDegrees - rightAscension);
}

/// Of the angle between Moon and Sun, seen from the Earth's centre.
double CosElongation(Moment universal) { return CosDeg(Latitude(universal)) * CosDeg(Phase(universal)); }

}  // namespace

double Longitude(Moment universal) {
    static Memo<8, double, double> memo;
    const double centuries = JulianCenturies(universal);
    return memo.Of(centuries, [=] { return LongitudeAt(centuries); });
}

double Latitude(Moment universal) {
    static Memo<8, double, double> memo;
    const double centuries = JulianCenturies(universal);
    return memo.Of(centuries, [=] { return LatitudeAt(centuries); });
}

double Distance(Moment universal) {
    static Memo<8, double, double> memo;
    const double centuries = JulianCenturies(universal);
    return memo.Of(centuries, [=] { return DistanceAt(centuries); });
}

double Declination(Moment universal) { return PositionAt(universal).declination; }
double RightAscension(Moment universal) { return PositionAt(universal).rightAscension; }

double HourAngle(Moment universal, const LocaleRecord& place) {
    return HourAngleAt(ApparentSiderealDegrees(universal), RightAscension(universal), place);
}

double Altitude(Moment universal, const LocaleRecord& place) {
    const auto [rightAscension, declination] = PositionAt(universal);
    const double hourAngle = HourAngleAt(ApparentSiderealDegrees(universal), rightAscension, place);
    const double altitude = ArcSinDeg(std::sin(place.LatRad) * SinDeg(declination) +
                                      std::cos(place.LatRad) * CosDeg(declination) * CosDeg(hourAngle));
    return ModuloRange(altitude, -180, 180);
}

double Parallax(Moment universal, const LocaleRecord& place) {
    return ParallaxAt(Altitude(universal, place), Distance(universal));
}

double TopocentricAltitude(Moment universal, const LocaleRecord& place) {
    const double altitude = Altitude(universal, place);
    return altitude - ParallaxAt(altitude, Distance(universal));
}

double HorizonLift(Moment universal) { return DegMinSec(0, 34 + Diameter(universal) / 2, 0); }

double ObservedAltitude(Moment universal, const LocaleRecord& place) {
    return TopocentricAltitude(universal, place) + HorizonDipInUse(place) + HorizonLift(universal);
}

double Bearing(Moment universal, const LocaleRecord& place) {
    const auto [rightAscension, declination] = PositionAt(universal);
    const double hourAngle = HourAngleAt(SiderealDegrees(universal), rightAscension, place);
    const double x = CosDeg(hourAngle) * std::sin(place.LatRad) - TanDeg(declination) * std::cos(place.LatRad);
    return Degrees(ArcTan2Deg(SinDeg(hourAngle), x) + 180);
}

double Phase(Moment universal, bool isSigned) {
    const double ahead = Longitude(universal) - SolarLongitude(universal);
    return isSigned ? ModuloRange(ahead, -180, 180) : Degrees(ahead);
}

double Diameter(Moment universal) {
    constexpr double radius = 1737.9211478969999;  // km
    return 2 * ArcSinDeg(radius / Distance(universal));
}

/// The Sun is taken at its mean distance.
double LitFraction(Moment universal) {
    const double cosElongation = CosElongation(universal);
    const double sinElongation = std::sqrt(1 - cosElongation * cosElongation);
    const double phaseAngle =
        std::atan2(oneAstronomicalUnit * sinElongation, Distance(universal) - oneAstronomicalUnit * cosElongation);
    return (1 + std::cos(phaseAngle)) / 2;
}

double BrightLimbAngle(Moment universal) {
    const Equatorial moon = PositionAt(universal);
    const Equatorial sun = ToEquator(SolarLongitude(universal), 0, Obliquity(universal));
    const double ahead = sun.rightAscension - moon.rightAscension;
    return ArcTan2Deg(CosDeg(sun.declination) * SinDeg(ahead),
                      SinDeg(sun.declination) * CosDeg(moon.declination) -
                          CosDeg(sun.declination) * SinDeg(moon.declination) * CosDeg(ahead));
}

double ParallacticAngle(Moment universal, const LocaleRecord& place) {
    const auto [rightAscension, declination] = PositionAt(universal);
    const double hourAngle = HourAngleAt(ApparentSiderealDegrees(universal), rightAscension, place);
    return ArcTan2Deg(std::cos(place.LatRad) * SinDeg(hourAngle),
                      std::sin(place.LatRad) * CosDeg(declination) -
                          std::cos(place.LatRad) * SinDeg(declination) * CosDeg(hourAngle));
}

double AscendingNode(Moment universal, bool useTrue) {
    const double c = JulianCenturies(universal);
    const double mean =
        Degrees(125.0445479 - 1934.1362891 * c + 0.0020754 * c * c + c * c * c / 467441 - c * c * c * c / 60616000);
    if (!useTrue) return mean;
    const Fundamentals& at = FundamentalsOf(c);
    return series::SumOfSines(nodeSeries, {at.d, at.m, at.mPrime, at.f}, {1}, mean);
}

double DescendingNode(Moment universal, bool useTrue) { return Degrees(AscendingNode(universal, useTrue) + 180); }

double Perigee(Moment universal) {
    const double c = JulianCenturies(universal);
    return Degrees(83.3532465 + 4069.0137287 * c - 0.01032 * c * c - c * c * c / 80053 + c * c * c * c / 18999000);
}

double Apogee(Moment universal) { return Degrees(Perigee(universal) + 180); }

namespace {

/// Halves four days about a passage, towards the end with the lesser `sign` times the distance, until the distances at
/// both ends agree within a metre.
Apsis ApsisNear(Moment passage, double sign) {
    Moment moment = passage;
    Apsis from{passage - 2, Distance(passage - 2)};
    Apsis to{passage + 2, Distance(passage + 2)};
    while (std::fabs(from.distance - to.distance) > 0.001) {
        moment = (from.moment + to.moment) / 2;
        (sign * from.distance < sign * to.distance ? to : from) = {moment, Distance(moment)};
    }
    return {moment, moment == from.moment ? from.distance : to.distance};
}

}  // namespace

Apsis DistanceAtPerigee(Moment universal) { return ApsisNear(LongitudeAfter(universal, Perigee(universal)), 1); }
Apsis DistanceAtApogee(Moment universal) { return ApsisNear(LongitudeAfter(universal, Apogee(universal)), -1); }

/// The estimate goes by the rate of the phase and comes late by up to two days, which the reach covers.
Moment LongitudeAfter(Moment universal, double degrees) {
    constexpr AngleSearch search{.daysPerDegree = daysPerDegreeOfPhase, .reach = 5, .width = 0.000001};
    return ArrivalAfter(universal, degrees, search, Longitude);
}

Moment AnomalyPassage(Moment universal, double degrees, int direction) {
    return EvenPassage(universal, degrees, direction, dailyMeanAnomaly,
                       [](Moment x) { return MeanAnomalyAt(JulianCenturies(x)); });
}

}  // namespace horvanta::lunar
