#include "calendars/easter.h"

#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/quartane_options.h"
#include "calendars/quartane_year_start.h"

#include <gtest/gtest.h>

#include <tuple>

namespace horvanta {
namespace {

/// Month and day as a decimal, 4.21 for April 21.
FixedDay DayOf(std::int32_t year, double monthDay) {
    const auto month = static_cast<std::int32_t>(monthDay);
    return GregorianToFixed(year, month, static_cast<std::int32_t>((monthDay - month) * 100 + 0.5));
}

/// The anonymous computus of 1876 (Meeus, Astronomical Algorithms, chapter 8), and Gauss's for the Julian calendar.
FixedDay GregorianComputus(int year) {
    const int a = year % 19, b = year / 100, c = year % 100;
    const int h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    return GregorianToFixed(year, (h + l - 7 * m + 114) / 31, (h + l - 7 * m + 114) % 31 + 1);
}

FixedDay JulianComputus(int year) {
    const int d = (19 * (year % 19) + 15) % 30;
    const int e = (2 * (year % 4) + 4 * (year % 7) - d + 34) % 7;
    return JulianToFixed(year, (d + e + 114) / 31, (d + e + 114) % 31 + 1, false);
}

TEST(Easter, ReckonedEastersAreThoseOfOtherFormulas) {
    julian::options.Revise = true;  // which moves none of them
    for (int year = 326; year <= 4099; ++year) {
        EXPECT_EQ(EasterSunday(year, false), GregorianComputus(year)) << year;
        EXPECT_EQ(OrthodoxEaster(year), JulianComputus(year)) << year;
        EXPECT_EQ(AltOrthodoxEaster(year), OrthodoxEaster(year)) << year;
    }
    for (int year = -3000; year < 0; ++year) EXPECT_EQ(AltOrthodoxEaster(year + 1), OrthodoxEaster(year)) << year;
}

/// The table that the consultation of 1997 proposed.
TEST(Easter, UniformEasterIsTheProposedOne) {
    constexpr double proposed[] = {4.15, 3.31, 4.20, 4.11, 3.27, 4.16, 4.08, 3.23, 4.12, 4.04, 4.24, 4.08, 3.31,
                                   4.20, 4.05, 3.27, 4.16, 4.01, 3.24, 4.12, 4.04, 4.17, 4.09, 3.31, 4.20};
    std::int32_t year = 2001;
    for (const double monthDay : proposed) {
        EXPECT_EQ(EasterSunday(year, true), DayOf(year, monthDay)) << year;
        ++year;
    }
    easter::options.UniformEaster = true;
    EXPECT_EQ(EasterSunday(2024, false), DayOf(2024, 3.31));
    EXPECT_EQ(OrthodoxEaster(2024), DayOf(2024, 3.31));
    EXPECT_EQ(AltOrthodoxEaster(-5), OrthodoxEaster(-6));
    const double before = AstronomicalPaschalMoon(2024) - GregorianEpoch;
    SetFixedDayEpoch(GregorianEpoch + 1000, 1, "another");
    EXPECT_EQ(AstronomicalPaschalMoon(2024) - GregorianEpoch, before);
}

TEST(Easter, QuartaneEastersFollowTheLeapRule) {
    using namespace quartane;
    const std::pair<const char*, FixedDay (*)(std::int32_t year)> rows[] = {
        {"ISO", [](std::int32_t year) { return EasterSunday(year, false); }},
        {"LANEY", [](std::int32_t year) { return EasterSunday(year, true); }},
    };
    for (const auto& [key, easterOf] : rows) {
        options.LeapRuleKey = key;
        for (std::int32_t year = 1990; year < 2060; ++year) EXPECT_EQ(QuaEaster(year), easterOf(year)) << key << year;
    }
    options = {};  // whose mean Moon keeps near the true one, but for some Sundays
    int others = 0;
    for (std::int32_t year = 1900; year < 2100; ++year) others += QuaEaster(year) != EasterSunday(year, true);
    EXPECT_LT(others, 40);
    for (std::int32_t weekday = 0; weekday < 7; ++weekday) {
        options.StartWeekday = weekday;
        EXPECT_EQ(DayOfWeek(FixedEaster(2024)), 0) << weekday;
    }
}

/// From every day of some years the jump leads to the nearest such day beyond, and back past it.
TEST(Easter, JumpsLeadToTheNextAndToThePreviousOne) {
    // The years are Gregorian.
    constexpr std::tuple<const char*, Moment (*)(Moment from, int direction), std::int32_t, std::int32_t> rows[] = {
        {"Western about year 0", JumpEaster, -2, 2},
        {"Uniform", JumpUniformEaster, 2020, 2024},
        {"Orthodox about year 1", JumpOrthoEaster, -2, 2},
        {"Fixed about year 0", quartane::JumpFixedEaster, -2, 2},
    };
    for (const auto& [name, jump, first, last] : rows) {
        SCOPED_TRACE(name);
        Moment next = jump(GregorianToFixed(first, 1, 1), 1);
        Moment previous = jump(GregorianToFixed(first, 1, 1), -1);
        for (Moment x = GregorianToFixed(first, 1, 1); x < GregorianToFixed(last, 1, 1); x += 0.5) {
            if (x > next - 0.5 && x >= next) {
                previous = next;
                next = jump(x, 1);
                ASSERT_TRUE(next - previous > 320 && next - previous < 400) << x;
                ASSERT_EQ(DayOfWeek(next), 0) << x;
                ASSERT_NE(jump(x, -1), x);
                continue;
            }
            ASSERT_EQ(jump(x, 1), next) << x;
            ASSERT_EQ(jump(x, -1), previous) << x;
        }
    }
}

}  // namespace
}  // namespace horvanta
