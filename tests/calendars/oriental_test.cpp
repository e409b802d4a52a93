#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/oriental_text.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <tuple>

namespace horvanta::oriental {
namespace {

/// The Chinese years from 1900 on by the almanac (npm's lunar-javascript 1.7): in each the months of 30 days as bits,
/// the first of the year as the lowest, and above the 13th bit the number of the leap month. In 1906 and 2057 a new
/// moon within ten minutes of midnight stands on the other day in the almanac.
// clang-format off
constexpr std::uint32_t almanac[] = {
    0x116d2, 0x0752, 0x0ea5, 0xb64a, 0x064b, 0x0a9b, 0x9556, 0x056a, 0x0b59, 0x5752, 0x0752, 0xdb25, 0x0b25, 0x0a4b,
    0xb4ab, 0x02ad, 0x056b, 0x4b69, 0x0da9, 0xfd92, 0x0e92, 0x0d25, 0xba4d, 0x0a56, 0x02b6, 0x95b5, 0x06d4, 0x0ea9,
    0x5e92, 0x0e92, 0xcd26, 0x052b, 0x0a57, 0xb2b6, 0x0b5a, 0x06d4, 0x6ec9, 0x0749, 0xf693, 0x0a93, 0x052b, 0xca5b,
    0x0aad, 0x056a, 0x9b55, 0x0ba4, 0x0b49, 0x5a93, 0x0a95, 0xf52d, 0x0536, 0x0aad, 0xb5aa, 0x05b2, 0x0da5, 0x7d4a,
    0x0d4a, 0x10a95, 0x0a97, 0x0556, 0xcab5, 0x0ad5, 0x06d2, 0x8ea5, 0x0ea5, 0x064a, 0x6c97, 0x0a9b, 0xf55a, 0x056a,
    0x0b69, 0xb752, 0x0b52, 0x0b25, 0x964b, 0x0a4b, 0x114ab, 0x02ad, 0x056d, 0xcb69, 0x0da9, 0x0d92, 0x9d25, 0x0d25,
    0x15a4d, 0x0a56, 0x02b6, 0xc5b5, 0x06d5, 0x0ea9, 0xbe92, 0x0e92, 0x0d26, 0x6a56, 0x0a57, 0x114d6, 0x035a, 0x06d5,
    0xb6c9, 0x0749, 0x0693, 0x952b, 0x052b, 0x0a5b, 0x555a, 0x056a, 0xfb55, 0x0ba4, 0x0b49, 0xba93, 0x0a95, 0x052d,
    0x8aad, 0x0ab5, 0x135aa, 0x05d2, 0x0da5, 0xdd4a, 0x0d4a, 0x0c95, 0x952e, 0x0556, 0x0ab5, 0x55b2, 0x06d2, 0xcea5,
    0x0725, 0x064b, 0xac97, 0x0cab, 0x055a, 0x6ad6, 0x0b69, 0x17752, 0x0b52, 0x0b25, 0xda4b, 0x0a4b, 0x04ab, 0xa55b,
    0x05ad, 0x0b6a, 0x5b52, 0x0d92, 0xfd25, 0x0d25, 0x0a55, 0xb4ad, 0x04b6, 0x05b5, 0x6daa, 0x0ec9, 0x11e92, 0x0e92,
    0x0d26, 0xca56, 0x0a57, 0x04d6, 0x86d5, 0x0755, 0x0749, 0x6e93, 0x0693, 0xf52b, 0x052b, 0x0a5b, 0xb55a, 0x056a,
    0x0b65, 0x974a, 0x0b4a, 0x11a95, 0x0a95, 0x052d, 0xcaad, 0x0ab5, 0x05aa, 0x8ba5, 0x0da5, 0x0d4a, 0x7c95, 0x0c96,
    0xf94e, 0x0556, 0x0ab5, 0xb5b2, 0x06d2, 0x0ea5, 0x8e4a, 0x068b, 0x10c97, 0x04ab, 0x055b, 0xcad6, 0x0b6a, 0x0752,
    0x9725, 0x0b45, 0x0a8b, 0x549b, 0x04ab,
};
// clang-format on

TEST(Oriental, ChineseMonthsAreThoseOfTheAlmanac) {
    FixedDay begin = GregorianToFixed(1900, 1, 31);
    std::int32_t gregorian = 1900;
    for (const std::uint32_t year : almanac) {
        const auto leap = static_cast<int>(year >> 13);
        const int months = leap > 0 ? 13 : 12;
        for (int place = 1; place <= months; ++place) {
            const int length = 29 + static_cast<int>(year >> (place - 1) & 1);
            const bool differs =
                (gregorian == 1906 && (place == 3 || place == 4)) || (gregorian == 2057 && (place == 8 || place == 9));
            const OrientDate date = FixedToOrientDate(begin + 14);
            if (!differs) {
                EXPECT_EQ(date.day, 15) << gregorian << " " << place;
                EXPECT_EQ(date.monthLength, length) << gregorian << " " << place;
            }
            EXPECT_EQ(date.shownYear, gregorian + 2697);
            EXPECT_EQ(date.place, place);
            EXPECT_EQ(date.month, leap > 0 && place > leap ? place - 1 : place) << gregorian;
            EXPECT_EQ(date.isLeapMonth, leap > 0 && place == leap + 1) << gregorian;
            begin += length;
        }
        ++gregorian;
    }
}

/// Years in which the neighbours' new years are apart by a day or by a month, from their almanacs. All days of 1900 to
/// 2100 by the meridian of Japan agree with Emacs's calendar, and those of Korea from 1912 to 2050 with the table of
/// its almanac (npm korean-lunar-calendar 0.4), which until then has new moons before midnight by a more western
/// meridian.
TEST(Oriental, NationalNewYearsAreApart) {
    constexpr std::tuple<Variant, int, int, int> rows[] = {
        {Chinese, 1968, 1, 30}, {Vietnamese, 1968, 1, 29}, {Chinese, 1969, 2, 17}, {Vietnamese, 1969, 2, 16},
        {Chinese, 1985, 2, 20}, {Vietnamese, 1985, 1, 21}, {Chinese, 1997, 2, 7},  {Korean, 1997, 2, 8},
        {Chinese, 2007, 2, 18}, {Vietnamese, 2007, 2, 17}, {Chinese, 2027, 2, 6},  {Korean, 2027, 2, 7},
        {Chinese, 2030, 2, 3},  {Vietnamese, 2030, 2, 2},  {Chinese, 2033, 1, 31}, {Japanese, 2033, 1, 31},
    };
    for (const auto& [variant, year, month, day] : rows) {
        options.OrientVariant = variant;
        const FixedDay fixed = GregorianToFixed(year, month, day);
        EXPECT_EQ(FixedToOrientDate(fixed).newYear, fixed) << variant << " " << year;
        EXPECT_EQ(FixedToOrientDate(fixed - 1).nextNewYear, fixed) << variant << " " << year;
    }
}

/// The definitions, day by day and month by month, as Reingold and Dershowitz give them.
namespace slow {

FixedDay NewMoonOnOrAfter(FixedDay day) { return Floor(OrientStandard(NewMoonAfter(OrientMidnight(day)))); }
FixedDay NewMoonUpTo(FixedDay day) { return Floor(OrientStandard(NewMoonBefore(OrientMidnight(day)))); }

FixedDay WinterSolsticeOnOrBefore(FixedDay day) {
    FixedDay found = Floor(EstimateSolarLongitudeBefore(OrientMidnight(day + 1), 270)) - 1;
    while (SolarLongitude(OrientMidnight(found + 1)) <= 270) ++found;
    return found;
}

bool NoMajorSolarTerm(FixedDay month) { return MajorSolarTerm(month) == MajorSolarTerm(NewMoonOnOrAfter(month + 1)); }

bool PriorLeapMonth(FixedDay first, FixedDay month) {
    return month >= first && (NoMajorSolarTerm(month) || PriorLeapMonth(first, NewMoonUpTo(month)));
}

bool HasThirteen(FixedDay month12, FixedDay next11) { return Round((next11 - month12) / MeanSynodicMonth) == 12; }

FixedDay NewYearInSui(FixedDay day) {
    const FixedDay solstice = WinterSolsticeOnOrBefore(day);
    const FixedDay next11 = NewMoonUpTo(WinterSolsticeOnOrBefore(solstice + 370) + 1);
    const FixedDay month12 = NewMoonOnOrAfter(solstice + 1);
    const FixedDay month13 = NewMoonOnOrAfter(month12 + 1);
    const bool isLate = HasThirteen(month12, next11) && (NoMajorSolarTerm(month12) || NoMajorSolarTerm(month13));
    return isLate ? NewMoonOnOrAfter(month13 + 1) : month13;
}

FixedDay NewYear(double count) {
    const FixedDay day = Floor((count - 0.5) * MeanTropicalYear + OrientEpoch());
    const FixedDay newYear = NewYearInSui(day);
    return day >= newYear ? newYear : NewYearInSui(day - 180);
}

OrientDate DateOf(FixedDay day) {
    const FixedDay solstice = WinterSolsticeOnOrBefore(day);
    const FixedDay next11 = NewMoonUpTo(WinterSolsticeOnOrBefore(solstice + 370) + 1);
    const FixedDay month12 = NewMoonOnOrAfter(solstice + 1);
    const FixedDay month = NewMoonUpTo(day + 1);
    const bool isLeapSui = HasThirteen(month12, next11);
    const int fewer = isLeapSui && PriorLeapMonth(month12, month) ? 1 : 0;
    OrientDate date{.fixed = day, .isLeapSui = isLeapSui};
    date.month = WholeNumber<std::int16_t>(AdjustedModulo(Round((month - month12) / MeanSynodicMonth) - fewer, 12));
    const auto yearFrom = [&](double epoch) {
        return WholeNumber(Floor(1.5 - date.month / 12.0 + (day - epoch) / MeanTropicalYear));
    };
    const std::int32_t count = yearFrom(OrientEpoch());
    date.shownYear = yearFrom(OrientYearEpoch());
    date.cycle = WholeNumber(Quotient(count - 1, 60)) + 1;
    date.year = WholeNumber(AdjustedModulo(count, 60));
    date.newYear = NewYear(count);
    date.nextNewYear = NewYear(count + 1);
    date.isLeapMonth = isLeapSui && NoMajorSolarTerm(month) && !PriorLeapMonth(month12, NewMoonUpTo(month));
    date.day = WholeNumber<std::int16_t>(day - month + 1);
    return date;
}

}  // namespace slow

std::array<double, 10> Essence(const OrientDate& date) {
    return {date.fixed,       double(date.cycle),      double(date.year),      double(date.shownYear),
            date.newYear,     date.nextNewYear,        double(date.isLeapSui), double(date.month),
            double(date.day), double(date.isLeapMonth)};
}

/// In all variants, over the years whose Sun and Moon are known; with HORVANTA_EVERY_DAY in every month.
TEST(Oriental, DatesAreThoseOfTheDefinitions) {
    const double stride = std::getenv("HORVANTA_EVERY_DAY") != nullptr ? 29 : 9000.3;
    for (const Variant variant : {Chinese, Japanese, Korean, Vietnamese}) {
        options.OrientVariant = variant;
        FixedDay day = GregorianToFixed(-3000, 1, 1) + variant * 1000;
        for (; day < GregorianToFixed(8000, 1, 1); day = Floor(day + stride)) {
            const OrientDate date = FixedToOrientDate(day);
            ASSERT_EQ(Essence(date), Essence(slow::DateOf(day))) << variant;
            ASSERT_EQ(OrientToFixed(date.cycle, date.year, date.month, date.isLeapMonth, date.day), day) << variant;
            ASSERT_EQ(NewYear(date.cycle, date.year), date.newYear);
            ASSERT_EQ(NewYear(date.cycle, date.year, 1), date.nextNewYear);
            ASSERT_EQ(NewYearOnOrBefore(day), date.newYear);
            ASSERT_EQ(WinterSolsticeOnOrBefore(day), slow::WinterSolsticeOnOrBefore(day));
        }
    }
}

TEST(Oriental, TheEraMovesTheShownYearAlone) {
    const FixedDay day = GregorianToFixed(2024, 6, 1);
    const auto shownBy = [day](Variant variant, std::int32_t epochYear) {
        options = {.OrientVariant = variant, .OrientEpochYear = epochYear};
        const GridDate grid = Calendar.DateOf(day);
        EXPECT_EQ(Calendar.ToFixed(grid.year, grid.month, grid.day), day);
        EXPECT_EQ(SexagesimalName(FixedToOrientDate(day).year, false), "Tree-Dragon");
        return grid.year;
    };
    EXPECT_EQ(shownBy(Chinese, -2637), 4661);
    EXPECT_EQ(shownBy(Chinese, -2697), 4721);
    EXPECT_EQ(shownBy(Vietnamese, -2698), 4722);
    EXPECT_EQ(shownBy(Korean, -2698), 4357);
    EXPECT_EQ(KoreanYear(FixedToOrientDate(day).cycle, FixedToOrientDate(day).year), 4357);
}

/// Day 0 of the rata die bears the name 5, 3; January 1 of 2000 was a wu-wu.
TEST(Oriental, NamesGoRoundBySixty) {
    options.UseEnglish = false;
    EXPECT_EQ(DayName(GregorianEpoch - 1), "wù-yin");
    EXPECT_EQ(DayName(GregorianToFixed(2000, 1, 1)), "wù-wu");
    EXPECT_EQ(SexagesimalName(41, true), "41/60 = 1-5 jia-chén");
    const FixedDay day = GregorianToFixed(2024, 2, 10);
    EXPECT_EQ(DayNameOnOrBefore("1,5", day), day);
    EXPECT_EQ(DayNameOnOrBefore("2,6", day), day - 59);
    EXPECT_EQ(NameDifference("1,1", "10,12"), 59);
    EXPECT_EQ(SexagesimalName(SexagesimalMonth(FixedToOrientDate(day)), false), "bîng-yin");
    options = {.OrientVariant = Vietnamese};
    EXPECT_EQ(SexagesimalName(40, false), "Water-Cat");
}

/// Terms and festivals as the almanacs of the countries have them.
TEST(Oriental, DaysAreTold) {
    constexpr std::tuple<Variant, bool, int, int, int, const char*> rows[] = {
        {Chinese, false, 2024, 2, 10, "Chun jié [marriage augury type: widow]; Start zhengyuè Month; "},
        {Vietnamese, false, 2024, 2, 9, "Giao Thù'a; "},
        {Japanese, false, 2024, 2, 9, "New Year Eve; "},
        {Japanese, false, 2025, 1, 29, "Ganjitsu [marriage augury type: double bright]; Start shogatsu Month; "},
        {Chinese, true, 2023, 3, 22, "Start Leap 2nd Month; "},
        {Chinese, false, 2024, 4, 4,
         "15° minor solar term = Qingmíng (Pure brightness); Qingming Festival (Qingming jié); "},
        {Korean, true, 2024, 4, 4, "15° minor solar term = Pure brightness; Begin Farming Season (Hansik); "},
        {Korean, true, 2024, 1, 18, "toe-wang-yong-sa (297°); "},
        {Chinese, true, 2024, 7, 19, ""},
        {Chinese, false, 2024, 6, 10, "Duanwu jié; "},
        {Vietnamese, false, 2024, 6, 10, "Dragon Boat Festival; "},
        {Korean, false, 2024, 9, 17, "Harvest Festival (Chuseok); "},
        {Vietnamese, false, 2024, 12, 21, "270° major solar term = Dông chí (Winter solstice); Dông chí; "},
    };
    for (const auto& [variant, english, year, month, day, expected] : rows) {
        options = {.OrientVariant = variant, .UseEnglish = english};
        std::string texts;
        for (const std::string& text : EventsOf(FixedToOrientDate(GregorianToFixed(year, month, day)))) {
            texts += text + "; ";
        }
        EXPECT_EQ(texts, expected) << variant << " " << year << " " << month << " " << day;
    }
}

TEST(Oriental, NewYearsAreJumpedTo) {
    const FixedDay newYear = GregorianToFixed(2024, 2, 10);
    EXPECT_EQ(JumpNewYear(newYear + 0.25, -1), newYear);
    EXPECT_EQ(JumpNewYear(newYear, -1), GregorianToFixed(2023, 1, 22));
    EXPECT_EQ(JumpNewYear(newYear, 1), GregorianToFixed(2025, 1, 29));
    EXPECT_EQ(JumpNewYear(newYear - 0.25, 1), newYear);
}

TEST(Oriental, TheGridNamesTheLeapMonthAndClampsThe13th) {
    options.UseEnglish = false;
    const std::vector<std::string> names = Calendar.MonthNames(4720);
    ASSERT_EQ(names.size(), 13U);
    EXPECT_EQ(names[2], "rùnyuè èryuè");
    EXPECT_EQ(names[12], "shí'èryuè");
    EXPECT_EQ(Calendar.MonthNames(4721).size(), 12U);
    EXPECT_EQ(Calendar.ToFixed(4721, 13, 1), Calendar.ToFixed(4721, 12, 1));
    EXPECT_EQ(FixedToOrientMonthDay(GregorianToFixed(2023, 3, 26)), "2*05");
    EXPECT_EQ(FixedToOrientMonthDay(GregorianToFixed(2024, 2, 14)), "1-05");
}

}  // namespace
}  // namespace horvanta::oriental
