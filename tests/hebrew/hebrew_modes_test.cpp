#include "hebrew/hebrew_modes.h"

#include "astro/crescents.h"
#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "calendars/gregorian.h"
#include "hebrew/holidays.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

constexpr std::int32_t modes = 24;

void Choose(std::int32_t mode) { hebrew::options.HebrewMode = mode; }

/// In every mode dates follow one another by a step, convert back, their months have 29 or 30 days,
/// and the new year keeps off three weekdays.
TEST(HebrewModes, WalkTheirDays) {
    for (std::int32_t mode = 0; mode < modes; ++mode) {
        Choose(mode);
        const HebrewReckoning& calendar = ActiveReckoning();
        HebrewDateRecord before = FixedToActiveHebrewDate(GregorianToFixed(1939, 9, 1));
        for (FixedDay day = before.Fixed + 1; before.Year <= 5900; ++day) {
            const HebrewDateRecord date = FixedToActiveHebrewDate(day + 0.3);
            const bool ends = date.Day == 1;
            const bool yearBegins = ends && date.Month == 7;
            const bool keptOff = date.WeekDay == 1 || date.WeekDay == 4 || date.WeekDay == 6;
            const bool follows =
                !(yearBegins && keptOff) && date.Day == (ends ? 1 : before.Day + 1) &&
                date.Year == before.Year + yearBegins && (!ends || before.Day == 29 || before.Day == 30) &&
                (date.Month == before.Month + ends || (ends && date.Month == 1 && before.Month >= 12)) &&
                (!ends || before.Day == calendar.LastDayOfMonth(before.Year, before.Month));
            ASSERT_TRUE(follows && calendar.ToFixed(date.Year, date.Month, date.Day) == day)
                << mode << ": " << HebrewDateString(before, true, false, true) << " to "
                << HebrewDateString(date, true, false, true) << " " << date.Month;
            before = date;
        }
    }
}

TEST(HebrewModes, ShiftTheNewYear) {
    const FixedDay sunday = KDayOnOrAfter(0, 739000);
    EXPECT_EQ(ShiftRoshHashanah(sunday - 29, sunday), sunday + 1);
    EXPECT_EQ(ShiftRoshHashanah(sunday - 30, sunday), sunday - 1);
}

/// Where Moon and Sun decide, Passover is the first full moon after the equinox, and Nisan begins within three days of
/// a conjunction.
TEST(HebrewModes, KeepToMoonAndSun) {
    for (const std::int32_t mode : {1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 23}) {
        Choose(mode);
        for (std::int32_t year = 5780; year < 5800; ++year) {
            const FixedDay nisan = NisanFirstDay(year);
            const Moment equinox = SeasonMoment(year - 3760, 0);
            EXPECT_GT(nisan + 14.7, equinox) << mode << " " << year;
            EXPECT_LT(nisan + 13, equinox + 31) << mode << " " << year;
            EXPECT_NEAR(nisan - NewMoonBefore(nisan + 4), 1.5, 2.2) << mode << " " << year;
        }
    }
    Choose(1);
    for (std::int32_t year = 5780; year < 5800; ++year) {
        const FixedDay evening = NisanFirstDay(year) - 1;
        EXPECT_GT(VisibleCrescent(evening, PresetLocale("Jerusalem")), 0);
        EXPECT_EQ(VisibleCrescent(evening - 1, PresetLocale("Jerusalem")), 0);
    }
}

/// Four ways lead to the traditional new year; and the rectified one with the traditional molad is the same wherever
/// both have counted as many months.
TEST(HebrewModes, FindTheTraditionalNewYear) {
    Choose(22);
    int same = 0;
    for (std::int32_t year = 1; year <= 8000; ++year) {
        const FixedDay newYear = HebrewNewYear(year);
        ASSERT_EQ(HebrewNewYear19(year), newYear) << year;
        ASSERT_EQ(HebrewNewYear19alt(year), newYear) << year;
        ASSERT_EQ(MyHebrewNewYear(false, year), newYear) << year;
        ASSERT_EQ(MyHebrewNewYearAlt(false, year), newYear) << year;
        ASSERT_EQ(MyHebrewNewYearAlt(true, year), MyHebrewNewYear(true, year)) << year;
        bool agree = true;
        for (std::int32_t y = year - 1; y <= year + 2; ++y) agree &= ElapsedMonths353(y, 7) == ElapsedMonths19(y, 7);
        if (!agree) continue;
        ++same;
        ASSERT_EQ(HebrewNewYear353(year), newYear) << year;
        ASSERT_EQ(HebrewYearCharacter353(year), HebrewYearCharacter(year)) << year;
    }
    EXPECT_GT(same, 1500);
}

TEST(HebrewModes, CountTheRectifiedYears) {
    for (const std::int32_t mode : {21, 22}) {
        Choose(mode);
        int leapYears = 0;
        for (std::int32_t year = 5700; year < 5700 + 353; ++year) {
            const bool leap = isHebrewLeapYear353(year);
            leapYears += leap;
            const std::int32_t days = DaysInRectHebrewYear(year);
            EXPECT_TRUE(leap ? days >= 383 && days <= 385 : days >= 353 && days <= 355) << year;
            EXPECT_EQ(ElapsedMonths353(year + 1, 7) - ElapsedMonths353(year, 7), leap ? 13 : 12);
            EXPECT_EQ(RectHebrewToFixed(year, 13, leap ? 30 : 1), NisanFirstDay(year));
        }
        EXPECT_EQ(leapYears, 130);
    }
}

/// What was remembered in one mode is not told in another.
TEST(HebrewModes, ForgetTheOther) {
    Choose(21);
    const FixedDay rectified = NisanFirstDay(5784);
    Choose(2);
    const FixedDay tishrei = AstroHebrewToFixed(5785, 7, 1);
    Choose(21);
    EXPECT_EQ(NisanFirstDay(5784), rectified);
    Choose(2);
    EXPECT_EQ(AstroHebrewToFixed(5785, 7, 1), tishrei);
    EXPECT_NE(NisanFirstDay(5784), rectified);
}

/// The days of a mode's calendar are those of its own months; its moladot are not announced.
TEST(HebrewModes, HaveTheirHolidays) {
    Choose(2);
    for (std::int32_t day = 15; day < 30; ++day) {
        const HebrewDateRecord date = FixedToActiveHebrewDate(ActiveReckoning().ToFixed(5784, 1, day));
        const HebrewDay told = HebrewHolidays(date, ActiveReckoning(), PresetLocale("Melbourne"));
        EXPECT_EQ(told.YomTov == "Passover 1", day == 15);
        EXPECT_EQ(told.MoladText, "");
    }
}

}  // namespace
}  // namespace horvanta
