#include "core/moment.h"

#include "calendars/gregorian.h"
#include "recording_desktop.h"

#include <gtest/gtest.h>

#include <cmath>

namespace horvanta {
namespace {

class MomentTest : public testing::Test {
  protected:
    MomentTest() {
        CurrentDesktop = &desktop_;
        DisplayedMoment = 738900.75;
        SavedMoment = 730120.123456789;
        BusyCount = 0;
    }
    ~MomentTest() override {
        UpdatePass = nullptr;
        CurrentDesktop = nullptr;
    }

    RecordingDesktop desktop_;
};

TEST_F(MomentTest, IsClampedWithABeep) {
    EXPECT_EQ(ClampToRange(MinFixedDay), MinFixedDay);
    EXPECT_EQ(ClampToRange(MaxFixedDay), MaxFixedDay);
    EXPECT_TRUE(desktop_.asked.empty());
    EXPECT_EQ(ClampToRange(MaxFixedDay + 0.25), MaxFixedDay);
    EXPECT_EQ(ClampToRange(-1e300), MinFixedDay);
    EXPECT_EQ(ClampToRange(std::nan("")), MinFixedDay);
    EXPECT_EQ(desktop_.asked.size(), 3U);
}

TEST_F(MomentTest, UpdatesOnceMoreForEachCallFromWithinAPass) {
    int passes = 0;
    int nested = 2;
    UpdatePass = [&] {
        ++passes;
        if (nested-- > 0) UpdateStatus();
    };
    UpdateStatus();
    EXPECT_EQ(passes, 3);
    EXPECT_EQ(UpdateDepth, 0);
}

TEST_F(MomentTest, IsOnlyClampedWhileUpdatesAreHeld) {
    int passes = 0;
    UpdatePass = [&] { ++passes; };
    {
        const BusyHold hold;
        DisplayedMoment = 1e7;
        UpdateStatus();
        EXPECT_EQ(DisplayedMoment, MaxFixedDay);
        EXPECT_EQ(passes, 0);
    }
    UpdateStatus();
    EXPECT_EQ(passes, 1);
}

/// A time of day of two digits stays one of two digits.
TEST_F(MomentTest, TakesNoNoiseFromANewNumbering) {
    for (const double fraction : {0.96, 0.1, 0.3, 0.999999999}) {
        ChangeFixedDayEpoch(GregorianEpoch, 1, "rata die");
        DisplayedMoment = 738900 + fraction;
        ChangeFixedDayEpoch(738899, 1, "test");
        EXPECT_EQ(DisplayedMoment, 2 + fraction);
    }
}

TEST(KDays, LieWithinAWeekOnTheirSide) {
    for (int k = 0; k < 7; ++k) {
        for (Moment x = 738900.25; x < 738907; ++x) {
            EXPECT_EQ(DayOfWeek(KDayOnOrBefore(k, x)), k);
            EXPECT_TRUE(KDayOnOrBefore(k, x) <= x && KDayOnOrAfter(k, x) >= x);
            EXPECT_LT(KDayBefore(k, x), x);
            EXPECT_GT(KDayAfter(k, x), x);
            EXPECT_LE(std::fabs(KDayNearest(k, x) - x), 3);
            EXPECT_EQ(FirstKDay(k, x), KDayOnOrAfter(k, x));
            EXPECT_EQ(LastKDay(k, x), KDayOnOrBefore(k, x));
        }
    }
    EXPECT_EQ(NthKDay(4, 4, GregorianToFixed(2024, 11, 1)), GregorianToFixed(2024, 11, 28));  // Thanksgiving
    EXPECT_EQ(CountKDaysInRange(1, 738900, 738900), 1);
    EXPECT_EQ(CountKDaysInRange(1, 738914, 738900), 3);
    EXPECT_EQ(CountKDaysInRange(0, 738900, 738905), 0);
    EXPECT_EQ(CountKDaysInRange(3, 738901.25, 738901.75), 0);
}

}  // namespace
}  // namespace horvanta
