#include "astro/lunar_phases.h"

#include "astro/moon.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

/// Julian days of Terrestrial Time and phases, by Swiss Ephemeris 2.10.03 with its theory of Moshier.
TEST(LunarPhases, KeepToAnEphemerisOverMillennia) {
    constexpr std::pair<double, double> rows[] = {
        {628982.0710, 0},  {719322.3702, 90},  {809635.1241, 180},  {899946.3802, 270},
        {1351594.5205, 0}, {1441906.7735, 90}, {1532218.8396, 180}, {1622559.6747, 270},
        {2435485.6261, 0}, {2525797.1211, 90}, {2616109.6621, 180}, {2706450.0680, 270},
    };
    for (const auto& [julianDay, phase] : rows) {
        const Moment expected = TerrestrialToUniversal(JDToMoment(julianDay));
        EXPECT_NEAR((PhaseAfter(expected - 10, phase) - expected) * 1440, 0, 10) << julianDay;
        if (phase == 0) {
            EXPECT_NEAR((NewMoonNearest(expected - 3) - expected) * 1440, 0, 10) << julianDay;
        }
    }
}

TEST(LunarPhases, FollowOneAnotherThroughAllYears) {
    for (Moment x = MinFixedDay + 40; x < MaxFixedDay - 40; x += 1511.7) {
        const Moment before = NewMoonBefore(x);
        const Moment after = NewMoonAfter(x);
        EXPECT_LT(before, x);
        EXPECT_GT(after, x);
        EXPECT_NEAR(after - before, 29.53, 0.4) << x;
        EXPECT_EQ(NewMoonAfter(before), after) << "the new moon after one is the next";
        EXPECT_EQ(NewMoonBefore(after), before);
        EXPECT_EQ(NewMoonNearest(x), x - before < after - x ? before : after);
        const std::int64_t n = ApproxNthMoon(x);
        EXPECT_NEAR(NthNewMoon(n), x, 3 * 29.53) << x;

        const Moment first = PhaseAfter(before + 1, 90);
        const Moment full = PhaseAfter(first, 180);
        const Moment last = PhaseAfter(full, 270);
        const Moment next = PhaseAfter(last, 0);
        const std::pair<Moment, Moment> quarters[] = {{before, first}, {first, full}, {full, last}, {last, next}};
        for (const auto& [from, to] : quarters) EXPECT_NEAR(to - from, 7.38, 1.2) << x;
        EXPECT_NEAR(next, after, 0.1) << "two theories of one new moon";
        EXPECT_NEAR(PhaseBefore(next - 1, 90), first, 0.00002);
        EXPECT_NEAR(lunar::Phase(next, true), 0, 0.0002);
    }
}

TEST(MeanNewMoon, IsSteppedFromAndFoundAgain) {
    const double first = MomentToLunation(GregorianToFixed(-4700, 1, 1));
    const double last = MomentToLunation(GregorianToFixed(11900, 1, 1));
    for (double L = Floor(first); L < last; L += 7) {
        const Moment mean = MeanNewMoonUT(L);
        EXPECT_EQ(JumpMeanNewMoon(mean, 1), MeanNewMoonUT(L + 1)) << L;
        EXPECT_EQ(JumpMeanNewMoon(mean + 0.4, -1), mean) << L;
        EXPECT_NEAR(MomentToLunation(mean), L, 0.01) << L;
    }
}

/// Meeus, Astronomical Algorithms, example 49.a. The mean month of years 1900 and 2100 (Chapront's theory, as given in
/// Explanatory Supplement to the Astronomical Almanac, 1992, 11.2): 29.5305888531 + 0.00000021621 T atomic days.
TEST(NewMoon, AgreesWithPublishedExamples) {
    const std::int64_t february1977 = FirstNewMoonOf2000 - 283;
    EXPECT_NEAR(MomentToJD(UniversalToTerrestrial(NthNewMoon(february1977))), 2443192.65118, 0.00002);
    for (const double T : {-1.0, 0.0, 1.0}) {
        EXPECT_NEAR(MSM_Atomic(T * 1236.85), 29.5305888531 + 0.00000021621 * T, 5e-8) << T;
    }
    EXPECT_NEAR(MomentToMeanSynodicMonth(J2000), MSM_Solar(0), 2e-6);
    EXPECT_EQ(MSM_AtomicToLunation(29.530555555555555 + 3 / 86400.0), MSM_AtomicToLunation(3));
    EXPECT_LT(MSM_Solar(24000), MSM_Solar(0)) << "days grow longer";
}

}  // namespace
}  // namespace horvanta
