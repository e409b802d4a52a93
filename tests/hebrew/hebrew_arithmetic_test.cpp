#include "hebrew/hebrew_arithmetic.h"

#include "core/moment.h"
#include "core/text.h"
#include "hebrew/molad.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

namespace horvanta {
namespace {

constexpr bool isLeapInCycle[19] = {false, false, true,  false, false, true,  false, true,  false, false,
                                    true,  false, false, true,  false, false, true,  false, true};

/// The days from `HebrewEpoch` to the molad of Tishrei, carried past noon, and to 1 Tishrei.
struct RuledDays {
    std::int64_t ofMolad;
    std::int64_t ofNewYear;
};

/// By the four rules of postponement from weekday, hour and part of the molad, as the codes of law have them.
RuledDays ByRules(std::int64_t months, bool leap, bool afterLeap) {
    const std::int64_t parts = months * 765433 + 5 * 1080 + 204;
    const std::int64_t day = FloorDivide(parts, 25920);
    const std::int64_t time = FloorModulo(parts, 25920);
    const std::int64_t weekday = FloorModulo(day + 1, 7);
    if (time >= 18 * 1080) return {day + 1, day + 1 + (weekday == 6 || weekday == 2 || weekday == 4)};
    if (!leap && weekday == 2 && time >= 9 * 1080 + 204) return {day, day + 2};
    if (afterLeap && weekday == 1 && time >= 15 * 1080 + 589) return {day, day + 1};
    return {day, day + (weekday == 0 || weekday == 3 || weekday == 5)};
}

/// The lengths of years alone decide the new year; they must come to what the rules come to. The calendar repeats
/// after 36288 cycles of 19 years.
TEST(Hebrew, LengthsOfYearsAgreeWithTheRules) {
    const bool wholeCycle = std::getenv("HORVANTA_WHOLE_CYCLE") != nullptr;
    const int firstCycle = wholeCycle ? 0 : -200;
    const int lastCycle = wholeCycle ? 36288 : 400;
    std::int64_t months = 235 * firstCycle;
    for (int i = 19 * firstCycle; i < 19 * lastCycle; ++i) {
        const auto place = static_cast<std::size_t>(FloorModulo(i, 19));
        const bool leap = isLeapInCycle[place];
        const std::int32_t year = i + 1;
        const auto [ofMolad, ofNewYear] = ByRules(months, leap, isLeapInCycle[(place + 18) % 19]);
        const double n = ElapsedMonths19(year, 7);
        ASSERT_TRUE(HebrewNewYear(year) - HebrewEpoch == static_cast<double>(ofNewYear) &&
                    isHebrewLeapYear19(year) == leap && n == static_cast<double>(months) &&
                    MoladDay(false, n) - HebrewEpoch == static_cast<double>(ofMolad))
            << year;
        months += leap ? 13 : 12;
    }
    EXPECT_EQ(HebrewNewYear(689473) - HebrewNewYear(1), 251827457);
}

/// Published sample dates (Reingold and Dershowitz, Calendrical Calculations, appendix C), and new years of our time.
TEST(Hebrew, AgreesWithPublishedDates) {
    constexpr std::pair<FixedDay, const char*> rows[] = {
        {-214193, "Yom Rishon, 10 Av, 3174"},          {452605, "Yom Shabbat, 8 Adar Sheini, 5000"},
        {569477, "Yom Shabbat, 27 Adar Rishon, 5320"}, {728714, "Yom Rishon, 5 Adar, 5756"},
        {735116, "Yom Chamishi, 1 Tishrei, 5774"},     {738955, "Yom Rishon, 30 Adar Rishon, 5784"},
    };
    for (const auto& [fixed, text] : rows) EXPECT_EQ(FixedToHebrewString(fixed + 0.75), text) << fixed;
    EXPECT_EQ(FixedToHebrewYear(735116 - 1e-10), 5774);  // the residue of day arithmetic
}

TEST(Hebrew, RunsOverTheEndsOfMonths) {
    EXPECT_EQ(HebrewToFixed(5784, 7, 31), HebrewToFixed(5784, 8, 1));
    EXPECT_EQ(HebrewToFixed(5785, 13, 5), HebrewToFixed(5785, 1, 5));
    EXPECT_EQ(HebrewToFixed(5785, 15, 1) - HebrewToFixed(5785, 13, 1), 29 + 30);
    EXPECT_EQ(HebrewToFixed(5784, -3, 1), HebrewToFixed(5784, 1, 1));
    EXPECT_EQ(LastDayOfHebrewMonth(5784, 14), 30);
}

TEST(Hebrew, WritesDatesAndYears) {
    const HebrewDateRecord date = FixedToHebrewDate(735330);
    EXPECT_EQ(HebrewDateString(date, true, true, true), "<i>Yom Sheini</i>, 7 <i>Nisan</i>, 5774");
    EXPECT_EQ(HebrewDateString(date, false, false, false), "7 Nisan");
    EXPECT_EQ(HebrewShortDateString(date, true), "7 Nisan, 5774");
    EXPECT_EQ(HebrewYearType(5774, false, " ", "", ""), "Perfect Leap Year (Cheshvan and Kislev both 30 days)");
    EXPECT_EQ(HebrewYearType(5786, true, "|", "<i>", "</i>"),
              "Normal Non-Leap Year|(<i>Cheshvan</i> 29 days, <i>Kislev</i> 30 days) in year 10 of 19");
    EXPECT_EQ(PostponeReason(-3840, "|", false, false), "1:postponed due to molad at or after noon (18h)");  // at noon
    EXPECT_EQ(PostponeReason(5542, "|", false, false),
              "3:postponed 2 days to prevent year 5542|from being too long (year 5543 postponed 2 days)");
    EXPECT_EQ(PostponeReason(5773, ", ", true, true),
              "<i>Rosh Hashanah</i> postponed from <i>Yom</i> 1 to 2, to avoid <i>Hoshanah Rabbah</i> on "
              "<i>Shabbat</i>.");
    hebrew::options.UseHebrewFont = true;
    EXPECT_EQ(FixedToHebrewString(735330), "יום שני, 7 ניסן, 5774");
    EXPECT_EQ(HebrewMonthName(5773, 12), "אדר");
}

/// Announced molads; BaHaRaD, of the first Tishrei, and VaYaD, of the next, the oldest of all.
TEST(Hebrew, AgreesWithAnnouncedMolads) {
    constexpr std::tuple<int, int, const char*> rows[] = {
        {1, 7, "Yom Rishon 23h 204p"}, {2, 7, "Yom Shishi 8h 0p"}, {5784, 1, "Yom Sheini 22h 1033p"}};
    for (const auto& [year, month, text] : rows) {
        const Moment x = molad(year, month);
        EXPECT_EQ(std::string(WeekdayLabel(x)) + " " + FormatTime(x, 10), text) << year;
    }
    for (int year = 1; year < 8000; ++year) {
        const Moment x = molad(year, 7);
        ASSERT_EQ(MoladBefore(year < 5000 ? x + 1e-6 : x), x) << year;  // early ones lie in the noise of rounding
        ASSERT_NEAR(MoladBefore(x - 1e-6), x - MoladInterval, 1e-8) << year;
        ASSERT_NEAR(TraditionalMolad(ElapsedMonths19(year, 7)), x + 0.25, 1e-8) << year;
    }
}

}  // namespace
}  // namespace horvanta
