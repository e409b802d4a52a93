#include "calendars/civil_days.h"

#include "calendars/easter.h"
#include "calendars/quartane.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
    return all;
}

struct Row {
    int year, month, day;
    const char* texts;
    DayKind kind = DayKind::None;
};

TEST(CivilDays, DaysAreThoseOfTheAlmanacs) {
    // clang-format off
    constexpr Row rows[] = {
        {2023, 1, 2, "Holiday for New Year Day", DayKind::Public},
        {2022, 1, 3, "Holiday for New Year Day", DayKind::Public}, {2021, 1, 2, ""}, {325, 12, 25, ""},
        {326, 12, 25, "Christmas", DayKind::Church}, {2025, 1, 6, "Epiphany (outside USA)"},
        {1777, 1, 5, "USA Epiphany"}, {2024, 1, 28, "Septuagesima Sunday"},
        {2025, 1, 20, "USA Martin Luther King Jr Day, USA Inauguration Day"}, {1929, 3, 4, "USA Inauguration Day"},
        {1933, 3, 4, ""}, {2024, 2, 29, "Leap Day"}, {2024, 3, 10, "UK Mothering Sunday"},
        {2024, 3, 29, "Good Friday", DayKind::Church}, {2024, 4, 1, "Easter Monday, April Fools Day", DayKind::Church},
        {2023, 4, 15, ""}, {2023, 4, 17, "USA Tax Day, USA Marathon Monday"},
        {2024, 4, 15, "USA Tax Day, USA Marathon Monday"}, {2022, 4, 15, "Good Friday, USA Tax Day", DayKind::Church},
        {2021, 4, 30, "USA Arbor Day, Canada Tax Day"}, {2023, 5, 1, "May Day, Canada Tax Day"},
        {1920, 5, 9, "Rogation Sunday, Mothers Day"}, {2024, 5, 12, "Mothers Day, Joan of Arc Day"},
        {2024, 5, 20, "Whitmundy, Victoria Day (Canada)"}, {2023, 5, 29, "Whitmundy, USA Memorial Day"},
        {1970, 5, 30, "USA Memorial Day"}, {1982, 7, 1, "Dominion Day (Canada) 115th"},
        {2018, 7, 2, "Holiday for Canada Day 151st"}, {1776, 7, 4, "USA Independence Day"},
        {2021, 7, 5, "Holiday for USA Independence Day 245th"}, {2024, 8, 5, "Civic Holiday", DayKind::Civic},
        {2024, 9, 2, "Labour Day (Canada), USA Labor Day"}, {1970, 10, 26, "USA Veterans Day"},
        {1953, 11, 11, "Remembrance Day (Canada), USA Armistice Day"},
        {2024, 11, 11, "Remembrance Day (Canada), USA Veterans Day"},
        {2024, 11, 5, "USA Election Day, UK Guy Fawkes Day (Bonfire Night)"}, {2024, 11, 28, "USA Thanksgiving Day"},
        {2024, 11, 29, "USA Black Friday"}, {2023, 10, 29, "Reformation Sunday (Protestant)"},
        {2022, 11, 27, "Advent Sunday"}, {2024, 12, 1, "Advent Sunday"},
        {2020, 12, 28, "Holiday for Boxing Day", DayKind::Public},
        {2022, 12, 27, "Holiday for Christmas", DayKind::Public}, {1774, 6, 2, "Corpus Christi"},
        {2024, 6, 2, "Corpus Christi (USA Catholics)"},
    };
    // clang-format on
    for (const auto& [year, month, day, texts, kind] : rows) {
        const std::vector<DayText> found = CivilDaysOf(GregorianToFixed(year, month, day) + 0.5);
        EXPECT_EQ(Joined(TextsOf(found)), texts) << year << " " << month << " " << day;
        EXPECT_EQ(KindOf(found), kind) << texts;
    }
}

/// Any rule that falls twice in a year, or in none of the years it is for, has a wrong range of days.
TEST(CivilDays, WeekdayRulesFallOnceAYear) {
    for (const std::string name :
         {"Advent Sunday", "Reformation Sunday (Protestant)", "USA Memorial Day", "USA Tax Day", "Canada Tax Day",
          "Victoria Day (Canada)", "USA Arbor Day", "Uniform Good Friday", "Uniform Easter"}) {
        easter::options.UniformEaster = name.starts_with("Uniform");
        for (int year = 1990; year < 2018; ++year) {
            int count = 0;
            for (FixedDay day = GregorianToFixed(year, 1, 1); day < GregorianToFixed(year + 1, 1, 1); ++day) {
                for (const DayText& each : CivilDaysOf(day)) count += each.text == name ? 1 : 0;
            }
            EXPECT_EQ(count, 1) << name << " " << year;
        }
    }
}

TEST(CivilDays, OrthodoxDaysGoByTheJulianDate) {
    // clang-format off
    constexpr Row rows[] = {
        {325, 12, 25, ""}, {326, 12, 25, "Eastern Orthodox Christmas"}, {2024, 1, 6, "Theophany"},
        {2024, 3, 25, "Annunciation of Mary"}, {2024, 4, 22, "Orthodox Easter"}, {2024, 6, 18, "Fast of the Apostles"},
        {2024, 6, 29, ""}, {2024, 8, 6, "Fast of the Repose of Mary, Transfiguration"},
        {2024, 12, 2, "Advent Sunday, Winter Lent (day 18 of 40)"}, {2024, 12, 24, "Winter Lent (day 40 of 40)"},
    };
    // clang-format on
    for (const auto& [year, month, day, texts, kind] : rows) {
        const JulianDate date = FixedToJulianDate(JulianToFixed(year, month, day, false), true);
        EXPECT_EQ(Joined(OrthodoxDays(date)), texts) << year << " " << month << " " << day;
    }
    julian::options.Revise = true;  // Christmas with the West, Easter as before
    const auto on = [](FixedDay day) { return Joined(OrthodoxDays(FixedToJulianDate(day, true))); };
    EXPECT_EQ(on(GregorianToFixed(2024, 12, 25)), "Eastern Orthodox Christmas");
    EXPECT_EQ(on(GregorianToFixed(2024, 5, 5)), "Orthodox Easter");
}

TEST(CivilDays, TheQuartaneYearHasItsOwn) {
    using namespace quartane;
    const auto on = [](int year, int month, int day) {
        return Joined(TextsOf(CivilDays(FixedToQuaDate(QuaToFixed(year, month, day)))));
    };
    EXPECT_EQ(on(2024, 1, 1), "New Year Day");
    EXPECT_EQ(on(2024, 2, 29), "");  // a day of every year
    EXPECT_EQ(on(2024, 4, 7), "Fixed Easter");
    const FixedDay uniform = EasterSunday(2024, true);
    EXPECT_EQ(Joined(TextsOf(CivilDays(FixedToQuaDate(uniform)))).find("Uniform Easter"), 0U);
    EXPECT_EQ(on(2024, 11, 22).find("Thanksgiving"), std::string::npos);
    EXPECT_EQ(on(2024, 11, 25), "USA Thanksgiving Day");
    options.LeapRuleKey = "ISO";
    EXPECT_EQ(Joined(TextsOf(CivilDays(FixedToQuaDate(EasterSunday(2025, false))))).find("Easter"), 0U);
    EXPECT_EQ(on(2024, 4, 7).find("Fixed"), std::string::npos);
}

}  // namespace
}  // namespace horvanta
