#include "astro/moon_events.h"

#include "astro/local_time.h"
#include "astro/moon.h"
#include "astro/sun_events.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <tuple>

namespace horvanta {
namespace {

LocaleRecord PlaceAt(double latitude, double longitude = 35, double elevation = 0) {
    return MakeLocale("test", "", latitude, longitude, elevation, {}, true);
}

struct Crossings {
    Moment rise = NeverMoment;
    Moment set = NeverMoment;
};

/// The first rise and set of a day by looking at the altitude every so many minutes. Standard time.
Crossings ByLooking(FixedDay day, const LocaleRecord& place, int minutes) {
    const Moment midnight = StandardToUniversal(day, place);
    const double step = minutes / 1440.0;
    Crossings found;
    double before = lunar::ObservedAltitude(midnight, place);
    for (Moment x = midnight; x < midnight + 1; x += step) {
        const double after = lunar::ObservedAltitude(x + step, place);
        const Moment crossing = UniversalToStandard(x + step * before / (before - after), place);
        if (before <= 0 && after > 0 && isNever(found.rise)) found.rise = crossing;
        if (before > 0 && after <= 0 && isNever(found.set)) found.set = crossing;
        before = after;
    }
    return found;
}

/// No day has a wrong "never", nor a time of the day before or after.
TEST(MoonEvents, MissNoDay) {
    const double stride = std::getenv("HORVANTA_EVERY_DAY") ? 1 : 97;
    for (const double latitude : {0.0, 31.8, -45.0, 60.0, -60.0}) {
        const LocaleRecord place = PlaceAt(latitude, latitude * 2, 400);
        for (FixedDay day = GregorianToFixed(1900, 1, 1); day < GregorianToFixed(2100, 1, 1); day += stride) {
            const auto [rise, set] = ByLooking(day, place, 30);
            SCOPED_TRACE(testing::Message() << FixedToGregorianString(day) << " at " << latitude);
            for (const auto& [found, looked] :
                 {std::pair(Moonrise(day, place), rise), {Moonset(day + 0.7, place), set}}) {
                const double edge = std::fabs(looked - Round(looked));  // where a second may change the day
                if (!isNever(looked) && edge < 0.0005) continue;
                EXPECT_EQ(isNever(found), isNever(looked));
                if (isNever(found)) continue;
                EXPECT_NEAR((found - looked) * 1440, 0, 2);
                EXPECT_EQ(Floor(found), day);
            }
        }
    }
}

/// Near the poles there are days and weeks without either, and nothing but times of the date otherwise.
TEST(MoonEvents, HappenOrNeverHappenAtThePoles) {
    for (const double latitude : {66.0, 70.0, 82.0, 90.0, -70.0, -90.0}) {
        const LocaleRecord place = PlaceAt(latitude, 0);
        int never = 0;
        for (FixedDay day = GregorianToFixed(2024, 1, 1); day < GregorianToFixed(2025, 1, 1); ++day) {
            for (const Moment found : {Moonrise(day, place), Moonset(day, place)}) {
                never += isNever(found);
                EXPECT_TRUE(found == NeverMoment || Floor(found) == day) << found << " on " << day << latitude;
            }
        }
        EXPECT_GT(never, 24) << latitude;
        EXPECT_LT(never, 732) << latitude;
    }
}

/// Rises and sets of 2025 by Astronomy Engine 2.1.19 (npm astronomy-engine; SearchAltitude of the Moon's centre from
/// the place at -34.26'), hours and minutes of standard time; -1 is never.
TEST(MoonEvents, AgreeWithAnEphemeris) {
    // clang-format off
    constexpr std::tuple<const char*, std::int32_t, std::int32_t, std::int32_t, std::int32_t> rows[] = {
        {"Jerusalem", 3, 22, 41, 1019}, {"Jerusalem", 6, 24, 303, 1810}, {"Jerusalem", 10, 15, -1, 1400},
        {"Melbourne", 2, 17, 2119, 1001}, {"Times Square", 4, 20, 119, 1015}, {"Times Square", 10, 15, -1, 1445}};
    // clang-format on
    horizon::options.UseElevation = false;
    for (const auto& [name, month, date, rise, set] : rows) {
        const LocaleRecord place = PresetLocale(name);
        const FixedDay day = GregorianToFixed(2025, month, date);
        SCOPED_TRACE(testing::Message() << name << ' ' << FixedToGregorianString(day));
        for (const auto& [found, hhmm] : {std::pair(Moonrise(day, place), rise), {Moonset(day, place), set}}) {
            ASSERT_EQ(isNever(found), hhmm < 0);
            if (hhmm < 0) continue;
            EXPECT_NEAR((found - day) * 1440, hhmm / 100 * 60 + hhmm % 100, 1.5);
        }
    }
}

}  // namespace
}  // namespace horvanta
