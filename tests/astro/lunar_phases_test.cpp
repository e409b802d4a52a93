#include "astro/lunar_phases.h"

#include "astro/moon.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace horvanta {
namespace {

/// Meeus, Astronomical Algorithms, example 49.a.
TEST(NewMoon, AgreesWithAPublishedExample) {
    const std::int64_t february1977 = FirstNewMoonOf2000 - 283;
    EXPECT_NEAR(MomentToJD(UniversalToTerrestrial(NthNewMoon(february1977))), 2443192.65118, 0.00002);
}

/// Year, month, day, hour and minute of Universal Time of quarters, and which it is, by Astronomy Engine
/// 2.1.19 (npm astronomy-engine; SearchMoonQuarter, NextMoonQuarter).
TEST(LunarPhases, AgreeWithAnEphemerisToMinutes) {
    constexpr std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t> rows[] = {
        {2000, 1, 6, 1814, 0},   {2003, 5, 1, 1216, 0},  {2006, 8, 23, 1911, 0}, {2009, 12, 16, 1203, 0},
        {2010, 10, 14, 2128, 1}, {2014, 12, 6, 1227, 2}, {2019, 1, 27, 2111, 3}, {2019, 11, 26, 1506, 0},
        {2020, 9, 24, 155, 1},   {2021, 7, 24, 237, 2},  {2025, 9, 14, 1033, 3}, {2029, 11, 6, 425, 0},
    };
    for (const auto& [year, month, day, hhmm, quarter] : rows) {
        const Moment expected = GregorianToFixed(year, month, day) + hhmm / 100 / 24.0 + hhmm % 100 / 1440.0;
        EXPECT_NEAR((PhaseAfter(expected - 5, 90 * quarter) - expected) * 1440, 0, 2) << year << ' ' << month;
        EXPECT_NEAR((PhaseBefore(expected + 5, 90 * quarter) - expected) * 1440, 0, 2) << year << ' ' << month;
        if (quarter == 0) {
            EXPECT_NEAR((NewMoonNearest(expected + 9) - expected) * 1440, 0, 2) << year << ' ' << month;
        }
    }
}

/// Julian days of Terrestrial Time and phases, by Swiss Ephemeris 2.10.03 with its theory of Moshier.
TEST(LunarPhases, KeepToAnEphemerisOverMillennia) {
    constexpr std::pair<double, double> rows[] = {
        {628982.0710, 0},    {719322.3702, 90},   {809635.1241, 180},  {899946.3802, 270},  {990288.3489, 0},
        {1080600.1919, 90},  {1170941.1453, 180}, {1261254.2482, 270}, {1351594.5205, 0},   {1441906.7735, 90},
        {1532218.8396, 180}, {1622559.6747, 270}, {1712872.2522, 0},   {1803212.9705, 90},  {1893525.6999, 180},
        {1983866.9522, 270}, {2074178.2988, 0},   {2164491.3615, 90},  {2254831.7845, 180}, {2345144.1919, 270},
        {2435485.6261, 0},   {2525797.1211, 90},  {2616109.6621, 180}, {2706450.0680, 270}, {2796763.0296, 0},
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
        EXPECT_NEAR(NthNewMoon(n + 1) - NthNewMoon(n), 29.53, 0.4) << x;

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
        EXPECT_EQ(JumpMeanNewMoon(mean, -1), MeanNewMoonUT(L - 1)) << L;
        EXPECT_EQ(JumpMeanNewMoon(mean + 0.4, -1), mean) << L;
        EXPECT_EQ(JumpMeanNewMoon(mean - 0.4, 1), mean) << L;
        EXPECT_NEAR(MomentToLunation(mean), L, 0.01) << L;
    }
    SetDeltaTDisabled(true);
    EXPECT_EQ(JumpMeanNewMoon(MeanNewMoonTT(-60000), 1), MeanNewMoonTT(-59999));
}

/// The mean month of years 1900 and 2100 (Chapront's theory, as given in Explanatory Supplement to the Astronomical
/// Almanac, 1992, 11.2): 29.5305888531 + 0.00000021621 T atomic days.
TEST(MeanNewMoon, ComesWithThePublishedMonth) {
    for (const double centuries : {-1.0, 0.0, 1.0}) {
        const double L = centuries * 1236.85;
        EXPECT_NEAR(MSM_Atomic(L), 29.5305888531 + 0.00000021621 * centuries, 5e-8) << centuries;
        EXPECT_NEAR(NewMoonEstimateUT(L) - NewMoonAdjustUT(L), MeanNewMoonUT(L), 0.002) << centuries;
    }
    EXPECT_LT(MSM_Solar(24000), MSM_Solar(0)) << "days grow longer";
    EXPECT_NEAR(MomentToMeanSynodicMonth(J2000), MSM_Solar(0), 2e-6);
    EXPECT_EQ(MSM_AtomicToLunation(29.530555555555555 + 3 / 86400.0), MSM_AtomicToLunation(3));
}

TEST(LunationNumbers, CountFromTheirEpochs) {
    constexpr std::tuple<const char*, double, std::int32_t, std::int32_t, std::int32_t> rows[] = {
        {"J2000", 0, 2000, 1, 6}, {"Brown", 1, 1923, 1, 17},     {"Islamic", 1, 622, 7, 17},
        {"RD Nth", 0, 1, 1, 11},  {"Goldstine", 0, -1000, 1, 1}, {"Hebrew", 1, -3760, 9, 6},
    };
    for (const auto& [name, number, year, month, day] : rows) {
        const auto convention = std::ranges::find(LunationConventions, name, &LunationConvention::Name);
        ASSERT_NE(convention, LunationConventions.end()) << name;
        EXPECT_EQ(convention->FirstLunation, number) << name;
        const Moment found = NumberedLunation(number, *convention);
        EXPECT_NEAR(found, GregorianToFixed(year, month, day) + 0.5, 1) << name;
        EXPECT_NEAR(lunar::Phase(NumberedLunation(number + 0.25, *convention)), 90, 0.001) << name;
    }
}

/// What is remembered depends on Delta T, on the numbering and on nothing else.
TEST(LunarPhases, NeverAnswerFromAStaleMemo) {
    const Moment before = NthNewMoon(0) - GregorianEpoch;
    EXPECT_EQ(NthNewMoon(0), LunationZero());
    SetDeltaTDisabled(true);
    EXPECT_NEAR(NthNewMoon(0) - GregorianEpoch - before, 10583.6 / 86400, 0.001);
    EXPECT_EQ(NthNewMoon(0), LunationZero());
    SetDeltaTDisabled(false);
    SetFixedDayEpoch(730000, 1, "test");
    EXPECT_NEAR(NthNewMoon(0) - GregorianEpoch, before, 1e-8);
    EXPECT_EQ(NthNewMoon(0), LunationZero());
    EXPECT_EQ(MomentToMeanSynodicMonth(GregorianEpoch), 29.530595186866936 - 0.00000000001084689700000392);
}

}  // namespace
}  // namespace horvanta
