#include "clock/moon_clock.h"

#include "astro/local_time.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "calendars/gregorian.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

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
