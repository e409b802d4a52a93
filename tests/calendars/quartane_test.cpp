#include "calendars/quartane.h"

#include "calendars/gregorian.h"
#include "calendars/quartane_leap_rules.h"
#include "calendars/quartane_leap_text.h"
#include "calendars/quartane_year_start.h"
#include "core/text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <set>
#include <sstream>
#include <tuple>
#include <vector>

namespace horvanta::quartane {
namespace {

class Quartane : public testing::Test {
  protected:
    /// The keys of the full list.
    static std::vector<std::string> Keys() {
        options.QuaSoupMix = true;
        std::vector<std::string> keys;
        for (const std::string& text : LeapChoices()) {
            if (!text.empty()) keys.push_back(text.substr(0, text.find(' ')));
        }
        return keys;
    }

    /// Calls for each listed rule with a cycle of its own, in both even modes.
    static void ForEachCycle(const std::function<void(const LeapRule&)>& test) {
        for (const std::string& key : Keys()) {
            options.LeapRuleKey = key;
            for (const bool even : {false, true}) {
                options.EvenCycleFlag = even;
                SCOPED_TRACE(key + (even ? " even" : ""));
                if (Rule().IsCycleRule) test(Rule());
            }
        }
    }
};

/// Years of a rule: whole weeks from start weekday to start weekday, found again from their ends.
void ExpectYears(std::int32_t first, std::int32_t last) {
    FixedDay newYear = QuaNewYear(first);
    for (std::int32_t year = first; year < last; ++year) {
        const FixedDay next = QuaNewYear(year + 1);
        ASSERT_EQ(DayOfWeek(newYear), options.StartWeekday) << year;
        ASSERT_EQ(next - newYear, QuaYearLength(isQuaLeapYear(year))) << year;
        for (const FixedDay day : {newYear, newYear + 363, next - 1}) {
            const QuaYear found = FixedToQuaYear(day + 0.5);
            ASSERT_EQ(found.year, year);
            ASSERT_EQ(found.newYear, newYear);
        }
        ASSERT_LE(std::fabs(QuaNewYear(year, true) - 0.5 - newYear), Rule().IsCycleRule ? 7.5 : 3.5) << year;
        newYear = next;
    }
}

TEST_F(Quartane, CyclesHoldTheirLeapYears) {
    ForEachCycle([](const LeapRule& rule) {
        for (options.StartWeekday = 0; options.StartWeekday < 7; ++options.StartWeekday) {
            const auto years = static_cast<std::int32_t>(rule.CycleLength);
            ExpectYears(1 - years / 2, 1 + years);
            EXPECT_EQ(QuaNewYear(1 + years) - QuaNewYear(1), static_cast<double>(rule.CycleDays));
        }
        options.StartWeekday = 1;
        EXPECT_EQ(QuaNewYear(1), GregorianEpoch);
        EXPECT_EQ(CheckIfQuaCycle(), rule.CycleLength % 2 != 0 ? 1 : -1);
        EXPECT_EQ(rule.ModularInverse * rule.LeapNumerator % rule.CycleLength, 1);
    });
}

TEST_F(Quartane, RulesOfMomentsKeepWeeks) {
    const std::vector<std::string> listed = Keys();
    std::set<std::string> keys{"RJISO",  "RJISOalt", "NE80",   "MNE80", "NS174",
                               "MNS174", "SE100",    "MSE100", "SS10",  "MSS10"};
    keys.merge(std::set<std::string>(listed.begin(), listed.end()));
    for (const std::string& key : keys) {
        options.LeapRuleKey = key;
        if (Rule().IsCycleRule) continue;
        SCOPED_TRACE(key);
        for (options.StartWeekday = 0; options.StartWeekday < 7; ++options.StartWeekday) {
            for (const std::int32_t year : {-6900, -20, 1990, 11900}) ExpectYears(year, year + 30);
        }
        for (const std::int32_t year : {1900, 2024, 2100}) {
            EXPECT_NEAR(QuaNewYear(year, true), GregorianToFixed(year, 1, 1), 5) << year;
        }
    }
}

TEST_F(Quartane, KnowsTheISOCalendar) {
    options.LeapRuleKey = "ISO";
    const FixedDay last = GregorianToFixed(6000, 1, 1);
    for (FixedDay day = GregorianToFixed(-3000, 1, 1); day < last; ++day) {
        const ISODate iso = FixedToISODate(day);
        const QuaDate date = FixedToQuaDate(day);
        ASSERT_EQ(date.year, iso.year) << FixedToGregorianString(day);
        ASSERT_EQ(date.yearDay, iso.ordinalDay);
        ASSERT_EQ(date.isLeap, iso.isLeap);
        ASSERT_EQ(date.weekOfYear, iso.week);
    }
    options.LeapRuleKey = "RJISO";  // of whose centuries those are leap that leave 200 or 600 over 900
    for (const auto& [year, days] : {std::pair(2000, 366), {2100, 365}, {2400, 366}, {2800, 365}, {2900, 366}}) {
        EXPECT_EQ(QuaNewYear(year + 1, true) - QuaNewYear(year, true), days) << year;
    }
}

/// Every day of a common and of a leap year, in each layout: months tile the year, weeks the quarter, and dates convert
/// back.
void ExpectMonthsToTile(std::int32_t year) {
    std::int32_t month = 0;
    std::int32_t left = 0;
    for (FixedDay day = QuaNewYear(year); day < QuaNewYear(year + 1); ++day) {
        const QuaDate& date = QuaDateOn(day + 0.75);
        if (left == 0) {
            ++month;
            left = date.monthLength;
            ASSERT_EQ(date.day, 1);
        }
        ASSERT_EQ(date.month, month);
        ASSERT_EQ(date.day, date.monthLength - left-- + 1);
        ASSERT_EQ(date.weekday, DayOfWeek(day));
        ASSERT_EQ(date.yearDay, 91 * (date.quarter - 1) + date.dayOfQuarter);
        ASSERT_EQ(date.monthInQuarter, date.month == 13 ? 4 : (date.month - 1) % 3 + 1);
        if (options.QuarterStructure == "SLS") {
            ASSERT_EQ(DaysInMonth(year, month), date.monthLength);
        }
    }
    ASSERT_EQ(left, 0);
    ASSERT_EQ(std::ssize(Calendar.MonthNames(year)), month);
    ASSERT_EQ(month == 13, HasZovember() && isQuaLeapYear(year));
}

TEST_F(Quartane, MonthsTileEveryYear) {
    for (const char* structure : {"LSS", "SLS", "SSL"}) {
        for (int layout = 0; layout < 4 * 7; ++layout) {
            SetQuaQuarterStructure(structure);
            options.Qua454 = layout % 2 == 0;
            ToggleUseZov(layout % 4 < 2);
            options.StartWeekday = layout / 4;
            SCOPED_TRACE(QuarterText(options.Qua454) + (QuaLeapUseZov() ? " alone" : "") +
                         std::to_string(options.StartWeekday));
            ExpectMonthsToTile(2008);
            ExpectMonthsToTile(2009);
        }
    }
}

/// Days from the Gregorian new year to the moment of the rule's. Those of seasons are by Astronomy Engine 2.1.19 (npm
/// astronomy-engine; Seasons, SearchSunLongitude), the mean ones by the linear part of the series of the Sun's
/// longitude; those of years that change evenly are sums over their length in small steps.
TEST_F(Quartane, NewYearMomentsAreKnownToATenthOfADay) {
    constexpr std::tuple<const char*, std::int32_t, double> rows[] = {
        {"ISO", 2024, 0},        {"ISO", 3000, 0},        {"ISOalt", 2021, 3},     {"ISOalt", 2025, -2},
        {"RJISO", 2024, 0},      {"RJISO", 2801, -1},     {"RJISOalt", 2021, 3},   {"RJISOalt", 2801, 0},
        {"NE80", 2024, 0.63},    {"NE80", 3000, 0.18},    {"MNE80", 2024, 0.16},   {"MNE80", 3000, -0.51},
        {"NS174", 2024, -0.63},  {"NS174", 3000, -1.85},  {"MNS174", 2024, -2.53}, {"MNS174", 3000, -3.20},
        {"SE100", 2024, 0.53},   {"SE100", 3000, -0.42},  {"MSE100", 2024, -3.71}, {"MSE100", 3000, -4.38},
        {"SS10", 2024, 0.39},    {"SS10", 3000, 0.18},    {"MSS10", 2024, -2.40},  {"MSS10", 3000, -3.07},
        {"BNY", 2024, -0.04},    {"MOY", 2024, -0.04},    {"MOY", -2000, 0.83},    {"RAY", 2024, 0.08},
        {"RAY", 8000, -3.01},    {"LANEY", -500, 1.00},   {"LANEY", 2024, 0.62},   {"LANEY", 9000, -2.24},
        {"LANSY", 2024, -0.75},  {"LANSY", 11500, -8.99}, {"LASEY", -4000, -1.55}, {"LASEY", -1000, 0.26},
        {"LASEY", 2024, 0.46},   {"LASEY", 6000, -3.40},  {"LASSY", -500, -0.70},  {"LASSY", 2024, 0.34},
        {"LASSY", 10000, -6.04}, {"LABY", 2024, 0.00},    {"LABY", 10500, -7.39},
    };
    std::set<std::string> missing;
    for (const std::string& key : Keys()) {
        options.LeapRuleKey = key;
        if (!Rule().IsCycleRule) missing.insert(key);
    }
    for (const auto& [key, year, days] : rows) {
        options.LeapRuleKey = key;
        missing.erase(key);
        EXPECT_NEAR(QuaNewYear(year, true) - GregorianToFixed(year, 1, 1), days, 0.05) << key << " " << year;
    }
    EXPECT_TRUE(missing.empty()) << *missing.begin();
}

/// Each option alone: a day of the leap week of 2009, one of early 2009, and one where a cycle of 400 years has its
/// middle.
TEST_F(Quartane, EachOptionMovesTheDate) {
    const std::tuple<Options, const char*, const char*, const char*> rows[] = {
        {{}, "Thu, Dec 32, 2009", "Mon, Feb 8, 2009", "Thu, Jan 4, 201"},
        {{.LeapRuleKey = "11/62"}, "Thu, Jan 4, 2010", "Mon, Feb 8, 2009", "Thu, Jan 4, 201"},
        {{.LeapRuleKey = "71/400"}, "Thu, Dec 32, 2009", "Mon, Feb 8, 2009", "Thu, Dec 32, 200"},
        {{.LeapRuleKey = "71/400", .EvenCycleFlag = true}, "Thu, Dec 32, 2009", "Mon, Feb 8, 2009", "Thu, Jan 4, 201"},
        {{.StartWeekday = 4}, "Thu, Dec 29, 2009", "Mon, Feb 5, 2009", "Thu, Jan 1, 201"},
        {{.QuarterStructure = "LSS"}, "Thu, Dec 32, 2009", "Mon, Feb 1, 2009", "Thu, Jan 4, 201"},
        {{.QuarterStructure = "SSL"}, "Thu, Zov 4, 2009", "Mon, Feb 8, 2009", "Thu, Jan 4, 201"},
        {{.Qua454 = false}, "Thu, Zov 4, 2009", "Mon, Feb 6, 2009", "Thu, Jan 4, 201"},
        {{.UseZov454 = true}, "Thu, Zov 4, 2009", "Mon, Feb 8, 2009", "Thu, Jan 4, 201"},
        {{.Qua454 = false, .UseZov010 = false}, "Thu, Dec 34, 2009", "Mon, Feb 6, 2009", "Thu, Jan 4, 201"},
    };
    for (const auto& [chosen, leapWeek, february, middle] : rows) {
        options = chosen;
        EXPECT_EQ(FixedToQuaShortDate(GregorianToFixed(2009, 12, 31) + 0.5), leapWeek);
        EXPECT_EQ(FixedToQuaShortDate(GregorianToFixed(2009, 2, 2)), february) << leapWeek;
        EXPECT_EQ(FixedToQuaShortDate(GregorianToFixed(201, 1, 1)), middle) << leapWeek;
    }
}

/// The groups of each rule's intervals come to its cycle.
TEST_F(Quartane, GroupsIntervals) {
    ForEachCycle([](const LeapRule& rule) {
        const std::string intervals = QuaLeapIntervals();
        EXPECT_EQ(intervals.find_first_not_of("17 "), std::string::npos) << intervals;
        std::int64_t years = 0;
        std::istringstream groups(ReplaceAll(ReplaceAll(QuaGroupIntervals(intervals), "(", ""), ")", ""));
        for (std::string group; std::getline(groups, group, '+');) years += std::stoi(group);
        EXPECT_EQ(years, rule.CycleLength) << QuaGroupIntervals(intervals);
    });
    options.EvenCycleFlag = false;
    options.LeapRuleKey = "93/524";
    EXPECT_EQ(QuaGroupIntervals(QuaLeapIntervals()), "45+79+45+79+(28)+79+45+79+45");
    EXPECT_EQ(ReduceIntervals("(28)+(28)+79+(28)", false), "2*(28) + 79 + (28)");
    EXPECT_EQ(ReduceIntervals("+", false), "");
    EXPECT_EQ(ReduceIntervals("79+(28)+(28)+(28)", true), "79 + 3&times;(28)");
}

TEST_F(Quartane, KeepsTheRuleAtSeparators) {
    SetQuaLeapChoice("69/389");
    EXPECT_EQ(options.LeapRuleIndex, 4);
    ChooseLeapRule(3);
    EXPECT_EQ(options.LeapRuleKey, "69/389");
    SetQuaLeapChoice("RAY");  // not in the short list
    EXPECT_EQ(options.LeapRuleKey, "52/293");
    options.QuaSoupMix = true;
    SetQuaLeapChoice("RAY");
    EXPECT_EQ(options.LeapRuleKey, "RAY");
    options.LeapRuleKey = "559/3150";
    EXPECT_EQ(MeanYearText(0), "365+109/450 days");
    options.StartWeekday = 3;
    EXPECT_EQ(LeapChoices()[9], "ISOalt = Start on Wednesday after ISO new year 71/400");
}

TEST_F(Quartane, TakesAnyTextForItsRule) {
    for (const char* key : {"100000/100000", "1/2/3", "/", "", "?"}) {
        options.LeapRuleKey = key;
        EXPECT_EQ(FixedToQuaDate(QuaNewYear(2024)).year, 2024) << key;
        EXPECT_EQ(Rule().CycleLength, key == std::string("100000/100000") ? 100'000 : 293) << key;
        EXPECT_FALSE(LeapRuleExplanation().empty() || LeapRuleMethod(true).empty()) << key;
    }
}

TEST_F(Quartane, JumpsToItsEvents) {
    EXPECT_EQ(Calendar.ToFixed(2008, 13, 1), QuaNewYear(2009) - 7);  // no leap week: falls back by one
    const FixedDay leapWeek = QuaNewYear(2010) - 7;
    EXPECT_EQ(JumpLeapWeek(leapWeek - 100, 1), leapWeek);
    EXPECT_EQ(JumpLeapWeek(leapWeek + 8, -1), leapWeek);
    EXPECT_EQ(JumpLeapWeek(leapWeek, 1), QuaNewYear(2016) - 7);
    EXPECT_EQ(JumpLeapWeek(leapWeek + 6, -1), QuaNewYear(2005) - 7);
    const FixedDay cycle = QuaNewYear(6 * 293 + 1);
    EXPECT_EQ(JumpQuaCycle(cycle + 1000, -1), cycle);
    EXPECT_EQ(JumpQuaCycle(cycle + 1000, 1), cycle + 107016);
    EXPECT_EQ(JumpQuaCycle(cycle, -1), cycle - 107016);
    for (const std::string& key : Keys()) {  // there and back over four new years
        options.LeapRuleKey = key;
        const Moment next = JumpNYmoment(QuaNewYear(2024) + 200, 1);
        const Moment second = JumpNYmoment(next, 1);
        EXPECT_NEAR(next - QuaNewYear(2024), 365, 8) << key;
        EXPECT_NEAR(second - next, 365, 8) << key;
        EXPECT_NEAR(JumpNYmoment(second, -1), next, 1e-3) << key;
    }
    options.LeapRuleKey = "RAY";
    EXPECT_EQ(JumpQuaCycle(cycle, 1), NeverMoment);
}

}  // namespace
}  // namespace horvanta::quartane
