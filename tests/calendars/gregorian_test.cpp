#include "calendars/gregorian.h"

#include "core/numbering.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

namespace horvanta {
namespace {

/// Published sample dates (Reingold and Dershowitz, Calendrical Calculations, appendix C).
struct Sample {
    FixedDay fixed;
    int weekday;
    int year, month, day;
    int isoYear, week, isoWeekday;
};

constexpr Sample samples[] = {
    {-214193, 0, -586, 7, 24, -586, 29, 7}, {-61387, 3, -168, 12, 5, -168, 49, 3},
    {25469, 3, 70, 9, 24, 70, 39, 3},       {49217, 0, 135, 10, 2, 135, 39, 7},
    {171307, 3, 470, 1, 8, 470, 2, 3},      {210155, 1, 576, 5, 20, 576, 21, 1},
    {253427, 6, 694, 11, 10, 694, 45, 6},   {369740, 0, 1013, 4, 25, 1013, 16, 7},
    {400085, 0, 1096, 5, 24, 1096, 21, 7},  {434355, 5, 1190, 3, 23, 1190, 12, 5},
    {452605, 6, 1240, 3, 10, 1240, 10, 6},  {470160, 5, 1288, 4, 2, 1288, 14, 5},
    {473837, 0, 1298, 4, 27, 1298, 17, 7},  {507850, 0, 1391, 6, 12, 1391, 23, 7},
    {524156, 3, 1436, 2, 3, 1436, 5, 3},    {544676, 6, 1492, 4, 9, 1492, 14, 6},
    {567118, 6, 1553, 9, 19, 1553, 38, 6},  {569477, 6, 1560, 3, 5, 1560, 9, 6},
    {601716, 3, 1648, 6, 10, 1648, 24, 3},  {613424, 0, 1680, 6, 30, 1680, 26, 7},
    {626596, 5, 1716, 7, 24, 1716, 30, 5},  {645554, 0, 1768, 6, 19, 1768, 24, 7},
    {664224, 1, 1819, 8, 2, 1819, 31, 1},   {671401, 3, 1839, 3, 27, 1839, 13, 3},
    {694799, 0, 1903, 4, 19, 1903, 16, 7},  {704424, 0, 1929, 8, 25, 1929, 34, 7},
    {708842, 1, 1941, 9, 29, 1941, 40, 1},  {709409, 1, 1943, 4, 19, 1943, 16, 1},
    {709580, 4, 1943, 10, 7, 1943, 40, 4},  {727274, 2, 1992, 3, 17, 1992, 12, 2},
    {728714, 0, 1996, 2, 25, 1996, 8, 7},   {744313, 3, 2038, 11, 10, 2038, 45, 3},
    {764652, 0, 2094, 7, 18, 2094, 28, 7},
};

TEST(Gregorian, AgreesWithPublishedDates) {
    for (const Sample& s : samples) {
        const GregorianDate date = FixedToGregorianDate(s.fixed);
        EXPECT_EQ(std::tie(date.year, date.month), std::tie(s.year, s.month)) << s.fixed;
        EXPECT_EQ(date.day, s.day) << s.fixed;
        EXPECT_EQ(date.weekday, s.weekday) << s.fixed;
        EXPECT_EQ(GregorianToFixed(s.year, s.month, s.day), s.fixed);
        const ISODate iso = FixedToISODate(s.fixed);
        EXPECT_EQ(iso.year, s.isoYear) << s.fixed;
        EXPECT_EQ(iso.week, s.week) << s.fixed;
        EXPECT_EQ(iso.weekday, s.isoWeekday) << s.fixed;
    }
}

/// Every day that can be displayed: dates follow one another by one step, convert back, and agree with the C++
/// library where it reaches.
TEST(Gregorian, WalksEveryDay) {
    GregorianDate before = FixedToGregorianDate(MinFixedDay - 1);
    ISODate isoBefore = FixedToISODate(MinFixedDay - 1);
    int faults = 0;
    for (FixedDay fixed = MinFixedDay; fixed <= MaxFixedDay && faults < 10; ++fixed) {
        const GregorianDate date = FixedToGregorianDate(fixed);
        const bool monthEnds = before.day == GregorianMonthLength(before.year, before.month);
        const bool yearEnds = monthEnds && before.month == 12;
        const bool follows =
            date.day == (monthEnds ? 1 : before.day + 1) && date.month == (yearEnds ? 1 : before.month + monthEnds) &&
            date.year == before.year + yearEnds && date.yearDay == (yearEnds ? 1 : before.yearDay + 1) &&
            date.weekday == (before.weekday + 1) % 7 && date.weekday == DayOfWeek(fixed);
        const bool convertsBack = GregorianToFixed(date.year, date.month, date.day) == fixed && date.fixed == fixed;

        const ISODate iso = FixedToISODate(fixed);
        const bool isoYearEnds = isoBefore.ordinalDay == ISOYearLength(isoBefore.isLeap);
        const bool isoFollows = iso.ordinalDay == (isoYearEnds ? 1 : isoBefore.ordinalDay + 1) &&
                                iso.year == isoBefore.year + isoYearEnds && iso.weekday == isoBefore.weekday % 7 + 1;
        const bool isoConvertsBack = ISOToFixed(iso.year, iso.week, iso.weekday) == fixed;

        const std::chrono::year_month_day library{std::chrono::sys_days{} +
                                                  std::chrono::days{static_cast<int>(fixed - UnixEpoch)}};
        const bool agrees = int{library.year()} == date.year &&
                            static_cast<int>(unsigned{library.month()}) == date.month &&
                            static_cast<int>(unsigned{library.day()}) == date.day;
        if (!follows || !convertsBack || !isoFollows || !isoConvertsBack || !agrees) {
            ++faults;
            ADD_FAILURE() << fixed << ": " << GregorianDateString(date) << ", " << ISODateString(iso);
        }
        before = date;
        isoBefore = iso;
    }
}

TEST(Gregorian, KnowsItsYears) {
    for (const int leap : {-400, -4, 0, 4, 2000, 2024}) EXPECT_TRUE(isGregorianLeapYear(leap)) << leap;
    for (const int common : {-100, -1, 1, 1900, 2023}) EXPECT_FALSE(isGregorianLeapYear(common)) << common;
    EXPECT_EQ(GregorianYearEnd(0), GregorianEpoch - 1);
    EXPECT_EQ(GregorianYearEnd(2023) + 1, GregorianToFixed(2024, 1, 1));
    EXPECT_EQ(FixedToGregorianYear(GregorianToFixed(2024, 1, 1) - 1e-10), 2024);  // the residue of day arithmetic

    constexpr std::pair<int, const char*> letters[] = {{2000, "BA"}, {2023, "A"}, {2024, "GF"}, {1999, "C"}, {0, "BA"}};
    for (const auto& [year, text] : letters) EXPECT_EQ(GregorianDominicalLetters(year), text) << year;
}

TEST(ISO, Has71LeapYearsIn400) {
    int leapYears = 0;
    for (int year = 1601; year <= 2000; ++year) leapYears += isISOLeapYear(year);
    EXPECT_EQ(leapYears, 71);
    EXPECT_EQ(ISODateString(FixedToISODate(GregorianToFixed(2021, 1, 3))), "2020-W53-7");
}

TEST(Dates, HaveTheirTexts) {
    EXPECT_EQ(FixedToGregorianString(738900.75), "Monday, January 15, 2024");
    EXPECT_EQ(FixedToGregorianString(GregorianToFixed(-586, 7, 24)), "Sunday, July 24, -586");
    EXPECT_EQ(ISODateString(FixedToISODate(738900)), "2024-W03-1");
}

TEST(Gregorian, SurvivesWhatNoOneAsksFor) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
    for (const double x : {NeverMoment, -NeverMoment, 1e15, std::nan("")}) {
        EXPECT_GE(FixedToGregorianDate(x).month, 1) << x;
        FixedToISODate(x);
    }
    for (const std::int32_t n : {least, greatest}) {
        GregorianToFixed(n, n, n);
        ISOToFixed(n, n, n);
        GregorianMonthLength(n, n);
        GregorianDominicalLetters(n);
        isISOLeapYear(n);
    }
}

}  // namespace
}  // namespace horvanta
