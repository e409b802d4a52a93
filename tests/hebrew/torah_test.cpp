#include "hebrew/torah.h"

#include "locale/presets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace horvanta {
namespace {

/// The pairs that are read together in a year, by the year's character, as `@hebcal/core` 5 (npm) reads them in each of
/// the years 5600 to 6000.
struct PairsOfYear {
    const char* character;
    const char* inIsrael;
    const char* inDiaspora;
};

constexpr PairsOfYear pairsOfYears[] = {
    {"2D3", "Vayakhel Tazria Acharei Mot Behar Mattot Nitzavim ", nullptr},
    {"2D5*", "Mattot Nitzavim ", "Chukat Mattot Nitzavim "},
    {"2P5", "Vayakhel Tazria Acharei Mot Behar Mattot Nitzavim ",
     "Vayakhel Tazria Acharei Mot Behar Chukat Mattot Nitzavim "},
    {"2P7*", "", "Mattot "},
    {"3N5", "Vayakhel Tazria Acharei Mot Behar Mattot Nitzavim ",
     "Vayakhel Tazria Acharei Mot Behar Chukat Mattot Nitzavim "},
    {"3N7*", "", "Mattot "},
    {"5D1*", "", nullptr},
    {"5N7", "Vayakhel Tazria Acharei Mot Mattot ", "Vayakhel Tazria Acharei Mot Behar Mattot "},
    {"5P1", "Tazria Acharei Mot Behar Mattot ", nullptr},
    {"5P3*", "Nitzavim ", nullptr},
    {"7D1", "Vayakhel Tazria Acharei Mot Behar Mattot ", nullptr},
    {"7D3*", "Mattot Nitzavim ", nullptr},
    {"7P3", "Vayakhel Tazria Acharei Mot Behar Mattot Nitzavim ", nullptr},
    {"7P5*", "Mattot Nitzavim ", "Chukat Mattot Nitzavim "},
};

std::string PairsOf(const std::string& character, bool diaspora) {
    const auto* row = std::ranges::find(pairsOfYears, character, &PairsOfYear::character);
    return diaspora && row->inDiaspora != nullptr ? row->inDiaspora : row->inIsrael;
}

/// In every year the Sabbaths read from the first portion to the last but one without a gap, and the pairs are those
/// of the year's character.
TEST(Torah, ReadsAllPortionsInEveryYear) {
    for (const char* name : {"Jerusalem", "Times Square"}) {
        const LocaleRecord& place = PresetLocale(name);
        std::int32_t portion = 0;
        std::string pairs;
        for (FixedDay sabbath = KDayOnOrAfter(6, HebrewToFixed(3700, 7, 23)); sabbath < HebrewNewYear(6300);
             sabbath += 7) {
            const HebrewDay day = HebrewDayOf(sabbath, place);
            const std::string read = TorahPortion(day, false, place);
            if (!day.YomTov.empty() || !day.CholHamoed.empty()) {
                EXPECT_EQ(read, "");
                continue;
            }
            if (portion == 53) portion = 0;
            const std::string next{TorahPortionName(++portion)};
            if (read != next) {
                pairs += next + " ";
                EXPECT_EQ(read, next + "-" + std::string(TorahPortionName(++portion)));
            }
            if (sabbath + 7 < HebrewNewYear(day.date.Year + 1)) continue;
            ASSERT_EQ(pairs, PairsOf(HebrewYearCharacter(day.date.Year), place.Diaspora)) << name << day.date.Year;
            pairs.clear();
        }
    }
}

TEST(Torah, ReadsTheDaysOwn) {
    const std::tuple<const char*, std::int32_t, std::int32_t, std::int32_t, const char*> days[] = {
        {"Times Square", 5785, 7, 23, "Simchat Torah"},
        {"Times Square", 5784, 13, 11, "Ta'anit Esther"},  // Thursday
        {"Times Square", 5784, 13, 13, "Vayikra"},         // a Sabbath without the fast
        {"Times Square", 5784, 10, 1, "Rosh Chodesh Chanukah 6"},
        {"Times Square", 5782, 2, 8, "Emor"},              // Monday reads the coming Sabbath's
        {"Jerusalem", 5782, 2, 8, "Behar"},                // a week ahead since the 8th of Passover
        {"Times Square", 5784, 1, 23, "Acharei Mot"},      // over the festival's Sabbath
        {"Times Square", 5783, 7, 11, "Haazinu"},          // before Sukkot, with a Sabbath between
        {"Times Square", 5784, 7, 12, "V'zot Habrachah"},  // the same without one
        {"Jerusalem", 3622, 8, 10, ""},
    };
    for (const auto& [name, year, month, day, told] : days) {
        const LocaleRecord& place = PresetLocale(name);
        const HebrewDay asked = HebrewDayOf(HebrewToFixed(year, month, day), place);
        EXPECT_EQ(TorahPortion(asked, true, place), told) << year << " " << month << " " << day;
    }
}

}  // namespace
}  // namespace horvanta
