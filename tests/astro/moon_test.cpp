#include "astro/moon.h"

#include "astro/lunar_phases.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"

#include <gtest/gtest.h>

#include <cmath>

namespace horvanta {
namespace {

/// How far one angle is ahead of another, in [-180, 180).
double Ahead(double degrees, double of) { return Modulo(degrees - of + 180, 360) - 180; }

Moment TerrestrialDate(std::int32_t year, std::int32_t month, std::int32_t day) {
    return TerrestrialToUniversal(GregorianToFixed(year, month, day));
}

/// Meeus, Astronomical Algorithms, examples 47.a and 48.a, and the nodes after chapter 47.
TEST(Moon, AgreesWithPublishedExamples) {
    const Moment april = TerrestrialDate(1992, 4, 12);
    EXPECT_NEAR(lunar::Longitude(april), 133.167265, 0.00001);
    EXPECT_NEAR(lunar::Latitude(april), -3.229126, 0.00001);
    EXPECT_NEAR(lunar::Distance(april), 368409.7, 0.1);
    EXPECT_NEAR(lunar::BrightLimbAngle(april), 285.0, 0.1);
    EXPECT_NEAR(Ahead(lunar::AscendingNode(TerrestrialDate(1913, 5, 27)), 0), 0, 0.005);
    EXPECT_NEAR(lunar::AscendingNode(TerrestrialDate(1959, 12, 7)), 180.05, 0.005);
    EXPECT_NEAR(lunar::AscendingNode(TerrestrialDate(1913, 5, 27), true), 0.8763, 0.0005);
    EXPECT_NEAR(Ahead(lunar::DescendingNode(april), lunar::AscendingNode(april)), -180, 1e-9);
}

/// Centuries of Terrestrial Time from J2000; longitude and latitude of date and kilometres, by Swiss Ephemeris 2.10.03
/// with its theory of Moshier.
TEST(Moon, KeepsToAnEphemerisOverMillennia) {
    constexpr double rows[][4] = {
        {-49.9000, 191.7366, 2.3465, 401711.5},  {-36.0907, 206.5445, 4.6265, 392317.0},
        {-22.2814, 220.5002, -1.6849, 377970.5}, {-8.4721, 235.1048, -4.9444, 369990.0},
        {-3.8690, 106.7202, 4.2626, 371692.5},   {9.9403, 120.5340, 3.1332, 380624.0},
    };
    for (const auto& [centuries, longitude, latitude, distance] : rows) {
        const Moment universal = TerrestrialToUniversal(J2000 + centuries * 36525);
        const double tolerance = 0.006 + 0.0002 * std::fabs(centuries);
        EXPECT_NEAR(Ahead(lunar::Longitude(universal), longitude), 0, tolerance) << centuries;
        EXPECT_NEAR(lunar::Latitude(universal), latitude, 0.003) << centuries;
        EXPECT_NEAR(lunar::Distance(universal), distance, 100) << centuries;
    }
}

/// Julian day of Universal Time, latitude and longitude of a place at sea level; right ascension, declination, altitude
/// seen from the Earth's centre and from the place, azimuth, lit part and breadth, by the same program.
TEST(Moon, StandsWhereAnEphemerisSeesIt) {
    constexpr double rows[][10] = {
        {2452716.5004, -37.8, 144.95, 173.486, 8.015, -47.715, -48.382, 233.797, 0.9954, 0.5491},
        {2453887.8774, 64.15, -21.95, 135.993, 20.770, 2.545, 1.634, 43.749, 0.2640, 0.4982},
        {2460916.1394, 64.15, -21.95, 213.199, -17.551, 5.517, 4.618, 153.404, 0.2616, 0.4929},
    };
    for (const auto& [julianDay, latitude, longitude, rightAscension, declination, altitude, topocentric, azimuth, lit,
                      diameter] : rows) {
        const LocaleRecord place = MakeLocale("test", "", latitude, longitude, 0);
        const Moment x = JDToMoment(julianDay);
        SCOPED_TRACE(julianDay);
        EXPECT_NEAR(lunar::RightAscension(x), rightAscension, 0.01);
        EXPECT_NEAR(lunar::Declination(x), declination, 0.01);
        EXPECT_NEAR(lunar::Altitude(x, place), altitude, 0.02);
        EXPECT_NEAR(lunar::TopocentricAltitude(x, place), topocentric, 0.04);
        EXPECT_NEAR(lunar::Bearing(x, place), azimuth, 0.05);
        EXPECT_NEAR(lunar::LitFraction(x), lit, 0.005);
        EXPECT_NEAR(lunar::Diameter(x), diameter, 0.01);
    }
}

/// The half breadth counts as minutes, so that it adds a quarter of a minute only.
TEST(Moon, IsObservedFromItsPlace) {
    const LocaleRecord hill = MakeLocale("test", "", 40, 20, 1500);
    const LocaleRecord shore = MakeLocale("test", "", 40, 20, 0);
    for (Moment x = 739000; x < 739001; x += 0.07) {
        const double observed = lunar::ObservedAltitude(x, shore);
        EXPECT_NEAR(observed - lunar::TopocentricAltitude(x, shore), 34.26 / 60, 0.001);
        EXPECT_NEAR(lunar::ObservedAltitude(x, hill) - observed, HorizonDip(hill), 1e-9);
    }
}

/// Between the nearest perigee and the farthest apogee of a millennium about 2000 (Meeus, Astronomical Algorithms,
/// chapter 50), and each near a mean one.
TEST(Moon, ComesAndGoes) {
    for (Moment x = GregorianToFixed(1500, 1, 1); x < GregorianToFixed(2500, 1, 1); x += 1003.3) {
        const auto [perigee, least] = lunar::DistanceAtPerigee(x);
        const auto [apogee, greatest] = lunar::DistanceAtApogee(x);
        EXPECT_TRUE(least > 356300 && least < 370500) << x << ": " << least;
        EXPECT_TRUE(greatest > 403900 && greatest < 406800) << x << ": " << greatest;
        EXPECT_NEAR(least, lunar::Distance(perigee), 0.1);
        EXPECT_GT(perigee, x - 2);
        EXPECT_LT(perigee, x + 31);
        const Moment next = lunar::AnomalyPassage(x, 0, 1);
        EXPECT_NEAR(Ahead(lunar::Longitude(next), lunar::Perigee(next)), 0, 7) << x;
    }
}

}  // namespace
}  // namespace horvanta
