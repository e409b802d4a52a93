#include "core/moment.h"

#include "calendars/gregorian.h"
#include "desk.h"

#include <gtest/gtest.h>

#include <cmath>

namespace horvanta {
namespace {

TEST(UpdateStatus, PassesOnceMoreForEachCallFromWithinButNotWhileHeld) {
    int passes = 0;
    UpdatePass = [&] {
        if (++passes < 3) UpdateStatus();
    };
    {
        const BusyHold hold;
        UpdateStatus();
        EXPECT_EQ(passes, 0);
    }
    UpdateStatus();
    EXPECT_EQ(passes, 3);
    EXPECT_EQ(UpdateDepth, 0);
    UpdatePass = nullptr;
}

TEST(ClampToRange, TakesWhatIsNoNumberToo) {
    Desk desk;
    EXPECT_EQ(ClampToRange(std::nan("")), MinFixedDay);
    EXPECT_EQ(desk.Obey("asked"), "beep");
}

/// A time of day of two digits stays one of two digits.
TEST(Moment, TakesNoNoiseFromANewNumbering) {
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
        }
    }
    EXPECT_EQ(NthKDay(4, 4, GregorianToFixed(2024, 11, 1)), GregorianToFixed(2024, 11, 28));  // Thanksgiving
    EXPECT_EQ(CountKDaysInRange(1, 738914, 738900), 3);
    EXPECT_EQ(CountKDaysInRange(0, 738900, 738905), 0);
    EXPECT_EQ(CountKDaysInRange(3, 738901.25, 738901.75), 0);
}

}  // namespace
}  // namespace horvanta
