#include "clock/zone_time.h"

#include "astro/local_time.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "calendars/gregorian.h"
#include "clock/moon_clock.h"
#include "core/locale.h"
#include "core/numbering.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <tuple>

namespace horvanta {
namespace {

constexpr double hour = 1 / 24.0;
constexpr double minute = hour / 60;

struct Year {
    std::int32_t year;
    std::pair<std::int32_t, std::int32_t> start;  ///< Month and day.
    std::pair<std::int32_t, std::int32_t> end;
};

/// The United States' days by the acts of 1986 and 2005, which the program applies to all the world.
constexpr Year american[] = {
    {1990, {4, 1}, {10, 28}}, {2006, {4, 2}, {10, 29}}, {2007, {3, 11}, {11, 4}}, {2015, {3, 8}, {11, 1}}};

/// Israel's days as they were kept (tz database, Rule Zion).
constexpr Year israeli[] = {{2005, {4, 1}, {10, 9}},  {2006, {3, 31}, {10, 1}},  {2009, {3, 27}, {9, 27}},
                            {2012, {3, 30}, {9, 23}}, {2013, {3, 29}, {10, 27}}, {2026, {3, 27}, {10, 25}}};

/// Expects the switches of a year, at 2 h, and the whole days around them asked as their noons.
void ExpectSwitches(const Year& row, bool north) {
    const FixedDay start = GregorianToFixed(row.year, row.start.first, row.start.second);
    const FixedDay end = GregorianToFixed(row.year, row.end.first, row.end.second);
    EXPECT_NEAR(DaylightStart(row.year), start + 2 * hour, minute / 60);
    EXPECT_NEAR(DaylightEnd(row.year), end + 2 * hour, minute / 60);
    const Moment summer[] = {start, DaylightStart(row.year), DaylightEnd(row.year) - minute, end - 1};
    const Moment winter[] = {end, DaylightEnd(row.year), DaylightStart(row.year) - minute, start - 1,
                             GregorianYearEnd(row.year) + 0.999};
    for (const Moment m : summer) EXPECT_EQ(isDaylightTime(m), north) << FixedToGregorianString(m) << ", " << m;
    for (const Moment m : winter) EXPECT_EQ(isDaylightTime(m), !north) << FixedToGregorianString(m) << ", " << m;
}

TEST(DaylightTime, SwitchesOnItsDaysUnderEveryNumbering) {
    constexpr std::tuple<const char*, std::span<const Year>, bool> places[] = {
        {"Times Square", american, true}, {"Melbourne", american, false}, {"Jerusalem", israeli, true}};
    for (const double day : {1.0, 730487.0, -1721424.0}) {
        SetFixedDayEpoch(GregorianEpoch + day - 1, day, "test");
        for (const auto& [name, years, north] : places) {
            Locale = PresetLocale(name);
            for (const Year& row : years) {
                SCOPED_TRACE(testing::Message() << name << " " << row.year << ", numbering of " << day);
                ExpectSwitches(row, north);
            }
        }
    }
}

TEST(DaylightTime, IsKeptOnlyWhereAndWhenItIsWanted) {
    const Moment july = GregorianToFixed(2024, 7, 4) + 0.5;
    const Moment january = GregorianToFixed(2024, 1, 15) + 0.5;
    Locale = PresetLocale("Times Square");
    for (const std::int32_t state : {0, 1, 2}) {
        zone_time::options.AdjustDST = state;
        const double shift = state == 1 ? hour : 0;
        EXPECT_EQ(isDaylightTime(july), state == 1) << state;
        EXPECT_NEAR(StandardToDaylight(july), july + shift, 1e-9) << state;
        EXPECT_NEAR(DaylightToStandard(july), july - shift, 1e-9) << state;
        EXPECT_EQ(StandardToDaylight(january), january) << state;
        EXPECT_EQ(DaylightToStandard(january), january) << state;
        EXPECT_EQ(StandardToDaylight(NeverMoment), NeverMoment) << state;
    }
}

TEST(MoonClock, AddsTheDaylightHour) {
    const LocaleRecord place = PresetLocale("Times Square");
    const FixedDay summer = GregorianToFixed(2025, 7, 10);
    const FixedDay winter = GregorianToFixed(2025, 1, 10);
    EXPECT_NEAR(MoonriseDST(summer, place), Moonrise(summer, place) + 1 / 24.0, 1e-9);
    EXPECT_NEAR(MoonsetDST(summer, place), Moonset(summer, place) + 1 / 24.0, 1e-9);
    EXPECT_EQ(MoonriseDST(winter, place), Moonrise(winter, place));
    EXPECT_EQ(MoonriseDST(GregorianToFixed(2025, 10, 15), place), NeverMoment);
    EXPECT_NEAR(lunar::Azimuth(MoonriseDST(summer, place), place),
                lunar::Bearing(StandardToUniversal(Moonrise(summer, place), place), place), 1e-6);
}

}  // namespace
}  // namespace horvanta
