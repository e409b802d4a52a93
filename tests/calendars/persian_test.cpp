#include "calendars/persian.h"

#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "calendars/persian_window.h"
#include "core/moment.h"
#include "desk.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace horvanta {
namespace {

/// The official leap years follow the cycle of 33 years for as long as it agrees with the Sun.
TEST(Persian, LeapYearsAreTheOfficialOnes) {
    constexpr int inCycle[] = {1, 5, 9, 13, 17, 22, 26, 30};
    for (int year = 1304; year <= 1468; ++year) {
        const bool leap = std::ranges::find(inCycle, year % 33) != std::end(inCycle);
        EXPECT_EQ(persian::isLeapYear(year), leap) << year;
    }
}

TEST(Persian, TheSunPassesTheEquinoxBeforeTheNoonOfTheNewYear) {
    const LocaleScope tehran(TehranMeridian());
    const auto longitude = [](FixedDay day) { return SolarLongitude(StandardToUniversal(SolarMidday(day))); };
    for (int year = -7500; year <= 11'300; year += 7) {
        const FixedDay day = persian::Norouz(year);
        EXPECT_LT(longitude(day), 2) << year;
        EXPECT_GT(longitude(day - 1), 358) << year;
    }
}

/// Each day has the date after that of the day before, and every date leads back to its day.
TEST(Persian, DaysFollowOneAnotherFromYearToYear) {
    const Desk desk;
    const bool everyDay = std::getenv("HORVANTA_EVERY_DAY") != nullptr;
    int faults = 0;
    for (FixedDay day = persian::Norouz(-100); day < persian::Norouz(1601) && faults < 10; day += everyDay ? 1 : 5) {
        DisplayedMoment = day;
        const GridDate date = PersianWindow::GetDate();
        DisplayedMoment = day + 1;
        const GridDate next = PersianWindow::GetDate();
        const bool ends = date.day == date.monthLength;
        const bool endsYear = ends && date.month == 12;
        const int year = !endsYear ? date.year : date.year == -1 ? 1 : date.year + 1;
        if (next.year != year || next.month != (endsYear ? 1 : date.month + ends) ||
            next.day != (ends ? 1 : date.day + 1) || PersianToFixed(date.year, date.month, date.day) != day ||
            (date.firstWeekday + date.day + 5) % 7 != DayOfWeek(day)) {
            ++faults;
            ADD_FAILURE() << FixedToPersianYear(day) << " " << day;
        }
    }
}

TEST(Persian, RememberedYearsFollowTheNumberingAndDeltaT) {
    const Desk desk;
    const double before = persian::Norouz(1403) - GregorianEpoch;
    SetFixedDayEpoch(GregorianEpoch + 1000, 1, "another");
    EXPECT_EQ(persian::Norouz(1403) - GregorianEpoch, before);
    EXPECT_EQ(PersianDateString(FixedToPersianDate(UnixEpoch)), "11 Dey 1348 PE");
    EXPECT_EQ(PersianDateString(FixedToPersianDate(PersianEpoch - 1.0)), "30 Esfand -1 BPE");
    EXPECT_EQ(persian::Norouz(0), persian::Norouz(1));
    const FixedDay slowed = persian::Norouz(5);
    SetDeltaTDisabled(true);
    EXPECT_EQ(persian::Norouz(5), slowed + 1);
    SetDeltaTDisabled(false);
    EXPECT_EQ(persian::Norouz(5), slowed);
}

}  // namespace
}  // namespace horvanta
