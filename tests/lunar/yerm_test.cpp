#include "lunar/yerm.h"

#include "astro/lunar_phases.h"
#include "calendars/gregorian.h"
#include "lunar/yerm_eras.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

namespace horvanta {
namespace {

/// Files of eras for one test, after which the fixed cycle is in use again.
class Yerm : public testing::Test {
  protected:
    void SetUp() override { RevertToFixedYermCycle(); }
    void TearDown() override {
        RevertToFixedYermCycle();
        std::filesystem::remove(path_);
    }

    /// A file of that text.
    const std::string& File(const std::string& text) {
        std::ofstream(path_, std::ios::binary) << text;
        return path_;
    }

    /// A list of eras of those lengths in days, the first of them beginning on `start`.
    const std::string& List(const std::vector<int>& lengths, double start = 201853.5) {
        std::string text = "Eras of a test, n+1\n108000\n1\n-17889\n" + std::to_string(start);
        for (const int length : lengths) {
            start += length;
            text += "\n" + std::to_string(start);
        }
        return File(text + "\n");
    }

    void ExpectFixedCycle() {
        EXPECT_FALSE(PresentYermForm().Progressive);
        EXPECT_EQ(FixedToYermString(730120), "21+3(5(24");
    }

  private:
    std::string path_ = std::filesystem::temp_directory_path() / ("yerm_test_" + std::to_string(getpid()));
};

/// Without and with a yerm zero; three equal ones as one span, which are a subcycle shorter than the one before; four
/// as long as that; and a last one that goes on.
const std::vector<int> lengths{25101, 25544, 3 * 24097, 4 * 24097, 25101};

TEST_F(Yerm, DaysOfAListAreThoseOfTheirDates) {
    ASSERT_TRUE(OpenYermEraList(List(lengths)));
    const double first = 201854;
    for (double day = first; day <= first + 600000; ++day) {  // far behind the last era of the list
        const YermDate date = FixedToYermDate(day).value();
        ASSERT_EQ(YermDateToFixed(date.EraNumber, date.Yerm, date.Month, date.Day), day - 0.5) << day;
        ASSERT_TRUE(IsValidYermDate(date.EraNumber, date.Yerm, date.Month, date.Day)) << day;
        ASSERT_EQ(LunationEraToFixed(Floor(date.Lunation)), day - 0.5 - (date.Day - 1)) << day;
    }
    EXPECT_EQ(FixedToYermString(first - 1), "–");
    EXPECT_EQ(YermCalendar.DateOf(first - 1).month, 0);
}

TEST_F(Yerm, SpansOfAListAreTakenApart) {
    ASSERT_TRUE(OpenYermEraList(List(lengths)));
    const int expected[] = {25101, 25544, 24097, 24097, 24097, 24097, 24097, 24097, 24097, 25101, 25101, 25101};
    double start = 201853.5;
    for (int number = 1; const int days : expected) {
        const YermEra era = YermEraLookup(number, YermKey::Number).value();
        EXPECT_EQ(era.EraDays, days) << number;
        EXPECT_EQ(era.EraStart, start) << number;
        EXPECT_EQ(YermEraLookup(era.LunationEnd - 1, YermKey::Lunation)->EraNumber, number);
        EXPECT_EQ(era.HasYermZero, number >= 2 && number <= 9) << number;
        EXPECT_EQ(era.N29() * 29 + era.N30() * 30, days) << number;
        start = era.EraEnd;
        ++number;
    }
    EXPECT_FALSE(YermEraLookup(0, YermKey::Number));
}

/// A month begins on the day of the mean new moon or beside it, as long as the cycle's mean month holds.
TEST_F(Yerm, MonthsKeepToTheMoon) {
    for (double lunation = -17889; lunation < 6000; ++lunation) {
        ASSERT_NEAR(LunationEraToFixed(lunation) + 0.5, MeanNewMoonUT(lunation), 1.7) << lunation;
        ASSERT_NEAR(LunationEraToMoment(lunation), MeanNewMoonUT(lunation), 0.5) << lunation;
    }
    EXPECT_NEAR(LunationEraToMoment(-17889 + 850), MeanNewMoonUT(-17889 + 850) + 1.0 / 12, 1e-6);
    ASSERT_TRUE(OpenYermEraList(List(lengths)));
    EXPECT_NEAR(LunationEraToMoment(-17889), MeanNewMoonUT(-17889) + 1.0 / 12 + 1.0 / 24, 1e-6);
}

/// The closed formulas give the days that the yerms give; of those by the Hebrew count, the midnight.
TEST_F(Yerm, FormulasOfAMonthAgree) {
    for (double lunation = -90000; lunation < 60000; ++lunation) {
        const FixedDay fixed = LunationEraToFixed(lunation);
        ASSERT_EQ(VarnokLunationToFixed(lunation), fixed) << lunation;
        ASSERT_EQ(HebrewLunationEraToFixed(lunation + 71233), fixed) << lunation;
        ASSERT_EQ(HCEMtoFixed(lunation + 71233), fixed + 0.5) << lunation;
    }
    ASSERT_TRUE(OpenYermEraList(List(lengths)));
    for (double lunation = -17889; lunation < 3000; ++lunation) {
        ASSERT_EQ(VarnokLunationToFixed(lunation), LunationEraToFixed(lunation)) << lunation;
    }
    EXPECT_EQ(LunationEraToFixed(-20000), NeverMoment);
}

TEST_F(Yerm, KnowsWhichDatesThereAre) {
    // clang-format off
    const std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t, bool, bool> dates[] = {
        {2, 1, 17, 30, true, true}, {2, 1, 18, 1, false, false}, {2, 3, 15, 30, true, true}, {2, 3, 16, 1, false, false},
        {2, 1, 2, 29, true, true}, {2, 1, 2, 30, false, false}, {2, 0, 15, 30, false, true}, {2, 0, 16, 1, false, false},
        {1, 0, 1, 1, false, false}, {2, 53, 1, 1, false, false}, {2, -1, 1, 1, false, false}, {2, 1, 0, 1, false, false},
        {2, 1, 1, 0, false, false}, {0, 1, 1, 1, true, false}, {-5, 52, 17, 30, true, false}};
    // clang-format on
    for (const bool list : {false, true}) {
        ASSERT_TRUE(!list || OpenYermEraList(List(lengths)));
        for (const auto& [era, yerm, month, day, inCycle, inList] : dates) {
            const bool expected = list ? inList : inCycle;
            EXPECT_EQ(IsValidYermDate(era, yerm, month, day), expected) << list << era << ' ' << yerm << ' ' << month;
            EXPECT_EQ(IsValidYermLunation(era, yerm, month, day), expected) << list << era << ' ' << yerm << ' ' << day;
        }
    }
}

/// An era whose days are no whole yerms has days that belong to none.
TEST_F(Yerm, DaysBetweenErasAreNotValid) {
    ASSERT_TRUE(OpenYermEraList(List({1447 + 1400, 25101})));
    const double start = 201854;
    EXPECT_TRUE(FixedHasValidYermDate(start + 443 + 1447 + 501));
    EXPECT_FALSE(FixedHasValidYermDate(start + 443 + 1447 + 502));
    EXPECT_TRUE(FixedHasValidYermDate(start + 1447 + 1400));
}

TEST_F(Yerm, BadListLeavesTheFixedCycle) {
    const std::string head = "Title\n108000\n1\n-17889\n";
    const std::string bad[] = {
        "",
        head + "201853.5\n",                      // no end
        head + "226954.5\n201853.5\n",            // descending
        head + "201853.5\n201853.5\n",            // no days
        head + "201853.5\n226954.75\n",           // no whole days
        head + "201853.5\n226954.5\n22\n",        // cut off
        head + "201853.5\n1e300\nnan\n",          // far off
        "108000\n1\n-17889\n201853.5\n226954.5",  // without a title, a number short
        std::string("\0\x02\n\xff\xfe\n\0\0", 8),
    };
    for (const std::string& text : bad) {
        ASSERT_TRUE(OpenYermEraList(List(lengths)));
        EXPECT_FALSE(OpenYermEraList(File(text))) << text;
        ExpectFixedCycle();
    }
    for (const char* path : {"", "/", "/nowhere/at/all", "/dev/zero"}) {
        EXPECT_FALSE(OpenYermEraList(path)) << path;
        ExpectFixedCycle();
    }
}

TEST_F(Yerm, ListKeepsItsDatesUnderAnyNumbering) {
    const auto renumbered = "From afar\r\n0\r\n-999\r\n-17889\r\n200853.5\r\n225954.5\r\n\r\n";
    ASSERT_TRUE(OpenYermEraList(File(renumbered)));
    EXPECT_EQ(PresentYermForm().EraDescription, "From afar");
    EXPECT_EQ(YermEraLookup(1, YermKey::Number)->EraStart, 201853.5);
    const std::string date = FixedToYermString(GregorianEpoch + 730119);
    const double lunation = LunationEraToMoment(0);
    SetFixedDayEpoch(400000, 1, "another");
    EXPECT_EQ(FixedToYermString(GregorianEpoch + 730119), date);
    EXPECT_NEAR(LunationEraToMoment(0) - GregorianEpoch + 1, lunation, 1e-8);
}

/// Forward and back by a yerm as long as it is; over a yerm zero and the end of an era too.
TEST_F(Yerm, JumpsKeepTheirPlace) {
    ASSERT_TRUE(OpenYermEraList(List(lengths)));
    for (double x = 203000.3; x < 420000; x += 97) {
        for (const int direction : {-1, 1}) {
            const YermDate from = FixedToYermDate(x).value();
            if (from.Month > 15) continue;
            const Moment found = JumpYerm(x, direction);
            const YermDate date = FixedToYermDate(found).value();
            ASSERT_EQ(found, date.Fixed + 0.5) << x;  // a midnight
            ASSERT_EQ(date.Month, from.Month) << x;
            ASSERT_EQ(date.Day, from.Day) << x;
            ASSERT_TRUE(date.Yerm == from.Yerm + direction || date.EraNumber == from.EraNumber + direction) << x;
        }
    }
    const double first = 201854;
    EXPECT_EQ(JumpYerm(first, -1), NeverMoment);
    EXPECT_EQ(JumpYermEra(first + 100.3, 1), first + 100.3 + lengths[0]);
    RevertToFixedYermCycle();
    EXPECT_EQ(JumpYerm(YermDateToFixed(3, 1, 4, 5) + 0.3, -1), YermDateToFixed(2, 52, 4, 5) + 0.3);
    EXPECT_EQ(JumpYermEra(730120.25, -1), 730120.25 - 25101);
}

/// The grid's day is the midnight inside it, and its yerms count on over eras.
TEST_F(Yerm, GridCountsYerms) {
    EXPECT_EQ(YermCalendar.ToFixed(52 * 20 + 3, 2, 7), YermDateToFixed(20, 3, 2, 7) + 0.5);
    ASSERT_TRUE(OpenYermEraList(List(lengths)));
    EXPECT_EQ(YermCalendar.MonthNames(53).back(), "Yerm 0, month 15");
    for (double day = 201854; day < 500000; day += 11) {
        const GridDate date = YermCalendar.DateOf(day);
        ASSERT_EQ(YermCalendar.ToFixed(date.year, date.month, date.day), day);
    }
}

}  // namespace
}  // namespace horvanta
