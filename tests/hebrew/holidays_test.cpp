#include "hebrew/holidays.h"

#include "core/text.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>

namespace horvanta {
namespace {

std::string TextsOf(const HebrewDay& day) {
    std::string joined;
    for (const std::string& text : day.texts) joined += (joined.empty() ? "" : "; ") + text;
    return joined;
}

constexpr const char* israel = "Jerusalem";
constexpr const char* diaspora = "Melbourne";

/// Dates that move, that differ between places, or that begin in some year. The festivals of the years 5600 to 6000
/// agree with `@hebcal/core` 5 (npm) but for remembrance days, which its tables move in other years.
TEST(Holidays, FallAsTheyAreKept) {
    const std::tuple<const char*, std::int32_t, std::int32_t, std::int32_t, const char*> days[] = {
        {diaspora, 5784, 1, 22, "Passover 8; 7th day of the Omer (1 week)"},
        {israel, 5784, 1, 22, "Isru Chag Pesach; 7th day of the Omer (1 week)"},
        {diaspora, 5781, 1, 12, "Ta'anit Bechorot (Fast of Firstborn)"},  // Passover on a Sunday
        {israel, 5784, 2, 5, "Yom HaZikaron (Israel Memorial Day); 20th day of the Omer (2 weeks and 6 days)"},
        {israel, 5784, 2, 6, "Yom HaAtzmaut (76th Israel Independence Day); 21st day of the Omer (3 weeks)"},
        {israel, 5708, 2, 5, "Yom HaAtzmaut (Israel Independence Day); 20th day of the Omer (2 weeks and 6 days)"},
        {israel, 5784, 1, 27, "12th day of the Omer (1 week and 5 days)"},  // Sunday: Yom HaShoah is kept on Monday
        {israel, 5784, 1, 28, "Yom HaShoah (Holocaust Memorial Day); 13th day of the Omer (1 week and 6 days)"},
        {diaspora, 5782, 5, 9, "Interval = Bein HaMetzarim (Between the Straits); Shabbat Chazon"},
        {diaspora, 5782, 5, 10, "Tisha B'Av"},
        {diaspora, 5785, 7, 4, "Tzom Gedaliah; Day 4 of the 10 days of Repentance"},
        {diaspora, 5784, 6, 26, "Start of Selichot"},
        {israel, 5784, 8, 7, "Begin Sh'elah in Israel (request for rain); Aliyah Day (observed in Israeli schools)"},
        {diaspora, 5784, 12, 14, "Purim Katan"},
        {israel, 5784, 13, 15, "Shushan Purim (in Jerusalem)"},
        {israel, 5785, 12, 16, "Shushan Purim (in Jerusalem)"},  // the 15th is a Sabbath
        {diaspora, 3405, 12, 14, ""},
    };
    for (const auto& [place, year, month, day, told] : days) {
        const HebrewDay asked = HebrewDayOf(HebrewToFixed(year, month, day), PresetLocale(place));
        EXPECT_EQ(TextsOf(asked), told) << place << year << " " << month << " " << day;
    }
}

/// Each year has its named Sabbaths once, its fasts once, 49 days of the Omer in sequence, 8 of Chanukah, and as many
/// announcements as months, each of which tells the days of the new month's beginning.
TEST(Holidays, ComeOnceAYear) {
    const LocaleRecord& place = PresetLocale(diaspora);
    for (std::int32_t year = 5600; year <= 6000; year += 7) {
        std::map<std::string, int> count;
        std::string announced;
        int omer = 0;
        for (FixedDay fixed = HebrewNewYear(year); fixed < HebrewNewYear(year + 1); ++fixed) {
            const HebrewDay day = HebrewDayOf(fixed, place);
            if (!day.ShabbatName.empty()) ++count[day.ShabbatName];
            if (!day.Fast.empty()) ++count[day.Fast];
            if (day.Chanukah) ++count["Chanukah"];
            if (!day.OmerText.empty()) {
                ++omer;
                EXPECT_TRUE(day.OmerText.starts_with(OrdinalString(omer) + " day")) << day.OmerText;
            }
            if (day.BirkatHachodesh.starts_with("Rosh")) announced = day.BirkatHachodesh;
            if (day.RoshChodesh == 1 || day.RoshChodesh == -1) {
                EXPECT_NE(announced.find(std::string("next ") + std::string(day.date.WeekDayName)), std::string::npos);
                EXPECT_EQ(day.RoshChodesh == -1, announced.find(" - ") != std::string::npos) << announced;
                ++count["month"];
            }
        }
        EXPECT_EQ(omer, 49);
        EXPECT_EQ(count["Chanukah"], 8);
        EXPECT_EQ(count["month"], MonthsInHebrewYear(year) - 1) << year;
        for (const char* once :
             {"Shekalim", "Zachor", "Parah", "HaChodesh", "HaGadol", "Chazon", "Nachamu", "T'shuvah", "Shirah",
              "Tzom Tammuz", "Tisha B'Av", "Tzom Gedaliah", "Ta'anit Esther", "Ta'anit Bechorot (Fast of Firstborn)"}) {
            EXPECT_EQ(count[once], 1) << once << " " << year;
        }
    }
    EXPECT_EQ(HebrewDayOf(HebrewToFixed(5784, 6, 25), place).BirkatHachodesh,
              "Rosh Hashanah will be next Yom Chamishi - Yom Shishi");
}

}  // namespace
}  // namespace horvanta
