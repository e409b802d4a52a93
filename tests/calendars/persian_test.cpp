#include "calendars/persian.h"

#include "astro/local_time.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "desk_fixture.h"
#include "locale/presets.h"

#include <algorithm>
#include <tuple>

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
    const LocaleRecord& tehran = TehranMeridian();
    const auto longitude = [&tehran](FixedDay day) {
        return SolarLongitude(StandardToUniversal(SolarMidday(day, tehran), tehran));
    };
    for (int year = -7500; year <= 11'300; year += 7) {
        const FixedDay day = persian::Norouz(year);
        EXPECT_LT(longitude(day), 2) << year;
        EXPECT_GT(longitude(day - 1), 358) << year;
    }
}

TEST(Persian, HasNoYear0) {
    EXPECT_EQ(PersianDateString(FixedToPersianDate(UnixEpoch)), "11 Dey 1348 PE");
    EXPECT_EQ(PersianDateString(FixedToPersianDate(PersianEpoch - 1.0)), "30 Esfand -1 BPE");
    EXPECT_EQ(persian::Norouz(0), persian::Norouz(1));
}

using PersianWindowTest = DeskTest;

/// The equinoxes as Iran's almanacs give them.
TEST_F(PersianWindowTest, ShowsTheDateAndPostsTheEventsOfItsDay) {
    constexpr std::tuple<int, int, int, const char*, const char*> rows[] = {
        {2024, 3, 12, " Se-shanbeh, 22 Esfand 1402 PE", "Eve of Charshanbe Suri; "},
        {2024, 3, 20, " Char-shanbeh, 1 Farvardin 1403 PE",
         "Norouz (new year); Tahvil-e sâl (spring equinox) at 06:36 Iran Standard Time; "},
        {2024, 4, 1, " Do-shanbeh, 13 Farvardin 1403 PE", "Sizdah Bedar (nature day); "},
        {2024, 4, 7, " Yek-shanbeh, 19 Farvardin 1403 PE", "Farvardingân (memorial day); "},
        {2024, 7, 3, " Char-shanbeh, 13 Tir 1403 PE", "Tiregân (pray for rain); "},
        {2024, 10, 1, " Se-shanbeh, 10 Mehr 1403 PE", "Mehregân (thanksgiving); "},
        {2024, 12, 20, " Jom'eh, 30 Âzar 1403 PE", "Yalda (winter solstice, longest night); "},
        {2025, 1, 29, " Char-shanbeh, 10 Bahman 1403 PE", "Sadeh (fire festival); "},
        {2025, 2, 17, " Do-shanbeh, 29 Bahman 1403 PE", "Sepandar Mazgân (ladies' day); "},
        {2025, 3, 21, " Jom'eh, 1 Farvardin 1404 PE", "Norouz (new year); "},
        {2025, 3, 20, " Panj-shanbeh, 30 Esfand 1403 PE",
         "Tahvil-e sâl (spring equinox) at 12:31 Iran Standard Time; "},
    };
    desk.Obey("menu PersianCal");
    for (const auto& [year, month, day, date, events] : rows) {
        Show(year, month, day);
        EXPECT_EQ(desk.program.persian.ThePersianDate.text, date);
        EXPECT_EQ(Events("Persian"), events) << date;
    }
    EXPECT_EQ(desk.program.persian.LeapCheckbox.text, "Leap year");
}

}  // namespace
}  // namespace horvanta
