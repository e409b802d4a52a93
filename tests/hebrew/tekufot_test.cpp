#include "hebrew/tekufot.h"

#include "calendars/gregorian.h"
#include "hebrew/hebrew_arithmetic.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

constexpr double second = 1.0 / 3600;

/// The positions that Maimonides works out for 29 days after his epoch, the night of 2 Iyar 4938 (chapters 13 to 16).
TEST(Tekufot, FollowMaimonidesExample) {
    const Moment x = RMBM_Epoch + 29;
    EXPECT_NEAR(RMBM_SolarMeanLongitude(x), DegMinSec(35, 38, 33), second);
    EXPECT_NEAR(RMBM_SolarTrueLongitude(x), DegMinSec(37, 9, 0), 60 * second);
    EXPECT_NEAR(RMBM_LunarMeanLongitude(x), DegMinSec(53, 36, 39), 10 * second);
    EXPECT_NEAR(RMBM_LunarPathMeanLongitude(x), DegMinSec(103, 21, 46), second);
    EXPECT_NEAR(RMBM_DoubleElongation(x), DegMinSec(35, 56, 12), 30 * second);
    EXPECT_NEAR(RMBM_LunarTrueLongitude(x, true), DegMinSec(48, 36, 0), 60 * second);
    EXPECT_NEAR(RMBM_LunarRoshLongitude(x), DegMinSec(177, 30, 0), 60 * second);
    EXPECT_NEAR(RMBM_LunarLatitude(x, true), -DegMinSec(3, 53, 0), 60 * second);
    // A hundred days after the epoch (chapters 12 and 13).
    EXPECT_NEAR(RMBM_SolarMeanLongitude(RMBM_Epoch + 100), DegMinSec(105, 37, 25), second);
    EXPECT_NEAR(RMBM_SolarTrueLongitude(RMBM_Epoch + 100), DegMinSec(104, 59, 25), 30 * second);
}

TEST(Tekufot, ReadTablesBothWays) {
    EXPECT_DOUBLE_EQ(RMBM_SolarLongitudeAdjust(90, true), 119.0 / 60);
    EXPECT_DOUBLE_EQ(RMBM_SolarLongitudeAdjust(295, true), -106.0 / 60);
    for (double course = 0; course < 360; course += 7) {
        EXPECT_NEAR(RMBM_SolarLongitudeAdjust(course, false), RMBM_SolarLongitudeAdjust(course, true), 0.025) << course;
    }
    for (int i = 0; i < 200; ++i) {
        const Moment x = RMBM_Epoch + i * 37.3;
        EXPECT_NEAR(RMBM_LunarLatitude(x, false), RMBM_LunarLatitude(x, true), 0.05) << i;
        EXPECT_NEAR(ModuloRange(RMBM_LunarTrueLongitude(x, false) - RMBM_LunarTrueLongitude(x, true), -180, 180), 0,
                    0.06)
            << i;
    }
    EXPECT_EQ(RMBM_DegreesInConstellation(132.34), "12.3° Leo");
}

/// Each search finds the longitude, at or after its start and within a year of it.
TEST(Tekufot, FindLongitudes) {
    for (Moment start = RMBM_Epoch; start < RMBM_Epoch + 350000; start += 7001.7) {
        const Moment found = RMBM_SolarLongitudeAfter(start, 53);
        EXPECT_TRUE(found >= start && found <= start + 368) << start;
        EXPECT_NEAR(RMBM_SolarTrueLongitude(found), 53, 0.00001) << start;
    }
}

/// The Sun is blessed on the Wednesday that follows a spring of Shmuel at 18:00 on Tuesday, every 28 years.
TEST(Tekufot, BlessTheSun) {
    for (const auto& [year, gregorianYear] : {std::pair{5741, 1981}, {5769, 2009}, {5797, 2037}}) {
        EXPECT_NEAR(RMBM_TekufatShmuel(0, year), GregorianToFixed(gregorianYear, 4, 7) + 0.75, 1e-6) << year;
    }
}

/// The seasons of a year follow one another from Tishrei, and 19 years by Rav Adda are 235 months.
TEST(Tekufot, StandInAYear) {
    for (const auto tekufah : {RMBM_TekufatShmuel, RMBM_TekufatAdda, RMBM_TekufatTesselby}) {
        const double spring = tekufah(0, 5784);
        EXPECT_NEAR(spring, HebrewToFixed(5784, 1, 1), 35);
        EXPECT_NEAR(tekufah(180, 5784), spring - 182.6, 0.1);
        EXPECT_NEAR(tekufah(270, 5784), spring - 91.3, 0.1);
        EXPECT_NEAR(tekufah(90, 5784), spring + 91.3, 0.1);
    }
    EXPECT_NEAR(RMBM_TekufatAdda(0, 5784) - RMBM_TekufatAdda(0, 5765), 235 * MoladInterval, 1e-5);
}

}  // namespace
}  // namespace horvanta
