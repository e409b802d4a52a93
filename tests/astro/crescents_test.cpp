#include "astro/crescents.h"

#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun_events.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

/// The walk of the new moons from 1900 to 2100 by so many lunations, and the days from each to its first dusk and its
/// last dawn at Jerusalem.
TEST(Crescents, ComeOnceALunation) {
    const LocaleRecord place = PresetLocale("Jerusalem");
    for (std::int64_t n = FirstNewMoonOf2000 - 1236; n < FirstNewMoonOf2000 + 1237; n += 3) {
        const Moment newMoon = UniversalToStandard(NthNewMoon(n), place);
        const Moment first = VisibleCrescentAfter(newMoon, place);
        const Moment last = VisibleOldCrescentBefore(newMoon, place);
        SCOPED_TRACE(FixedToGregorianString(newMoon));
        EXPECT_EQ(first, Dusk(first, 4.5, place));
        EXPECT_EQ(last, Dawn(last, 4.5, place));
        EXPECT_NEAR(first - newMoon, 1.75, 1.25);
        EXPECT_NEAR(newMoon - last, 1.75, 1.25);
        EXPECT_GT(VisibleCrescent(first, place), 10.59);
        EXPECT_EQ(VisibleCrescent(first - 1, place), 0) << "it is the first";
        EXPECT_GT(VisibleCrescent(first + 1, place), VisibleCrescent(first, place)) << "it grows";
        EXPECT_EQ(VisibleOldCrescent(last + 1, place), 0) << "it is the last";
    }
}

/// What each search finds from a moment of a lunation, counted in lunations from that one.
TEST(Crescents, AreFoundFromEveryDayOfTheMonth) {
    const LocaleRecord place = PresetLocale("Jerusalem");
    const std::int64_t n = ApproxNthMoon(GregorianToFixed(2025, 6, 1));
    const auto first = [&](int k) {
        return VisibleCrescentAfter(UniversalToStandard(NthNewMoon(n + k), place), place);
    };
    const auto last = [&](int k) {
        return VisibleOldCrescentBefore(UniversalToStandard(NthNewMoon(n + k), place), place);
    };
    for (double x = first(0) + 0.3; x < last(1) - 0.3; x += 1) {
        SCOPED_TRACE(x - first(0));
        EXPECT_EQ(VisibleCrescentBefore(x, place), first(0));
        EXPECT_EQ(VisibleCrescentAfter(x, place), first(1));
        EXPECT_EQ(VisibleOldCrescentAfter(x, place), last(1));
        EXPECT_EQ(VisibleOldCrescentBefore(x, place), last(0));
    }
}

/// Far north there is no dusk in summer, and the Moon of other months stays too low for five evenings.
TEST(Crescents, StayAwayInPolarSummers) {
    const LocaleRecord north = MakeLocale("test", "", 70, 20, 0);
    const FixedDay june = GregorianToFixed(2025, 6, 10);
    EXPECT_EQ(VisibleCrescent(june, north), NeverMoment);
    EXPECT_EQ(VisibleOldCrescent(june, north), NeverMoment);
    EXPECT_EQ(VisibleCrescentAfter(june, north), NeverMoment);
    EXPECT_EQ(VisibleOldCrescentBefore(june, north), NeverMoment);
    EXPECT_NEAR(CrescentPassage(june, 1, north) - june, 200, 100);
    EXPECT_NEAR(june - CrescentPassage(june, -1, north), 80, 60);
    EXPECT_EQ(CrescentPassage(june, 1, MakeLocale("test", "", 90, 0, 0)), NeverMoment);
}

}  // namespace
}  // namespace horvanta
