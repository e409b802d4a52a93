#include "astro/sun.h"

#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

/// How far one angle is ahead of another, in [-180, 180).
double Ahead(double degrees, double of) { return Modulo(degrees - of + 180, 360) - 180; }

Moment TerrestrialDate(std::int32_t year, std::int32_t month, std::int32_t day) {
    return TerrestrialToUniversal(GregorianToFixed(year, month, day));
}

/// Meeus, Astronomical Algorithms, examples 22.a, 25.b and 28.b.
TEST(Sun, AgreesWithPublishedExamples) {
    const Moment april = TerrestrialDate(1987, 4, 10);
    EXPECT_NEAR(Nutation(april) * 3600, -3.788, 0.001);
    EXPECT_NEAR(Obliquity(april), DegMinSec(23, 26, 27.407), 1e-6);
    const Moment october = TerrestrialDate(1992, 10, 13);
    EXPECT_NEAR(SolarLongitude(october), 199.906, 0.001);
    EXPECT_NEAR(SolarDeclination(october), -7.78382, 0.001);
    EXPECT_NEAR(EquationOfTime(october) * 86400, 822.7, 3);
}

/// Centuries of Terrestrial Time from J2000, and the apparent longitude of date by Astronomy Engine 2.1.19 (npm
/// astronomy-engine; SunPosition at AstroTime.FromTerrestrialTime). Their precessions part with the square of time.
TEST(Sun, KeepsItsLongitudeOverMillennia) {
    constexpr std::pair<double, double> rows[] = {
        {-50, 244.2333}, {-30, 258.5538}, {-10, 273.0396},    {-2, 278.8996}, {-0.31, 280.1473},
        {0, 280.3679},   {1.5, 281.4807}, {0.2377, 195.9272}, {8, 286.2996},  {40, 310.5905},
    };
    for (const auto& [centuries, longitude] : rows) {
        const double tolerance = 0.001 + 0.000015 * centuries * centuries;
        EXPECT_NEAR(SolarLongitude(centuries, true, true), longitude, tolerance) << centuries;
        const Moment universal = TerrestrialToUniversal(J2000 + centuries * 36525);
        EXPECT_NEAR(SolarLongitude(universal), longitude, tolerance + 1e-4) << centuries;
    }
}

TEST(Seasons, FollowOneAnotherThroughAllYears) {
    for (std::int32_t year = -3000; year <= 6000; year += 29) {
        Moment before = SeasonMoment(year, -90);
        EXPECT_EQ(before, SeasonMoment(year - 1, 90)) << year;
        EXPECT_NEAR(SeasonMoment(year, -90, 0.75), before + 0.75, 1e-9) << year;
        before = SeasonMoment(year, -270);
        for (const double degrees : {0.0, 45.0, 90.0, 180.0, 270.0, 280.0}) {
            const Moment season = SeasonMoment(year, degrees);
            EXPECT_NEAR(Ahead(SolarLongitude(season), degrees), 0, 2e-5) << year << " at " << degrees;
            EXPECT_GT(season, before) << year << " at " << degrees;
            EXPECT_LT(season - before, 100) << year << " at " << degrees;
            if (degrees < 270) {
                EXPECT_EQ(FixedToGregorianYear(season), year) << degrees;
            }
            before = season;
        }
        EXPECT_NEAR(SeasonMoment(year + 1, 0) - SeasonMoment(year, 0), 365.2424, 0.03) << year;
    }
}

TEST(SameLongitudeYearsLater, FindsTheLongitudeNearTheTime) {
    for (Moment t = GregorianToFixed(-2000, 1, 1); t < GregorianToFixed(5000, 1, 1); t += 50023.3) {
        for (const double years : {1.0, -1000.0, 0.25, -0.25, -7.75}) {
            const Moment found = SameLongitudeYearsLater(t, years);
            EXPECT_NEAR(Ahead(SolarLongitude(found) - SolarLongitude(t), years * 360), 0, 3e-5) << t << ", " << years;
            EXPECT_NEAR(found - t, years * 365.2422, 5) << t << ", " << years;
        }
    }
}

/// What is remembered depends on Delta T, on the numbering and on nothing else.
TEST(Sun, NeverAnswersFromAStaleMemo) {
    using Question = double (*)(Moment);
    const std::pair<const char*, Question> angles[] = {
        {"longitude", [](Moment x) { return SolarLongitude(x); }},
        {"nutation", [](Moment x) { return Nutation(x); }},
        {"season", [](Moment x) { return SeasonMoment(FixedToGregorianYear(x), 0) - x; }},
        {"new moon", [](Moment x) { return NthNewMoon(ApproxNthMoon(x)) - x; }},
        {"equation of time", [](Moment x) { return EquationOfTime(x); }},
        {"lunar longitude", lunar::Longitude},
        {"lunar latitude", lunar::Latitude},
        {"lunar distance", lunar::Distance},
        {"lunar declination", lunar::Declination},
    };
    const double sinceEpoch = 700000.25;
    const Moment x = GregorianEpoch + sinceEpoch;
    const double slow = DeltaT(x, 86400);
    for (const auto& [name, ask] : angles) {
        const double before = ask(x);
        SetDeltaTDisabled(true);
        EXPECT_NE(ask(x), before) << name;
        EXPECT_NEAR(ask(x + slow), before, 1e-4) << name;
        SetDeltaTDisabled(false);
        EXPECT_EQ(ask(x), before) << name;
        for (const double day : {730487.0, -1721424.0}) {
            SetFixedDayEpoch(day, 1, "test");
            EXPECT_NE(ask(x), before) << name << ", " << day;
            EXPECT_NEAR(ask(GregorianEpoch + sinceEpoch), before, 1e-4) << name << ", " << day;
        }
        SetFixedDayEpoch(GregorianEpoch, 1, "rata die");
    }
}

}  // namespace
}  // namespace horvanta
