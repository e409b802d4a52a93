#include "calendars/julian.h"

#include "calendars/roman.h"
#include "desk_fixture.h"
#include "views/julian_window.h"

namespace horvanta {
namespace {

/// Options as on a first start, but for the leap rule.
void UseRule(bool revised) { julian::options = {.Revise = revised}; }

/// Published sample dates (Reingold and Dershowitz, Calendrical Calculations, appendix C).
TEST(Julian, AgreesWithPublishedDates) {
    UseRule(false);
    constexpr std::tuple<FixedDay, int, int, int> rows[] = {
        {-214193, -587, 7, 30}, {-61387, -169, 12, 8}, {25469, 70, 9, 26},     {171307, 470, 1, 7},
        {369740, 1013, 4, 19},  {569477, 1560, 2, 24}, {710347, 1945, 10, 30}, {764652, 2094, 7, 5},
    };
    for (const auto& [fixed, year, month, day] : rows) {
        const JulianDate date = FixedToJulianDate(fixed + 0.75, true);
        EXPECT_EQ(std::tuple(date.year, date.month, date.day), std::tuple(year, month, day)) << fixed;
        EXPECT_EQ(JulianToFixed(year, month, day, true), fixed);
    }
}

/// The days count down to their event, February 25 of a leap year again what the 24th was; each converts back.
TEST(Roman, WalksEveryDay) {
    UseRule(true);
    FixedDay fixed = JulianToFixed(-4000, 1, 1, false);
    RomanDate before = FixedToRomanDate(fixed - 1);
    for (int faults = 0; fixed <= JulianToFixed(8000, 12, 31, false) && faults < 10; ++fixed) {
        const RomanDate date = FixedToRomanDate(fixed);
        const bool sameEvent =
            std::tie(date.year, date.month, date.event) == std::tie(before.year, before.month, before.event);
        const bool nextEvent = before.count == 1 && (date.event == before.event % 3 + 1) && date.count <= 19;
        const bool follows = sameEvent ? date.count == before.count - !date.leap : nextEvent;
        if (!follows || RomanToFixed(date.year, date.month, date.event, date.count, date.leap) != fixed) {
            ++faults;
            ADD_FAILURE() << RomanDateString(date);
        }
        before = date;
    }
}

TEST(Julian, KnowsItsLeapYears) {
    for (const int year : {-5, -1, 4, 1900, 2100}) EXPECT_TRUE(isJulianLeapYear(year, false)) << year;
    UseRule(true);
    for (const int year : {2000, 2400, 2900, 2024, -5}) EXPECT_TRUE(isJulianLeapYear(year, true)) << year;
    for (const int year : {2100, 2200, 2300, 2800, -1}) EXPECT_FALSE(isJulianLeapYear(year, true)) << year;
}

TEST(Julian, FallsBehindTheGregorianCalendar) {
    constexpr std::tuple<int, int, int, int> rows[] = {
        {1582, 10, 5, 10}, {1900, 2, 28, 12}, {1900, 2, 29, 13}, {1900, 3, 1, 13}, {1600, 2, 29, 10},
        {250, 1, 1, 0},    {200, 2, 29, -1},  {1, 1, 1, -2},     {-1, 12, 31, -2},
    };
    for (const auto& [year, month, day, difference] : rows) {
        EXPECT_EQ(JulianGregDiff(JulianToFixed(year, month, day, false) + 0.9), difference) << year << "-" << day;
    }
}

TEST(Roman, ReadsItsNumerals) {
    EXPECT_EQ(DecimalToRoman(1949, "", " BC"), "MCMXLIX");
    for (int value = -4100; value <= 4100; ++value) {
        EXPECT_EQ(RomanToDecimal(DecimalToRoman(value, "", " BC")), value);
    }
}

TEST(Roman, CountsYearsByOlympiads) {
    UseRule(false);
    constexpr std::tuple<int, int, int, int> rows[] = {
        {-776, 7, 1, 1}, {-776, 6, 0, 4}, {-1, 12, 194, 4}, {1, 6, 194, 4},
        {1, 7, 195, 1},  {1896, 6, 0, 4}, {1896, 7, 1, 1},  {2024, 7, 33, 1},
    };
    for (const auto& [year, month, cycle, olympicYear] : rows) {
        const Olympiad olympiad = JulianToOlympiad(year, month);
        EXPECT_EQ(std::pair(olympiad.cycle, olympiad.year), std::pair(cycle, olympicYear)) << year << "-" << month;
        EXPECT_TRUE(month != 7 || year > 393 || OlympiadToJulian(olympiad.cycle, olympiad.year) == year) << year;
    }
    EXPECT_EQ(YearToOlympiadString(393), "c293 y1");
    for (const double year : {-777.0, 394.0, 1895.0}) EXPECT_EQ(YearToOlympiadString(year), "") << year;
}

class JulianWindowTest : public DeskTest {
  protected:
    JulianWindowTest() { desk.Obey("menu JulianCal"); }

    static void Show(int year, int month, int day) { DeskTest::Show(JulianToFixed(year, month, day, true) + 0.5); }

    JulianWindow& window_ = desk.program.julian;
};

TEST_F(JulianWindowTest, ShowsTheDateInEveryCount) {
    // clang-format off
    constexpr std::tuple<int, int, int, const char*> rows[] = {
        {2024, 1, 2, "Julian (13 days behind Gregorian) and Roman|Monday, January 2, 2024 AD | Lunæ dies, ante diem IV nonas Ianuarius MMXXIV AD|AG|32 4 XXXII IV"},
        {2024, 2, 25, "Julian (13 days behind Gregorian) and Roman|Saturday, February 25, 2024 AD | Saturni dies, bis ante diem VI kalendas Martius MMXXIV AD|AG|32 4 XXXII IV"},
        {-1, 12, 31, "Julian (2 days ahead of Gregorian) and Roman|Friday, December 31, 1 BC | Veneris dies, pridie kalendas Ianuarius I AD|DC|194 4 CXCIV IV"},
        {250, 1, 13, "Julian (equal to Gregorian) and Roman|Sunday, January 13, 250 AD | Solis dies, idus Ianuarius CCL AD|F|257 1 CCLVII I"},
        {395, 7, 1, "Julian (1 day behind Gregorian) and Roman|Sunday, July 1, 395 AD | Solis dies, kalendas Julius CCCXCV AD|G|   "},
    };
    // clang-format on
    for (const auto& [year, month, day, text] : rows) {
        Show(year, month, day);
        EXPECT_EQ(window_.form.text + "|" + window_.TheJulianDate.text + "|" + window_.TheRomanDate.text + "|" +
                      window_.Dominical.text + "|" + window_.OlympiadCycleDecimal.text + " " +
                      window_.OlympiadYearDecimal.text + " " + window_.OlympiadCycleRoman.text + " " +
                      window_.OlympiadYearRoman.text,
                  text);
    }
    Show(-754, 1, 1);
    desk.Obey("click Julian.UseAUC");
    EXPECT_EQ(window_.TheJulianDate.text, "Monday, January 1, 1 PUC ");
    desk.Obey("click Julian.Revise");
    EXPECT_EQ(window_.form.text, "Revised Julian and Roman");
    EXPECT_EQ(desk.Obey("events Roman"), R"("Roman" "kalendas Ianuarius 1 PUC" "Kalends")");
    desk.Obey("press PageDown");
    EXPECT_EQ(desk.Obey("events Roman"), "none");
    desk.Obey("click Julian.UseAUC");
    Show(2024, 1, 2);
    EXPECT_EQ(window_.form.text, "Revised Julian (equal to Gregorian) and Roman");
}

TEST_F(JulianWindowTest, AsksForTheYearsOfTheCounts) {
    constexpr std::pair<const char*, int> rows[] = {
        {"759", -753}, {"727", -753}, {"-753", -753}, {"x", -753}, {"758", -758}};
    for (const auto& [typed, year] : rows) {
        Obey({"answer text " + std::string(typed), "menu JYRF"});
        EXPECT_EQ(julian::options.YRF, year) << typed;
    }
    Show(-775, 7, 1);
    Obey({"answer text 780", "menu OSY"});
    EXPECT_EQ(window_.OlympiadLabel.tooltip, "Ancient Olympiad (cycle 1, year 1 = July 1st, 780 BC)");
    EXPECT_EQ(window_.OlympiadCycleDecimal.text, "2");
}

}  // namespace
}  // namespace horvanta
