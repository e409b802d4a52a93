#include "app/lunar_searches.h"

#include "app/event_searches.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "calendars/gregorian.h"
#include "core/numbering.h"
#include "desk.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace horvanta {
namespace {

/// Six events a lunation, each after the one before; the way back meets the same moments.
TEST(LunarSearches, WalkLeadsThroughTheEventsAndBack) {
    constexpr std::tuple<const char*, std::int32_t, int> walks[] = {
        {"Jerusalem", 2024, 74}, {"Melbourne", 1850, 74}, {"Greenwich", 3500, 74}, {"Yellowknife", 2024, 68}};
    for (const auto& [place, year, eventsOfYear] : walks) {
        Locale = PresetLocale(place);
        const Moment first = JumpLunarEvent(GregorianToFixed(year, 1, 1), 1);
        std::vector<Moment> events{first};
        while (events.back() < first + 365) events.push_back(JumpLunarEvent(events.back(), 1));
        for (std::size_t i = 1; i < events.size(); ++i) {
            ASSERT_GT(events[i], events[i - 1]) << place << i;
            ASSERT_LT(events[i] - events[i - 1], 9) << place << i;
            ASSERT_EQ(JumpLunarEvent(events[i], -1), events[i - 1]) << place << i << ' ' << lunar::Phase(events[i]);
        }
        EXPECT_NEAR(static_cast<double>(events.size()), eventsOfYear, 6) << place;
    }
}

/// In a northern summer there are months without a crescent: the searches pass over them, and beep where none is left.
TEST(LunarSearches, PassOverMonthsWithoutACrescent) {
    Desk desk;
    Locale = MakeLocale("Far north", "", 71, 25, 0);
    const Moment june = GregorianToFixed(2024, 6, 1);
    const Moment found = FindEventSearch(MenuEvent::FirstNewCrescent)->jump(june, 1);
    EXPECT_NEAR(found, june + 170, 130);
    Locale = MakeLocale("Pole", "", 90, 0, 0);
    for (const Moment from : {june, june + 180}) {
        for (const int direction : {-1, 1}) {
            const Moment event = JumpLunarEvent(from, direction);
            EXPECT_NEAR((event - from) * direction, 8, 8);
        }
    }
}

}  // namespace
}  // namespace horvanta
